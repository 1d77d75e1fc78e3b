#include "contacts/phone_number.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>

#include <QRegularExpression>

#include "contacts/number_plan.h"

namespace parlexo {

namespace {

using Problem = PhoneNumber::Problem;

constexpr qsizetype longestCallingCode = 4;
constexpr QChar minusSign(0x2212);
// Between area code and number. What follows the slash of "030 123456/78" is another extension.
constexpr qsizetype fewestDigitsBehindSlash = 4;

bool isDecoration(QChar c) {
  return c.isSpace() || c.category() == QChar::Punctuation_Dash || c.category() == QChar::Other_Format ||
         c == minusSign || c == u'.' || c == u'(' || c == u')' || c == u'[' || c == u']';
}

QString withoutDecoration(QStringView number) {
  QString bare;
  std::copy_if(number.begin(), number.end(), std::back_inserter(bare),
               [](QChar c) { return !isDecoration(c); });
  return bare;
}

/// Without what spreadsheet programs and web pages write before a number. Direction marks may be anywhere.
QString withoutIntroduction(QStringView written) {
  QString number = written.toString();
  number.removeIf([](QChar c) { return c.category() == QChar::Other_Format; });
  number = number.trimmed();
  if (number.startsWith(u'\'') || number.startsWith(QChar(0x2019))) number = number.sliced(1).trimmed();
  if (number.startsWith(QLatin1String("tel:"), Qt::CaseInsensitive)) number = number.sliced(4).trimmed();
  return number;
}

QString bareNumber(QStringView written) {
  QString number = withoutIntroduction(written);
  // "+44 (0)20 ...": the zero is for callers inside the country.
  if (number.startsWith(u'+') || number.startsWith(u"00")) number.remove(QLatin1String("(0)"));
  number = withoutDecoration(number);
  const qsizetype slash = number.indexOf(u'/');
  if (slash > 0 && number.size() - slash > fewestDigitsBehindSlash) number.remove(slash, 1);
  return number;
}

bool isDigits(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool isRounded(const QString& number) {
  static const QRegularExpression pattern(QStringLiteral(R"(^\+?[\d,]+E\+\d+$)"));
  return pattern.match(number).hasMatch();
}

QString international(std::string_view digits) {
  return u'+' + QString::fromLatin1(digits.data(), static_cast<qsizetype>(digits.size()));
}

/// All numbers that `digits` can be where `code` is the default.
std::set<std::string> readingsOf(std::string_view digits, const std::string& code) {
  const CallingCode* country = findCallingCode(code);
  std::set<std::string> readings;
  for (const std::string_view abroad : withoutInternationalPrefix(country, digits))
    if (isPossible(abroad)) readings.emplace(abroad);
  if (!country) return readings;
  const auto addPlanned = [&](const std::string& candidate) {
    if (isPlanned(candidate)) readings.insert(candidate);
  };
  if (digits.starts_with(code)) addPlanned(std::string(digits));
  addPlanned(code + std::string(digits));
  for (const std::string_view national : withoutTrunkPrefix(*country, digits))
    addPlanned(code + std::string(national));
  return readings;
}

/// What is wrong with a number that has an international prefix.
Problem internationalProblem(std::string_view digits) {
  return findCallingCode(digits) ? Problem::WrongLength : Problem::UnknownCallingCode;
}

/// What is wrong with a number without plus sign that can't be read in any way.
Problem problemOfUnreadable(std::string_view digits, const QString& callingCode) {
  if (digits.starts_with("00")) return internationalProblem(digits.substr(2));
  if (callingCode.isEmpty()) return Problem::NoCallingCode;
  return PhoneNumber::isCallingCodeInUse(callingCode) ? Problem::NoReading : Problem::UnknownCallingCode;
}

QString textOfProblem(Problem problem, const QString& number, const QString& callingCode) {
  switch (problem) {
    case Problem::Empty:
    case Problem::NotANumber:
    case Problem::Ambiguous:  // names the readings
      return {};
    case Problem::Rounded:
      return QStringLiteral("A spreadsheet program has rounded the number.");
    case Problem::NoCallingCode:
      return QStringLiteral("The number %1 has no country code.").arg(number);
    case Problem::UnknownCallingCode:
      return QStringLiteral("The country code of the number %1 is not in use.").arg(number);
    case Problem::WrongLength:
      return QStringLiteral("The number %1 has a wrong length.").arg(number);
    case Problem::NoReading:
      return QStringLiteral("The number %1 is not valid in %2.").arg(number, callingCode);
  }
  Q_UNREACHABLE();
}

QString ambiguityText(const QString& number, const std::set<std::string>& readings) {
  return QStringLiteral("The number %1 can be %2 or %3. Write it with a plus sign.")
      .arg(number, international(*readings.begin()), international(*readings.rbegin()));
}

}  // namespace

PhoneNumber::PhoneNumber(QString text, std::optional<Problem> problem, QString problemText)
    : text_(std::move(text)), problem_(problem), problemText_(std::move(problemText)) {}

PhoneNumber PhoneNumber::parse(QStringView written, const QString& callingCode) {
  const QString number = bareNumber(written);
  const auto failed = [&](Problem problem) {
    return PhoneNumber(number, problem, textOfProblem(problem, number, callingCode));
  };
  if (number.isEmpty()) return failed(Problem::Empty);
  if (isRounded(number)) return failed(Problem::Rounded);
  const bool hasPlus = number.startsWith(u'+');
  const std::string digits = number.sliced(hasPlus ? 1 : 0).toStdString();
  if (!isDigits(digits)) return failed(Problem::NotANumber);
  if (hasPlus && !isPossible(digits)) return failed(internationalProblem(digits));

  const std::set<std::string> readings =
      hasPlus ? std::set{digits} : readingsOf(digits, callingCode.mid(1).toStdString());
  if (readings.empty()) return failed(problemOfUnreadable(digits, callingCode));
  if (readings.size() > 1) return {number, Problem::Ambiguous, ambiguityText(number, readings)};
  return {international(*readings.begin()), std::nullopt, QString()};
}

std::optional<QString> PhoneNumber::parseCallingCode(QStringView typed) {
  QString digits = withoutDecoration(typed);
  if (digits.isEmpty()) return QString();
  if (digits.startsWith(u'+'))
    digits.remove(0, 1);
  else if (digits.startsWith(u"00"))
    digits.remove(0, 2);
  if (!isDigits(digits.toStdString()) || digits.startsWith(u'0') || digits.size() > longestCallingCode)
    return std::nullopt;
  return u'+' + digits;
}

bool PhoneNumber::isCallingCodeInUse(QStringView callingCode) {
  return callingCode.startsWith(u'+') && findCallingCode(callingCode.sliced(1).toString().toStdString());
}

}  // namespace parlexo
