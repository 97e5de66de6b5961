# SPDX-License-Identifier: MIT
# What was compiled before is not compiled again where ccache is installed. Whoever names a launcher decides.
find_program(CCACHE ccache)
if(CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()
