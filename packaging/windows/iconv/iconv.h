// SPDX-License-Identifier: GPL-3.0-or-later
/* The part of iconv() that libfreexl uses, implemented with the code pages of Windows. Converts only to
 * UTF-8. */
#pragma once

#include <stddef.h>

typedef void* iconv_t;

/* Returns the converter from `from`: "ASCII", "UTF-16LE", "MacRoman" or "CP" and a number. Returns
   (iconv_t)-1 if the system lacks that code page or `to` is not "UTF-8". */
iconv_t iconv_open(const char* to, const char* from);

/* Converts the whole input and updates the pointers and counts like iconv(). Returns (size_t)-1 and updates
   nothing if the output buffer is too small or the input is not valid in the code page. */
size_t iconv(iconv_t converter, char** in, size_t* inLeft, char** out, size_t* outLeft);

int iconv_close(iconv_t converter);
