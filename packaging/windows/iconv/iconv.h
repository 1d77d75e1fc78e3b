// SPDX-License-Identifier: GPL-3.0-or-later
/* What libfreexl needs of iconv(), by the system's own code pages. Only conversions to UTF-8. */
#pragma once

#include <stddef.h>

typedef void* iconv_t;

/* The converter from `from`: "ASCII", "UTF-16LE", "MacRoman" or "CP" and a number. (iconv_t)-1 when the
   system lacks it or `to` is not "UTF-8". */
iconv_t iconv_open(const char* to, const char* from);

/* Converts all of the input, moving the pointers and lowering the counts as iconv() does. (size_t)-1, with
   nothing moved, when the output is too small or the input is not in the code page. */
size_t iconv(iconv_t converter, char** in, size_t* inLeft, char** out, size_t* outLeft);

int iconv_close(iconv_t converter);
