// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/sms_text.h"

#include <algorithm>
#include <string_view>

#include "base/code_page.h"

namespace parlexo {
namespace {

// Form feed, [ \ ] ^ { | } ~ and the byte that stands for the euro sign: the characters that the GSM
// 7-bit alphabet writes with an escape before them.
constexpr std::string_view escapedBytes = "\x0C\x5B\x5C\x5D\x5E\x7B\x7C\x7D\x7E\xA4";

int units(QStringView text) {
  const QByteArray bytes = toCodePage(text);
  const auto escaped = std::count_if(bytes.begin(), bytes.end(),
                                     [](char c) { return escapedBytes.find(c) != std::string_view::npos; });
  return static_cast<int>(bytes.size() + escaped);
}

// What a text counts in the character set's own measure.
int countOf(QStringView text, SmsCharset charset) {
  return charset == SmsCharset::Standard ? units(text) : static_cast<int>(text.size());
}

int roundedUp(int count, int divisor) {
  return (count + divisor - 1) / divisor;
}

int partsOf(int count, const SmsLimits& limits) {
  return count <= limits.oneMessage ? 1 : roundedUp(count, limits.part);
}

// The longest beginning of `text` that counts at most `limit` units. Every character counts at least one,
// so this looks at no more than limit + 1 of them however long the text is.
QString cutToUnits(const QString& text, int limit) {
  int count = 0;
  qsizetype kept = 0;
  while (kept < text.size()) {
    const bool isPair =
        text.at(kept).isHighSurrogate() && kept + 1 < text.size() && text.at(kept + 1).isLowSurrogate();
    const qsizetype length = isPair ? 2 : 1;
    count += units(QStringView(text).mid(kept, length));
    if (count > limit) break;
    kept += length;
  }
  return text.left(kept);
}

QString hexForm(const QString& text) {
  constexpr char16_t digits[] = u"0123456789ABCDEF";
  QString result = QString::fromUtf16(unicodePrefix);
  result.reserve(result.size() + 4 * text.size());
  for (const QChar unit : text)
    for (const int shift : {12, 8, 4, 0}) result += QChar(digits[(unit.unicode() >> shift) & 0xF]);
  return result;
}

// -1 for what is no hexadecimal digit.
int digitValue(QChar digit) {
  const char16_t c = digit.unicode();
  if (c >= u'0' && c <= u'9') return c - u'0';
  if (c >= u'A' && c <= u'F') return c - u'A' + 10;
  if (c >= u'a' && c <= u'f') return c - u'a' + 10;
  return -1;
}

SmsComposition composeStandard(const QString& text) {
  const SmsLimits limits = standardSmsLimits;
  SmsComposition result;
  result.editorText = text;
  int count = units(text);
  if (count > limits.text) {
    result.editorText = cutToUnits(text, limits.text);
    count = units(result.editorText);
  }
  result.transmitText = result.editorText;
  result.totalSms = partsOf(count, limits);
  result.remaining = limits.text - count;
  return result;
}

SmsComposition composeUnicode(const QString& text) {
  const SmsLimits limits = unicodeSmsLimits;
  SmsComposition result;
  result.tooLong = text.size() > limits.text;
  if (!result.tooLong) result.editorText = text;
  const int count = static_cast<int>(result.editorText.size());
  if (count > 0) result.transmitText = hexForm(result.editorText);
  result.totalSms = partsOf(count, limits);
  result.remaining = limits.text - count;
  return result;
}

}  // namespace

SmsComposition composeSms(const QString& editorText, SmsCharset charset) {
  switch (charset) {
    case SmsCharset::Standard:
      return composeStandard(editorText);
    case SmsCharset::Unicode:
      return composeUnicode(editorText);
  }
  Q_UNREACHABLE();
}

SmsPart partAt(const QString& editorText, SmsCharset charset, qsizetype cursor) {
  const SmsLimits limits = limitsOf(charset);
  const int all = countOf(editorText, charset);
  if (all <= limits.oneMessage) return {};
  const int before = countOf(QStringView(editorText).left(cursor), charset);
  return {std::max(1, roundedUp(before, limits.part)), roundedUp(all, limits.part)};
}

std::optional<QString> decodedUnicodeSms(const QString& transmitText) {
  constexpr qsizetype digitsPerUnit = 4;
  const QString prefix = QString::fromUtf16(unicodePrefix);
  const QStringView digits = QStringView(transmitText).mid(prefix.size());
  if (!transmitText.startsWith(prefix) || digits.isEmpty() || digits.size() % digitsPerUnit != 0)
    return std::nullopt;
  QString text;
  text.reserve(digits.size() / digitsPerUnit);
  for (qsizetype begin = 0; begin < digits.size(); begin += digitsPerUnit) {
    int unit = 0;
    for (const QChar digit : digits.mid(begin, digitsPerUnit)) {
      const int value = digitValue(digit);
      if (value < 0) return std::nullopt;
      unit = unit * 16 + value;
    }
    text += QChar(unit);
  }
  return text;
}

}  // namespace parlexo
