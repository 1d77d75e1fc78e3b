// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/countries.h"

#include <algorithm>
#include <vector>

namespace parlexo::simulator {

using namespace Qt::StringLiterals;

namespace {

const std::vector<Country>& countries() {
  // International prefixes as assigned by the telephone union.
  static const std::vector<Country> list = {
      {u"Australia"_s, u"61"_s}, {u"China"_s, u"86"_s},          {u"France"_s, u"33"_s},
      {u"Germany"_s, u"49"_s},   {u"Malaysia"_s, u"60"_s},       {u"New Zealand"_s, u"64"_s},
      {u"Singapore"_s, u"65"_s}, {u"United Kingdom"_s, u"44"_s}, {u"United States"_s, u"1"_s},
  };
  return list;
}

template <class Matches>
std::optional<Country> findCountry(Matches matches) {
  const auto found = std::find_if(countries().begin(), countries().end(), matches);
  return found == countries().end() ? std::nullopt : std::optional<Country>(*found);
}

}  // namespace

std::optional<Country> countryNamed(const QString& name) {
  return findCountry(
      [&name](const Country& country) { return country.name.compare(name, Qt::CaseInsensitive) == 0; });
}

std::optional<Country> countryOf(const QString& number) {
  return findCountry([&number](const Country& country) { return number.startsWith(u'+' + country.prefix); });
}

}  // namespace parlexo::simulator
