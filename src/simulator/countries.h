// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <QString>

namespace parlexo::simulator {

/// A country that the gateway has a tariff for.
struct Country {
  QString name;
  QString prefix;  ///< international dialling prefix, digits only
};

/// The country with this English name, any case; none when there is no tariff for it.
[[nodiscard]] std::optional<Country> countryNamed(const QString& name);

/// The country that an international number ("+" and digits) belongs to; none when there is no tariff for it.
[[nodiscard]] std::optional<Country> countryOf(const QString& number);

}  // namespace parlexo::simulator
