# SPDX-License-Identifier: GPL-3.0-or-later
# Settings of all targets (language, warnings, sanitizers, folders) and the functions that declare a library, a
# program and a test.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
# The suffix of platform-specific source files: code_page_posix.cpp, code_page_windows.cpp.
if(WIN32)
  set(PARLEXO_PLATFORM windows)
else()
  set(PARLEXO_PLATFORM posix)
endif()
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

find_package(Qt6 6.4 REQUIRED COMPONENTS Core Network)
if(PARLEXO_WINDOW_PROGRAMS)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Gui Widgets)
endif()

add_library(parlexo_options INTERFACE)
target_include_directories(parlexo_options INTERFACE "${CMAKE_SOURCE_DIR}/src")
target_compile_definitions(parlexo_options INTERFACE
  QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH QT_NO_KEYWORDS
  QT_DISABLE_DEPRECATED_BEFORE=0x060400
  # Otherwise <windows.h> defines the macros "min" and "max".
  $<$<PLATFORM_ID:Windows>:NOMINMAX>)
target_compile_options(parlexo_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wunused
  -Wconversion -Wno-sign-conversion -Wformat=2 -Wimplicit-fallthrough -Werror)
if(PARLEXO_SANITIZE)
  target_compile_options(parlexo_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(parlexo_options INTERFACE -fsanitize=address,undefined)
endif()

# parlexo_library(NAME SOURCES file... LINKS target...): the static library of a module. tools/check-layers compares
# LINKS with docs/architecture.md.
function(parlexo_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC ${arg_LINKS} PRIVATE parlexo_options)
  target_include_directories(${name} PUBLIC "${CMAKE_SOURCE_DIR}/src")
endfunction()

# parlexo_program(NAME SOURCES file... LINKS target...): an executable in build/PRESET/bin.
function(parlexo_program name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE ${arg_LINKS} parlexo_options)
  # A static Qt links its plugins into the program.
  get_target_property(qt_kind Qt6::Core TYPE)
  if(qt_kind STREQUAL STATIC_LIBRARY)
    qt_finalize_target(${name})
  endif()
endfunction()

# parlexo_test(NAME [WINDOWS] SOURCES file... LINKS target...): a GoogleTest program, whose main() is added and whose
# cases CTest runs one by one. WINDOWS marks tests that open windows. The targets `core_tests` and `window_tests` build
# all tests of either kind; the former also run under the sanitizers.
add_custom_target(core_tests)
add_custom_target(window_tests)
function(parlexo_test name)
  cmake_parse_arguments(arg "WINDOWS" "" "SOURCES;LINKS" ${ARGN})
  if(arg_WINDOWS)
    set(label window)
    list(APPEND arg_LINKS ui Qt6::Test)
  else()
    set(label core)
  endif()
  parlexo_program(${name}
    SOURCES ${CMAKE_SOURCE_DIR}/tests/${label}_main.cpp ${arg_SOURCES}
    LINKS ${arg_LINKS} GTest::gmock)
  target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}")
  add_dependencies(${label}_tests ${name})
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
    TEST_PREFIX "${name}." PROPERTIES TIMEOUT 120 LABELS ${label})
endfunction()
