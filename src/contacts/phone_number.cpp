// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/phone_number.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>

#include <QRegularExpression>

#include "contacts/number_plan.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

using Problem = PhoneNumber::Problem;

constexpr qsizetype maxCallingCode = 4;
constexpr QChar minusSign(0x2212);
// A slash may separate area code and number. After a complete number it introduces another extension or a
// second number: "030 123456/78", "04105 1234/1235".
constexpr qsizetype maxDigitsBeforeSlash = 6;
constexpr qsizetype maxCodeBeforeSlash = 3;
constexpr qsizetype minDigitsAfterSlash = 4;

bool isSeparator(QChar c) {
  return c.isSpace() || c.category() == QChar::Punctuation_Dash || c.category() == QChar::Other_Format ||
         c == minusSign || c == u'.' || c == u'(' || c == u')' || c == u'[' || c == u']';
}

QString withoutSeparators(QStringView number) {
  QString bare;
  std::copy_if(number.begin(), number.end(), std::back_inserter(bare),
               [](QChar c) { return !isSeparator(c); });
  return bare;
}

/// Removes what spreadsheet programs and web pages write before a number, and direction marks anywhere.
QString withoutPreamble(QStringView written) {
  QString number = written.toString();
  number.removeIf([](QChar c) { return c.category() == QChar::Other_Format; });
  number = number.trimmed();
  if (number.startsWith(u'\'') || number.startsWith(QChar(0x2019))) number = number.sliced(1).trimmed();
  if (number.startsWith(QLatin1String("tel:"), Qt::CaseInsensitive)) number = number.sliced(4).trimmed();
  return number;
}

bool isSlashSeparator(const QString& number, qsizetype slash) {
  const qsizetype prefix = number.startsWith(u'+')    ? 1 + maxCodeBeforeSlash
                           : number.startsWith(u"00") ? 2 + maxCodeBeforeSlash
                                                      : 0;
  return slash > 0 && slash <= prefix + maxDigitsBeforeSlash && number.size() - slash > minDigitsAfterSlash;
}

QString bareNumber(QString number) {
  // Programs that store numbers as floating point write 61491570156.0.
  static const QRegularExpression fraction(uR"(^(\+?\d{7,})\.0$)"_s);
  number = withoutSeparators(number.replace(fraction, u"\\1"_s));
  const qsizetype slash = number.indexOf(u'/');
  if (isSlashSeparator(number, slash)) number.remove(slash, 1);
  return number;
}

