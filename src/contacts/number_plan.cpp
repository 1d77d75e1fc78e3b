// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/number_plan.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace parlexo {

namespace {

/// Removes the part up to `separator` from the beginning of `rest` and returns it.
std::string_view nextPart(std::string_view& rest, char separator) {
  const std::size_t end = std::min(rest.find(separator), rest.size());
  const std::string_view part = rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return part;
}

/// Returns whether the digit is in a class such as "1-35".
bool isInClass(char digit, std::string_view members) {
  for (std::size_t i = 0; i < members.size(); ++i) {
    const bool isRange = i + 2 < members.size() && members[i + 1] == '-';
    const char last = isRange ? members[i + 2] : members[i];
    if (digit >= members[i] && digit <= last) return true;
    if (isRange) i += 2;
  }
  return false;
}

/// Returns how many digits of the number the prefix matches, or 0.
std::size_t prefixLength(std::string_view prefix, std::string_view number) {
  const std::string_view stem = prefix.substr(0, prefix.find('['));
  if (!number.starts_with(stem)) return 0;
  if (stem.size() == prefix.size()) return stem.size();
  if (number.size() == stem.size()) return 0;
  const std::string_view members = prefix.substr(stem.size() + 1, prefix.size() - stem.size() - 2);
  return isInClass(number[stem.size()], members) ? stem.size() + 1 : 0;
}

bool beginsWithAny(std::string_view prefixes, std::string_view number) {
  while (!prefixes.empty())
    if (prefixLength(nextPart(prefixes, ' '), number) != 0) return true;
  return false;
}

/// Returns whether the length is in a list such as "6-8,10".
bool isInLengths(std::size_t length, std::string_view lengths) {
  while (!lengths.empty()) {
    const std::string_view range = nextPart(lengths, ',');
    std::size_t first = 0;
    const char* const end = range.data() + range.size();
    const char* const parsed = std::from_chars(range.data(), end, first).ptr;
    std::size_t last = first;
    if (parsed != end) std::from_chars(parsed + 1, end, last);
    if (length >= first && length <= last) return true;
  }
  return false;
}

struct PlanMatch {
  bool length = false;  ///< there are numbers of this length
  bool prefix = false;  ///< there are numbers with this prefix
  bool both = false;
};

PlanMatch matchPlan(std::string_view plan, std::string_view number) {
  PlanMatch match;
  while (!plan.empty()) {
    std::string_view prefixes = nextPart(plan, ';');
    const bool hasLength = isInLengths(number.size(), nextPart(prefixes, ':'));
    const bool hasPrefix = beginsWithAny(prefixes, number);
    match.length |= hasLength;
    match.prefix |= hasPrefix;
    match.both |= hasLength && hasPrefix;
  }
  return match;
}

/// Returns `digits` without the calling code of `country`.
std::string_view nationalPart(const CallingCode& country, std::string_view digits) {
  return digits.substr(std::string_view(country.code).size());
}

PlanMatch matchNumber(std::string_view digits) {
  const CallingCode* country = findCallingCode(digits);
  return country ? matchPlan(country->plan, nationalPart(*country, digits)) : PlanMatch();
}

void appendWithout(std::string_view prefixes, std::string_view digits, std::vector<std::string_view>& rests) {
  while (!prefixes.empty())
    if (const std::size_t length = prefixLength(nextPart(prefixes, ' '), digits); length != 0)
      rests.push_back(digits.substr(length));
}

}  // namespace

// No code is a prefix of another, so only the last code that does not sort after the digits can match.
const CallingCode* findCallingCode(std::string_view digits) {
  const auto codes = callingCodes();
  const auto after = std::upper_bound(
      codes.begin(), codes.end(), digits,
      [](std::string_view searched, const CallingCode& known) { return searched < known.code; });
  if (after == codes.begin()) return nullptr;
  const CallingCode& last = *std::prev(after);
  return digits.starts_with(last.code) ? &last : nullptr;
}

bool isPlanned(std::string_view digits) {
  return matchNumber(digits).both;
}

bool isPossible(std::string_view digits) {
  const PlanMatch match = matchNumber(digits);
  return match.both || (match.length && !match.prefix && withoutTrunkPrefix(digits).empty());
}

std::vector<std::string> withoutTrunkPrefix(std::string_view digits) {
  std::vector<std::string> numbers;
  const CallingCode* country = findCallingCode(digits);
  if (!country) return numbers;
  std::vector<std::string_view> rests;
  appendWithout(country->trunkPrefixes, nationalPart(*country, digits), rests);
  for (const std::string_view rest : rests) numbers.push_back(country->code + std::string(rest));
  return numbers;
}

std::vector<std::string_view> withoutInternationalPrefix(const CallingCode* country,
                                                         std::string_view digits) {
  std::vector<std::string_view> rests;
  appendWithout("00", digits, rests);
  if (country) appendWithout(country->internationalPrefixes, digits, rests);
  return rests;
}

}  // namespace parlexo
