// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <QString>
#include <QStringView>

namespace parlexo {

/// A phone or fax number as people and programs write it, brought into the international format.
///
/// Blanks, dashes, dots, brackets, invisible direction marks, one slash, a leading apostrophe and "tel:" are
/// decoration. A number with "+" or an international prefix must have a calling code that is in use and a
/// length that is possible there. Any other number is read in each way that a default calling code allows:
/// with the code, with a trunk prefix ("0" in most countries), and without either. It is accepted only when
/// exactly one reading fits the country's numbering plan, so no number is ever turned into another one.
class PhoneNumber {
 public:
  enum class Problem {
    Empty,
    NotANumber,          ///< letters, two numbers in one text, ...
    Rounded,             ///< a spreadsheet program saved it as 6.1E+10
    NoCallingCode,       ///< a national number and no default
    UnknownCallingCode,  ///< its own, or the default
    WrongLength,         ///< international, but too long or too short
    NoReading,           ///< fits the plan of the default calling code in no way
    Ambiguous,           ///< fits in several ways
  };

  /// `written` must not have passed through the code page, which turns some decorations into "?".
  /// `callingCode` is the default for national numbers, as parseCallingCode() returns it; may be empty.
  [[nodiscard]] static PhoneNumber parse(QStringView written, const QString& callingCode = {});

  /// "+" and digits from what a user typed as a calling code: "+61", "61" or "0061", perhaps with an area
  /// code behind it ("+1868"). Empty stays empty; nullopt when it is not one to four digits.
  [[nodiscard]] static std::optional<QString> parseCallingCode(QStringView typed);
  /// Whether `callingCode`, as parseCallingCode() returns it, begins with a calling code that is in use.
  [[nodiscard]] static bool isCallingCodeInUse(QStringView callingCode);

  [[nodiscard]] bool isValid() const { return !problem_; }
  /// nullopt when the number is valid.
  [[nodiscard]] std::optional<Problem> problem() const { return problem_; }
  /// What is wrong, for the user. Empty when nothing is, for an empty text and for what is not a number: the
  /// dialogs have texts of their own for these.
  [[nodiscard]] const QString& problemText() const { return problemText_; }
  /// "+" and digits; without a valid number what was written, less its decorations.
  [[nodiscard]] const QString& text() const { return text_; }

 private:
  PhoneNumber(QString text, std::optional<Problem> problem, QString problemText);

  QString text_;
  std::optional<Problem> problem_;
  QString problemText_;
};

}  // namespace parlexo
