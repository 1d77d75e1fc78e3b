// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "contacts/calling_codes.h"

namespace parlexo {

/// Questions to the table of calling codes. Numbers are ASCII digits without decoration.

/// The calling code that `digits` begin with; null when there is none.
[[nodiscard]] const CallingCode* findCallingCode(std::string_view digits);

/// Whether `digits`, calling code included, have a length and a beginning that the plan knows.
[[nodiscard]] bool isPlanned(std::string_view digits);

/// Whether `digits`, calling code included, can be a number. Unlike isPlanned() it accepts a beginning that
/// the plan does not know, in any length of the plan: countries open new ranges, but none that begins with a
/// trunk prefix.
[[nodiscard]] bool isPossible(std::string_view digits);

/// `digits`, calling code included, without each of the trunk prefixes that they have behind the code.
[[nodiscard]] std::vector<std::string> withoutTrunkPrefix(std::string_view digits);

/// `digits` without "00" and without each of the country's own international prefixes that they begin with.
/// `country` may be null.
[[nodiscard]] std::vector<std::string_view> withoutInternationalPrefix(const CallingCode* country,
                                                                       std::string_view digits);

}  // namespace parlexo
