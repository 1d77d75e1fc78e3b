// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/sms_text.h"

#include <algorithm>
#include <string_view>

#include "base/code_page.h"

namespace parlexo {
namespace {

// Form feed, [ \ ] ^ { | } ~ and the byte of the euro sign: the characters that the GSM 7-bit alphabet
// escapes.
constexpr std::string_view escapedBytes = "\x0C\x5B\x5C\x5D\x5E\x7B\x7C\x7D\x7E\xA4";

int standardUnits(QStringView text) {
  const QByteArray bytes = toCodePage(text);
  const auto escaped = std::count_if(bytes.begin(), bytes.end(),
                                     [](char c) { return escapedBytes.find(c) != std::string_view::npos; });
  return static_cast<int>(bytes.size() + escaped);
}

int unitCount(QStringView text, SmsCharset charset) {
  return charset == SmsCharset::Standard ? standardUnits(text) : static_cast<int>(text.size());
}

int divideRoundingUp(int count, int divisor) {
  return (count + divisor - 1) / divisor;
}

int partCount(int count, const SmsLimits& limits) {
  return count <= limits.oneMessage ? 1 : divideRoundingUp(count, limits.part);
}

// The longest beginning of `text` with at most `limit` units. Reads at most limit + 1 characters, because
// each counts at least one unit.
QString truncatedToUnits(const QString& text, int limit) {
  int count = 0;
  qsizetype end = 0;
  while (end < text.size()) {
    const bool isPair =
        text.at(end).isHighSurrogate() && end + 1 < text.size() && text.at(end + 1).isLowSurrogate();
    const qsizetype length = isPair ? 2 : 1;
    count += standardUnits(QStringView(text).mid(end, length));
    if (count > limit) break;
    end += length;
  }
  return text.left(end);
}

QString toWireForm(const QString& text) {
  constexpr char16_t digits[] = u"0123456789ABCDEF";
  QString result = QString::fromUtf16(unicodePrefix);
  result.reserve(result.size() + 4 * text.size());
  for (const QChar unit : text)
    for (const int shift : {12, 8, 4, 0}) result += QChar(digits[(unit.unicode() >> shift) & 0xF]);
  return result;
}

// Returns -1 if `digit` is not hexadecimal.
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
  int count = standardUnits(text);
  if (count > limits.text) {
    result.editorText = truncatedToUnits(text, limits.text);
    count = standardUnits(result.editorText);
  }
  result.transmitText = result.editorText;
  result.totalSms = partCount(count, limits);
  result.remaining = limits.text - count;
  return result;
}

SmsComposition composeUnicode(const QString& text) {
  const SmsLimits limits = unicodeSmsLimits;
  SmsComposition result;
  result.tooLong = text.size() > limits.text;
  if (!result.tooLong) result.editorText = text;
  const int count = static_cast<int>(result.editorText.size());
  if (count > 0) result.transmitText = toWireForm(result.editorText);
  result.totalSms = partCount(count, limits);
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
  const SmsLimits limits = smsLimits(charset);
  const int all = unitCount(editorText, charset);
  if (all <= limits.oneMessage) return {};
  const int before = unitCount(QStringView(editorText).left(cursor), charset);
  return {std::max(1, divideRoundingUp(before, limits.part)), divideRoundingUp(all, limits.part)};
}

std::optional<QString> decodeUnicodeSms(const QString& transmitText) {
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
