// SPDX-License-Identifier: GPL-3.0-or-later
#include <windows.h>

#include "base/code_page.h"

namespace parlexo {

namespace {

// Newer systems allow UTF-8 as the ANSI code page. WideCharToMultiByte then rejects flags and a replacement
// character, and needs neither.
bool isUtf8() {
  return GetACP() == CP_UTF8;
}

// Replaces each surrogate pair by one character, so that an emoji becomes a single "?". No 8-bit code page
// has characters beyond the BMP.
QString withoutPairs(QStringView text) {
  QString single;
  single.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    const bool isPair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
    single += isPair ? QChar(QChar::ReplacementCharacter) : text[i];
    if (isPair) ++i;
  }
  return single;
}

QByteArray converted(QStringView text) {
  // Without this flag Windows substitutes similar letters, which would silently change a message.
  const DWORD flags = isUtf8() ? 0 : WC_NO_BEST_FIT_CHARS;
  const char* replacement = isUtf8() ? nullptr : "?";
  const auto* characters = reinterpret_cast<const wchar_t*>(text.utf16());
  const int length = static_cast<int>(text.size());
  QByteArray bytes;
  bytes.resize(WideCharToMultiByte(CP_ACP, flags, characters, length, nullptr, 0, replacement, nullptr));
  WideCharToMultiByte(CP_ACP, flags, characters, length, bytes.data(), static_cast<int>(bytes.size()),
                      replacement, nullptr);
  return bytes;
}

}  // namespace

QByteArray toCodePage(QStringView text) {
  if (text.isEmpty()) return {};
  return isUtf8() ? converted(text) : converted(withoutPairs(text));
}

QString fromCodePage(QByteArrayView bytes) {
  if (bytes.isEmpty()) return {};
  const int count = static_cast<int>(bytes.size());
  QString text(MultiByteToWideChar(CP_ACP, 0, bytes.data(), count, nullptr, 0), Qt::Uninitialized);
  MultiByteToWideChar(CP_ACP, 0, bytes.data(), count, reinterpret_cast<wchar_t*>(text.data()),
                      static_cast<int>(text.size()));
  return text;
}

bool fitsCodePage(QStringView text) {
  return throughCodePage(text) == text;
}

}  // namespace parlexo
