#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The HarborAPI authors
# SPDX-License-Identifier: BSD-3-Clause
#
# Builds nodescope and opens a scene in it: ./run.sh [scene.iv]
# Without a display it plays a short demonstration under a virtual one and saves a screenshot.

set -euo pipefail

scene=${1:+$(realpath -- "$1")}
cd "$(dirname "$0")"
scene=${scene:-$PWD/examples/scenes/harbour.iv}

. packaging/debian-packages.sh
# shellcheck disable=SC2086
install_packages $packages_build $packages_run

[ -f build/release/build.ninja ] || cmake --preset release
cmake --build --preset release --target nodescope

nodescope=build/release/bin/nodescope
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-xcb} # Coin draws through GLX
if [ -n "${DISPLAY:-}" ]; then
    exec "$nodescope" "$scene"
fi

# shellcheck disable=SC2086
install_packages $packages_virtual_display
screenshot=$PWD/build/nodescope.png
rm -f "$screenshot"
echo "No display: playing a demonstration under a virtual one."
xvfb-run -a -s "-screen 0 1600x1000x24 +extension GLX" \
    "$nodescope" --demo --screenshot "$screenshot" "$scene"
echo "Screenshot: $screenshot"
