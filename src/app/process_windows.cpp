// SPDX-License-Identifier: GPL-3.0-or-later
#include <windows.h>
// clang-format off
#include <shellapi.h>
// clang-format on

#include <cstdio>

#include "app/process.h"

namespace parlexo {

namespace {

// A program with windows has no console of its own. One that was given a file or a pipe keeps that.
void joinConsoleOfCaller() {
  const bool isRedirected = GetFileType(GetStdHandle(STD_OUTPUT_HANDLE)) != FILE_TYPE_UNKNOWN;
  if (isRedirected || !AttachConsole(ATTACH_PARENT_PROCESS)) return;
  std::freopen("CONOUT$", "w", stdout);
  std::freopen("CONOUT$", "w", stderr);
}

}  // namespace

void prepareProcess() {
  joinConsoleOfCaller();
}

// The arguments of main() are in the code page, which has no character for many a folder's name.
QStringList programArguments(int /*argc*/, char** /*argv*/) {
  int count = 0;
  wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
  QStringList arguments;
  for (int i = 1; i < count; ++i) arguments << QString::fromWCharArray(words[i]);
  LocalFree(words);
  return arguments;
}

}  // namespace parlexo
