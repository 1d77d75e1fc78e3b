// SPDX-License-Identifier: GPL-3.0-or-later
/* The replacement for fopen() in libfreexl. fopen() expects names in the code page, which cannot represent
   every file name. */
#include <stdio.h>
#include <stdlib.h>
#include <windows.h>

/* Opens a file for reading in binary mode. `path` is UTF-8, `mode` is ignored. Returns NULL on error. */
FILE* openUtf8(const char* path, const char* mode) {
  FILE* file = NULL;
  const int length = MultiByteToWideChar(CP_UTF8, 0, path, -1, NULL, 0);
  wchar_t* wide = (wchar_t*)malloc((size_t)length * sizeof(wchar_t));
  (void)mode;
  if (wide && MultiByteToWideChar(CP_UTF8, 0, path, -1, wide, length)) file = _wfopen(wide, L"rb");
  free(wide);
  return file;
}
