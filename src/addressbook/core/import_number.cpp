#include "addressbook/core/import_number.h"

#include <algorithm>

namespace parlexo {

namespace {

constexpr qsizetype longestCountryCode = 4;
// A number this long that begins with the digits of its country code has the code already.
constexpr qsizetype fewestDigitsBehindCode = 8;

bool isDecoration(QChar c) {
  return c.isSpace() || c.category() == QChar::Punctuation_Dash || c.category() == QChar::Other_Format ||
         c == u'.' || c == u'(' || c == u')' || c == u'[' || c == u']';
}

QString withoutDecoration(const QString& number) {
  QString bare;
  std::copy_if(number.begin(), number.end(), std::back_inserter(bare),
               [](QChar c) { return !isDecoration(c); });
  return bare;
}

bool isDigits(QStringView text) {
  return !text.isEmpty() &&
         std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

bool isInternational(QStringView number) {
  return number.startsWith(u'+') || number.startsWith(u"00");
}

/// In a few countries the zero belongs to the number itself.
bool keepsZero(QStringView countryCode) {
  return countryCode == u"+39" || countryCode == u"+378" || countryCode == u"+379";
}

QString behindCode(const QString& number, const QString& countryCode) {
  const QStringView codeDigits = QStringView(countryCode).sliced(1);
  if (number.startsWith(codeDigits) && number.size() >= codeDigits.size() + fewestDigitsBehindCode)
    return u'+' + number;
  const bool dropsZero = number.startsWith(u'0') && !keepsZero(countryCode);
  return countryCode + (dropsZero ? number.sliced(1) : number);
}

}  // namespace

std::optional<QString> countryCodeOf(QStringView typed) {
  QString digits = withoutDecoration(typed.toString());
  if (digits.isEmpty()) return QString();
  if (digits.startsWith(u'+'))
    digits.remove(0, 1);
  else if (digits.startsWith(u"00"))
    digits.remove(0, 2);
  if (!isDigits(digits) || digits.startsWith(u'0') || digits.size() > longestCountryCode) return std::nullopt;
  return u'+' + digits;
}

QString internationalNumber(QStringView written, const QString& countryCode) {
  QString number = written.trimmed().toString();
  // "+44 (0)20 ...": the zero is for callers inside the country.
  if (isInternational(number)) number.remove(QLatin1String("(0)"));
  number = withoutDecoration(number);
  if (number.startsWith(u"00")) return u'+' + number.sliced(2);
  if (countryCode.isEmpty() || !isDigits(number)) return number;
  return behindCode(number, countryCode);
}

}  // namespace parlexo
