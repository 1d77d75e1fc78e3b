#pragma once

#include <optional>

#include <QString>
#include <QStringView>

namespace parlexo {

/// The code as "+" and its digits, from what the user typed: "+61", "61" or "0061". Empty stays empty;
/// nothing when it is no country code.
[[nodiscard]] std::optional<QString> countryCodeOf(QStringView typed);

/// A phone number brought into the international format as far as that goes: blanks, dashes, dots and
/// brackets taken out, a leading "00" turned into "+", and a number that has neither put behind
/// `countryCode` (as countryCodeOf() gives it) without its leading zero. Whether the result is a number is
/// for others to say.
[[nodiscard]] QString internationalNumber(QStringView written, const QString& countryCode);

}  // namespace parlexo
