# SPDX-License-Identifier: GPL-3.0-or-later
# Cross-compiling for 64-bit Windows with Debian's MinGW-w64 (g++-mingw-w64-x86-64-posix).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# GCC assumes that an inline function called in a file is the copy that it compiled there, and relies on the registers
# that this copy does not change. On Windows the linker may keep the copy of another file, compiled differently.
set(CMAKE_C_FLAGS_INIT "-fno-ipa-ra")
set(CMAKE_CXX_FLAGS_INIT "-fno-ipa-ra")
