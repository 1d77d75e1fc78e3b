// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace parlexo {

/// The numbering plan of one country calling code, which several countries may share.
///
/// All texts are ASCII. Prefixes in a list are separated by spaces. The last digit of a prefix may be a
/// class: "2[1-35] 67" means 21, 22, 23, 25 and 67.
struct CallingCode {
  const char* code;                   ///< "44"; no code is a prefix of another
  const char* trunkPrefixes;          ///< dialled before a national number, such as "0"; may be empty
  const char* internationalPrefixes;  ///< in addition to "00"; may be empty
  /// Prefixes of national numbers, without trunk prefix, by length: "7:80;9-10:1[2-9] 80" describes numbers
  /// of 7, 9 or 10 digits.
  const char* plan;
};

/// Returns all calling codes in use, sorted by code.
[[nodiscard]] std::span<const CallingCode> callingCodes();

// In the functions below, numbers are ASCII digits without separators.

/// Returns the calling code at the start of `digits`, or null.
[[nodiscard]] const CallingCode* findCallingCode(std::string_view digits);

/// Returns whether `digits`, including the calling code, have a length and a prefix of the plan.
[[nodiscard]] bool isPlanned(std::string_view digits);

/// Returns whether `digits`, including the calling code, can be a number. In addition to isPlanned() it
/// accepts unknown prefixes in any length of the plan, because countries open new ranges; but none that
/// begins with a trunk prefix.
[[nodiscard]] bool isPossible(std::string_view digits);

/// Returns `digits`, including the calling code, without the trunk prefix after the code: one result for each
/// trunk prefix that matches.
[[nodiscard]] std::vector<std::string> withoutTrunkPrefix(std::string_view digits);

/// Returns `digits` without their international prefix, "00" or one of the country's own: one result for each
/// prefix that matches. `country` may be null.
[[nodiscard]] std::vector<std::string_view> withoutInternationalPrefix(const CallingCode* country,
                                                                       std::string_view digits);

}  // namespace parlexo
