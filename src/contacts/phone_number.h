// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <QCoreApplication>
#include <QString>
#include <QStringView>

namespace parlexo {

/// A phone or fax number as people and programs write it, normalised to the international format.
///
/// Spaces, dashes, dots, brackets, invisible direction marks, one slash, a leading apostrophe and "tel:" are
/// ignored. A number with "+" or an international prefix must have a calling code in use and a possible
/// length. Any other number is interpreted in every way that the default calling code allows: with the code,
/// with a trunk prefix ("0" in most countries), and without either. It is valid only if exactly one
/// interpretation matches the country's numbering plan. A number is thus never changed into a different one.
class PhoneNumber {
  Q_DECLARE_TR_FUNCTIONS(PhoneNumber)

 public:
  enum class Problem {
    Empty,
    NotANumber,          ///< contains letters, two numbers, ...
    Rounded,             ///< saved by a spreadsheet program as 6.1E+10
    NoCallingCode,       ///< a national number without a default
    UnknownCallingCode,  ///< in the number or as the default
    WrongLength,         ///< international, too long or too short
    NoReading,           ///< no interpretation matches the numbering plan
    Ambiguous,           ///< several interpretations match
  };

  /// `written` must not have been converted to the code page, which replaces some separators by "?".
  /// `callingCode` is the default for national numbers, as returned by parseCallingCode(); may be empty.
  [[nodiscard]] static PhoneNumber parse(QStringView written, const QString& callingCode = {});

  /// Parses a calling code typed by the user, such as "+61", "61" or "0061", optionally with an area code
  /// ("+1868"), to "+" and digits. Returns an empty string for an empty one, nullopt unless it has one to
  /// four digits.
  [[nodiscard]] static std::optional<QString> parseCallingCode(QStringView typed);
  /// Returns whether `callingCode`, as returned by parseCallingCode(), begins with a calling code in use.
  [[nodiscard]] static bool isCallingCodeInUse(QStringView callingCode);

  [[nodiscard]] bool isValid() const { return !problem_; }
  /// nullopt if the number is valid.
  [[nodiscard]] std::optional<Problem> problem() const { return problem_; }
  /// The message for the user. Empty if the number is valid, and for Problem::Empty and Problem::NotANumber,
  /// for which the dialogs have other messages.
  [[nodiscard]] const QString& problemText() const { return problemText_; }
  /// "+" and digits. If the number is invalid, the text without separators.
  [[nodiscard]] const QString& text() const { return text_; }

 private:
  PhoneNumber(QString text, std::optional<Problem> problem, QString problemText);

  QString text_;
  std::optional<Problem> problem_;
  QString problemText_;
};

}  // namespace parlexo
