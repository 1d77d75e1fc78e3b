/* What libfreexl is made to call in the place of fopen(), which takes names in the code page: many a file has
   a name that no code page can write. */
#include <stdio.h>
#include <stdlib.h>
#include <windows.h>

/* As fopen() for reading bytes, but `path` is UTF-8. */
FILE* openUtf8(const char* path, const char* mode) {
  FILE* file = NULL;
  const int length = MultiByteToWideChar(CP_UTF8, 0, path, -1, NULL, 0);
  wchar_t* wide = (wchar_t*)malloc((size_t)length * sizeof(wchar_t));
  (void)mode;
  if (wide && MultiByteToWideChar(CP_UTF8, 0, path, -1, wide, length)) file = _wfopen(wide, L"rb");
  free(wide);
  return file;
}