bool isDigits(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool isRounded(const QString& number) {
  static const QRegularExpression pattern(uR"(^\+?[\d,]+E\+\d+$)"_s);
  return pattern.match(number).hasMatch();
}

QString international(std::string_view digits) {
  return u'+' + QString::fromLatin1(digits.data(), static_cast<qsizetype>(digits.size()));
}

/// The possible interpretations of a text. Numbers in a numbering plan take precedence over possible ones.
class Readings {
 public:
  explicit Readings(std::string defaultCode) : defaultCode_(std::move(defaultCode)) {}

  void add(std::string_view digits, bool hasPlus) {
    if (hasPlus)
      addInternational(digits);
    else
      addAll(digits);
  }

  [[nodiscard]] const std::set<std::string>& numbers() const {
    return planned_.empty() ? possible_ : planned_;
  }

 private:
  void addAll(std::string_view digits) {
    const CallingCode* country = findCallingCode(defaultCode_);
    for (const std::string_view abroad : withoutInternationalPrefix(country, digits))
      addInternational(abroad);
    if (!country) return;
    if (digits.starts_with(defaultCode_)) addPlanned(std::string(digits));
    addPlanned(defaultCode_ + std::string(digits));
  }

  void addInternational(std::string_view digits) {
    addPlanned(std::string(digits));
    if (isPossible(digits)) possible_.emplace(digits);
  }

  /// Also tries without the trunk prefix, which some people write after the calling code.
  void addPlanned(const std::string& digits) {
    if (isPlanned(digits)) planned_.insert(digits);
    for (const std::string& shorter : withoutTrunkPrefix(digits))
      if (isPlanned(shorter)) planned_.insert(shorter);
  }

  std::string defaultCode_;
  std::set<std::string> planned_;
  std::set<std::string> possible_;
};

/// Returns the problem of an invalid number with an international prefix.
Problem internationalProblem(std::string_view digits) {
  return findCallingCode(digits) ? Problem::WrongLength : Problem::UnknownCallingCode;
}

/// Returns the problem of a number without plus sign that has no interpretation.
Problem unreadableProblem(std::string_view digits, const QString& callingCode) {
  if (digits.starts_with("00")) return internationalProblem(digits.substr(2));
  if (callingCode.isEmpty()) return Problem::NoCallingCode;
  return PhoneNumber::isCallingCodeInUse(callingCode) ? Problem::NoReading : Problem::UnknownCallingCode;
}

QString problemMessage(Problem problem, const QString& number, const QString& callingCode) {
  switch (problem) {
    case Problem::Empty:
    case Problem::NotANumber:
    case Problem::Ambiguous:  // see ambiguityText()
      return {};
    case Problem::Rounded:
      return PhoneNumber::tr("A spreadsheet program has rounded the number.");
    case Problem::NoCallingCode:
      return PhoneNumber::tr("The number %1 has no country code.").arg(number);
    case Problem::UnknownCallingCode:
      return PhoneNumber::tr("The country code of the number %1 is not in use.").arg(number);
    case Problem::WrongLength:
      return PhoneNumber::tr("The number %1 has a wrong length.").arg(number);
    case Problem::NoReading:
      return PhoneNumber::tr("The number %1 is not valid in %2.").arg(number, callingCode);
  }
  Q_UNREACHABLE();
}

QString ambiguityText(const QString& number, const std::set<std::string>& readings) {
  return PhoneNumber::tr("The number %1 can be %2 or %3. Write it with a plus sign.")
      .arg(number, international(*readings.begin()), international(*readings.rbegin()));
}

}  // namespace

PhoneNumber::PhoneNumber(QString text, std::optional<Problem> problem, QString problemText)
    : text_(std::move(text)), problem_(problem), problemText_(std::move(problemText)) {}

PhoneNumber PhoneNumber::parse(QStringView written, const QString& callingCode) {
  QString text = withoutPreamble(written);
  const QString number = bareNumber(text);
  const auto failed = [&](Problem problem) {
    return PhoneNumber(number, problem, problemMessage(problem, number, callingCode));
  };
  if (number.isEmpty()) return failed(Problem::Empty);
  if (isRounded(number)) return failed(Problem::Rounded);
  const bool hasPlus = number.startsWith(u'+');
  const std::string digits = number.sliced(hasPlus ? 1 : 0).toStdString();
  if (!isDigits(digits)) return failed(Problem::NotANumber);

  Readings readings(callingCode.mid(1).toStdString());
  readings.add(digits, hasPlus);
  // "+44 (0)20 ...": the zero is only dialled inside the country.
  if (text.contains(QLatin1String("(0)"))) {
    const QString shorter = bareNumber(text.remove(QLatin1String("(0)")));
    readings.add(shorter.sliced(hasPlus ? 1 : 0).toStdString(), hasPlus);
  }
  const std::set<std::string>& numbers = readings.numbers();
  if (numbers.size() > 1) return {number, Problem::Ambiguous, ambiguityText(number, numbers)};
  if (numbers.size() == 1) return {international(*numbers.begin()), std::nullopt, QString()};
  return failed(hasPlus ? internationalProblem(digits) : unreadableProblem(digits, callingCode));
}

std::optional<QString> PhoneNumber::parseCallingCode(QStringView typed) {
  QString digits = withoutSeparators(typed);
  if (digits.isEmpty()) return QString();
  if (digits.startsWith(u'+'))
    digits.remove(0, 1);
  else if (digits.startsWith(u"00"))
    digits.remove(0, 2);
  if (!isDigits(digits.toStdString()) || digits.startsWith(u'0') || digits.size() > maxCallingCode)
    return std::nullopt;
  return u'+' + digits;
}

bool PhoneNumber::isCallingCodeInUse(QStringView callingCode) {
  return callingCode.startsWith(u'+') && findCallingCode(callingCode.sliced(1).toString().toStdString());
}

}  // namespace parlexo
