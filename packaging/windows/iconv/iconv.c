// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconv.h"

#include <stdint.h>
#include <stdlib.h>
#include <string.h>
#include <windows.h>

static const iconv_t noConverter = (iconv_t)-1;
static const size_t failed = (size_t)-1;

enum { utf16 = 1200, ascii = 20127, macRoman = 10000 };

static unsigned findCodePage(const char* name) {
  if (strcmp(name, "UTF-16LE") == 0) return utf16;
  if (strcmp(name, "ASCII") == 0) return ascii;
  if (strcmp(name, "MacRoman") == 0) return macRoman;
  return strncmp(name, "CP", 2) == 0 ? (unsigned)atoi(name + 2) : 0;
}

iconv_t iconv_open(const char* to, const char* from) {
  const unsigned page = findCodePage(from);
  if (strcmp(to, "UTF-8") != 0 || page == 0) return noConverter;
  if (page != utf16 && !IsValidCodePage(page)) return noConverter;
  return (iconv_t)(uintptr_t)page;
}

/* Returns the input as UTF-16, or NULL without memory. The caller frees it unless it is the input itself. */
static wchar_t* toWide(unsigned page, char* bytes, int count, int* wideCount) {
  wchar_t* wide = NULL;
  if (page == utf16) {
    *wideCount = count / (int)sizeof(wchar_t);
    return (wchar_t*)bytes;
  }
  *wideCount = MultiByteToWideChar(page, 0, bytes, count, NULL, 0);
  wide = (wchar_t*)malloc((size_t)*wideCount * sizeof(wchar_t));
  if (wide) MultiByteToWideChar(page, 0, bytes, count, wide, *wideCount);
  return wide;
}

size_t iconv(iconv_t converter, char** in, size_t* inLeft, char** out, size_t* outLeft) {
  int wideCount = 0;
  int written = 0;
  wchar_t* wide = NULL;
  if (*inLeft == 0) return 0;
  wide = toWide((unsigned)(uintptr_t)converter, *in, (int)*inLeft, &wideCount);
  if (!wide) return failed;
  if (wideCount > 0)
    written = WideCharToMultiByte(CP_UTF8, 0, wide, wideCount, *out, (int)*outLeft, NULL, NULL);
  if ((char*)wide != *in) free(wide);
  if (written == 0) return failed;
  *in += *inLeft;
  *inLeft = 0;
  *out += written;
  *outLeft -= (size_t)written;
  return 0;
}

int iconv_close(iconv_t converter) {
  (void)converter;
  return 0;
}
