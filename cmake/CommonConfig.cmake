# SPDX-License-Identifier: MIT
# One place for the language standard, the warnings and the strict Qt that every target of ours is built with.
add_library(roamlet_common INTERFACE)

target_compile_definitions(roamlet_common INTERFACE
  QT_NO_CAST_FROM_ASCII
  QT_NO_CAST_TO_ASCII
  QT_NO_CAST_FROM_BYTEARRAY
  QT_NO_URL_CAST_FROM_STRING
  QT_NO_KEYWORDS
  QT_NO_FOREACH
  QT_USE_QSTRINGBUILDER
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT)

target_compile_options(roamlet_common INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual
  -Wcast-qual -Wduplicated-cond -Wlogical-op -Wunused -Wformat=2 -Werror)

# The compiler takes the files of a unit for headers, in which nothing should build on what is local to a file.
if(CMAKE_UNITY_BUILD)
  target_compile_options(roamlet_common INTERFACE -Wno-subobject-linkage)
endif()

# Version 12 of the compiler takes moved variants inside the standard library's sorting for values that were never set,
# and the adding of two strings for one that may overlap itself.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(roamlet_common INTERFACE -Wno-maybe-uninitialized -Wno-restrict)
endif()

# Some of these warnings only the usual compiler knows, and the other one complains of its library.
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  target_compile_options(roamlet_common INTERFACE -Wno-unknown-warning-option -Wno-deprecated-declarations -Wno-shadow)
endif()

# Libraries that a run does not reach are not loaded: a diagnostic run must start as fast as a plain Qt Core program.
target_link_options(roamlet_common INTERFACE -Wl,--as-needed)

# Two dozen test programs are linked, each with half of the program: a quicker linker saves a minute. What people run
# is linked by the system's own.
if(CMAKE_BUILD_TYPE STREQUAL "Debug")
  include(CheckLinkerFlag)
  check_linker_flag(CXX -fuse-ld=gold ROAMLET_HAS_GOLD)
  if(ROAMLET_HAS_GOLD)
    target_link_options(roamlet_common INTERFACE -fuse-ld=gold)
  endif()
endif()

if(ROAMLET_SANITIZERS)
  target_compile_options(roamlet_common INTERFACE -fsanitize=${ROAMLET_SANITIZERS} -fno-omit-frame-pointer)
  target_link_options(roamlet_common INTERFACE -fsanitize=${ROAMLET_SANITIZERS})
  if(ROAMLET_SANITIZERS MATCHES "undefined")
    target_compile_options(roamlet_common INTERFACE -fno-sanitize-recover=undefined)
  endif()
  if(ROAMLET_SANITIZERS MATCHES "thread")
    # The compiler warns about fences inside the standard library's own headers.
    target_compile_options(roamlet_common INTERFACE -Wno-tsan)
  endif()
endif()
