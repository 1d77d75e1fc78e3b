// SPDX-License-Identifier: GPL-3.0-or-later
#include <windows.h>

#include <QWidget>

#include "app/system_menu.h"

namespace parlexo {

namespace {

// The system wants the low four bits clear and keeps the numbers from 0xF000 on for itself.
constexpr UINT commandNumber = 0x10;
constexpr WPARAM commandMask = 0xFFF0;

}  // namespace

void addToSystemMenu(QWidget& window, const QString& text) {
  if (text.isEmpty()) return;
  const HMENU menu = GetSystemMenu(reinterpret_cast<HWND>(window.winId()), FALSE);
  AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
  AppendMenuW(menu, MF_STRING, commandNumber, reinterpret_cast<const wchar_t*>(text.utf16()));
}

bool choosesSystemMenuEntry(const void* message) {
  const auto* native = static_cast<const MSG*>(message);
  return native->message == WM_SYSCOMMAND && (native->wParam & commandMask) == commandNumber;
}

}  // namespace parlexo
