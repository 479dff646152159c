#!/bin/sh
# SPDX-FileCopyrightText: 2026 The HarborAPI authors
# SPDX-License-Identifier: BSD-3-Clause
#
# pkgconfig.sh COMPILER SOURCE OUTPUT: builds a host by pkg-config alone and looks whether it finds its library.

set -eu
# shellcheck disable=SC2046
"$1" -std=c++17 $(pkg-config --cflags HarborAPI) "$2" $(pkg-config --libs HarborAPI) -o "$3"
ldd "$3" | grep "libHarborAPI.so.[0-9]* => $LD_LIBRARY_PATH/"
