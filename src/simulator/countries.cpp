#include "simulator/countries.h"

#include <algorithm>
#include <vector>

namespace parlexo::simulator {

namespace {

const std::vector<Country>& countries() {
  // International prefixes as assigned by the telephone union.
  static const std::vector<Country> list = {
      {QStringLiteral("Australia"), QStringLiteral("61")},
      {QStringLiteral("China"), QStringLiteral("86")},
      {QStringLiteral("France"), QStringLiteral("33")},
      {QStringLiteral("Germany"), QStringLiteral("49")},
      {QStringLiteral("Malaysia"), QStringLiteral("60")},
      {QStringLiteral("New Zealand"), QStringLiteral("64")},
      {QStringLiteral("Singapore"), QStringLiteral("65")},
      {QStringLiteral("United Kingdom"), QStringLiteral("44")},
      {QStringLiteral("United States"), QStringLiteral("1")},
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
