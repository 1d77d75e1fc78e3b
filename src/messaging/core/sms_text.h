// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <QString>

namespace parlexo {

/// The rules of an SMS text: how it is counted, cut, split into parts and put into the form that travels.
/// Values in, values out; nothing here knows an editor.

enum class SmsCharset { Standard, Unicode };

/// Sizes of one character set: in counted units for Standard (see composeSms()), in UTF-16 code units for
/// Unicode.
struct SmsLimits {
  int text;        ///< longest text, and the most characters that the editor takes
  int oneMessage;  ///< longest text that fits one message
  int part;        ///< what each part of a longer text carries
};

inline constexpr SmsLimits standardSmsLimits{760, 160, 152};
inline constexpr SmsLimits unicodeSmsLimits{335, 70, 67};

[[nodiscard]] constexpr SmsLimits limitsOf(SmsCharset charset) {
  return charset == SmsCharset::Standard ? standardSmsLimits : unicodeSmsLimits;
}

/// What the gateway recognises a Unicode text by; four hexadecimal digits per UTF-16 code unit follow.
inline constexpr char16_t unicodePrefix[] = u"%%UNICODE%%";

/// What became of an editor's text.
struct SmsComposition {
  /// What the editor may hold: the given text, cut where a Standard text was too long, empty where a
  /// Unicode text was.
  QString editorText;
  /// What goes to the gateway; empty when there is nothing to send.
  QString transmitText;
  int totalSms = 1;
  int remaining = 0;     ///< units or characters that may still be typed
  bool tooLong = false;  ///< a Unicode text over the limit, which is dropped whole and must be reported
};

/// Counts `editorText` and puts it into the form that travels. In Standard every byte of the code page
/// counts one unit, and two where the GSM alphabet needs an escape; a text over the limit loses its end,
/// never half a surrogate pair. Linear in the length of the text.
[[nodiscard]] SmsComposition composeSms(const QString& editorText, SmsCharset charset);

/// One of the parts that a text travels in, counted from 1.
struct SmsPart {
  int number = 1;
  int total = 1;

  bool operator==(const SmsPart&) const = default;
};

/// The part that holds the character before `cursor`, an index into `editorText`; so the end of the text lies
/// in the last part, however full that is.
[[nodiscard]] SmsPart partAt(const QString& editorText, SmsCharset charset, qsizetype cursor);

/// The text that a Unicode text in the form that travels stands for. Nothing unless the prefix is followed by
/// one or more whole groups of four hexadecimal digits and nothing else.
[[nodiscard]] std::optional<QString> decodedUnicodeSms(const QString& transmitText);

}  // namespace parlexo
