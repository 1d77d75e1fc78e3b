// SPDX-License-Identifier: GPL-3.0-or-later
#include <windows.h>

#include <cstdio>

#include <QWidget>

#include "app/platform.h"

namespace parlexo {

namespace {

// Windows requires the low four bits to be clear and reserves the numbers from 0xF000.
constexpr UINT commandNumber = 0x10;
constexpr WPARAM commandMask = 0xFFF0;

}  // namespace

// A program of the graphical subsystem starts without a console. Output that is redirected to a file or pipe
// stays redirected.
void prepareProcess() {
  const bool isRedirected = GetFileType(GetStdHandle(STD_OUTPUT_HANDLE)) != FILE_TYPE_UNKNOWN;
  if (isRedirected || !AttachConsole(ATTACH_PARENT_PROCESS)) return;
  std::freopen("CONOUT$", "w", stdout);
  std::freopen("CONOUT$", "w", stderr);
}

void addToSystemMenu(QWidget& window, const QString& text) {
  if (text.isEmpty()) return;
  const HMENU menu = GetSystemMenu(reinterpret_cast<HWND>(window.winId()), FALSE);
  AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
  AppendMenuW(menu, MF_STRING, commandNumber, reinterpret_cast<const wchar_t*>(text.utf16()));
}

bool isSystemMenuEntry(const void* message) {
  const auto* native = static_cast<const MSG*>(message);
  return native->message == WM_SYSCOMMAND && (native->wParam & commandMask) == commandNumber;
}

}  // namespace parlexo
