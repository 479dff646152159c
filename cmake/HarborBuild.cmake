# SPDX-FileCopyrightText: 2026 The HarborAPI authors
# SPDX-License-Identifier: BSD-3-Clause
#
# What every target shares: which Qt, which warnings, which sanitizers, and whether it counts what it runs.

if(NOT HARBOR_QT_MAJOR)
  find_package(Qt6 QUIET COMPONENTS Widgets)
  set(HARBOR_QT_MAJOR_USED 5)
  if(Qt6_FOUND)
    set(HARBOR_QT_MAJOR_USED 6)
  endif()
elseif(HARBOR_QT_MAJOR MATCHES "^[56]$")
  set(HARBOR_QT_MAJOR_USED ${HARBOR_QT_MAJOR})
else()
  message(FATAL_ERROR "HARBOR_QT_MAJOR is '${HARBOR_QT_MAJOR}'; it takes 6, 5 or nothing")
endif()

find_package(Qt${HARBOR_QT_MAJOR_USED} REQUIRED COMPONENTS Widgets)
find_package(Coin REQUIRED)

find_program(HARBOR_CCACHE ccache)
if(HARBOR_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # ccache passes over whatever uses a precompiled header unless it is told not to mind these two.
  set(CMAKE_CXX_COMPILER_LAUNCHER
    ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${HARBOR_CCACHE})
endif()

add_library(harbor_options INTERFACE)
target_compile_options(harbor_options INTERFACE -Wall -Wextra -Wpedantic)
target_compile_definitions(harbor_options INTERFACE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII)
if(HARBOR_SANITIZE)
  target_compile_options(harbor_options INTERFACE
    -fsanitize=${HARBOR_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  target_link_options(harbor_options INTERFACE -fsanitize=${HARBOR_SANITIZE})
endif()
if(HARBOR_COVERAGE)
  target_compile_options(harbor_options INTERFACE --coverage -fprofile-update=atomic)
  target_link_options(harbor_options INTERFACE --coverage)
endif()
