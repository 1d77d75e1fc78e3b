// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <QString>

namespace parlexo {

/// The rules for SMS texts: counting, truncating, splitting into parts, and the wire form.

enum class SmsCharset { Standard, Unicode };

/// The limits of a character set, in units: for Standard see composeSms(), for Unicode UTF-16 code units.
struct SmsLimits {
  int text;        ///< longest text; also the maximum length in the editor
  int oneMessage;  ///< longest text that fits one message
  int part;        ///< length of each part of a longer text
};

inline constexpr SmsLimits standardSmsLimits{.text = 760, .oneMessage = 160, .part = 152};
inline constexpr SmsLimits unicodeSmsLimits{.text = 335, .oneMessage = 70, .part = 67};

[[nodiscard]] constexpr SmsLimits smsLimits(SmsCharset charset) {
  return charset == SmsCharset::Standard ? standardSmsLimits : unicodeSmsLimits;
}

/// Marks a Unicode text on the wire. Four hexadecimal digits per UTF-16 code unit follow.
inline constexpr char16_t unicodePrefix[] = u"%%UNICODE%%";

/// The result of composeSms().
struct SmsComposition {
  /// The text for the editor: truncated if a Standard text was too long, empty if a Unicode text was.
  QString editorText;
  /// The text in its wire form; empty if there is nothing to send.
  QString transmitText;
  int totalSms = 1;
  int remaining = 0;     ///< units that can still be entered
  bool tooLong = false;  ///< a Unicode text over the limit was discarded; report this to the user
};

/// Counts `editorText` and converts it to its wire form. In Standard each byte of the code page counts one
/// unit, or two if the GSM alphabet escapes it; a text over the limit is truncated without splitting a
/// surrogate pair. Linear in the length of the text.
[[nodiscard]] SmsComposition composeSms(const QString& editorText, SmsCharset charset);

/// One of the parts of a text, counted from 1.
struct SmsPart {
  int number = 1;
  int total = 1;

  bool operator==(const SmsPart&) const = default;
};

/// The part that contains the character before `cursor`, an index into `editorText`.
[[nodiscard]] SmsPart partAt(const QString& editorText, SmsCharset charset, qsizetype cursor);

/// Decodes the wire form of a Unicode text. Returns nullopt unless it consists of the prefix and one or more
/// complete groups of four hexadecimal digits.
[[nodiscard]] std::optional<QString> decodeUnicodeSms(const QString& transmitText);

}  // namespace parlexo
