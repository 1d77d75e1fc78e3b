// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

namespace parlexo {

/// The numbering plan behind one country calling code, which several countries may share.
///
/// All texts consist of ASCII characters. A list of prefixes is separated by blanks; the last digit of a
/// prefix may be a class: "2[1-35] 67" are 21, 22, 23, 25 and 67.
struct CallingCode {
  const char* code;                   ///< "44"; no code is the beginning of another
  const char* trunkPrefixes;          ///< dialled before a national number, as "0"; may be empty
  const char* internationalPrefixes;  ///< list of prefixes besides "00"; may be empty
  /// What national numbers, without trunk prefix, begin with, by their length: "7:80;9-10:1[2-9] 80" are
  /// numbers of 7, 9 or 10 digits.
  const char* plan;
};

/// All calling codes that are in use, sorted by code.
[[nodiscard]] std::span<const CallingCode> callingCodes();

}  // namespace parlexo
