# SPDX-FileCopyrightText: 2026 The HarborAPI authors
# SPDX-License-Identifier: BSD-3-Clause
#
# shellcheck shell=sh disable=SC2034
#
# The Debian packages that building, running and testing need. Sourced, not run.

# nodescope links zlib. Coin opens it at run time, and simage for the pictures of textures, by their development names.
packages_build="g++ cmake ninja-build ccache qt6-base-dev libqt6opengl6-dev libcoin-dev zlib1g-dev libsimage-dev"
packages_run="libgl1-mesa-dri fontconfig fonts-dejavu-core"
packages_virtual_display="xvfb xauth"
packages_test="pkg-config xdotool openbox inventor-data $packages_run $packages_virtual_display"
packages_coverage="gcovr"
packages_test_all="qtbase5-dev clang libbenchmark-dev"

# install_packages PACKAGE...: installs those that are missing; asks neither apt nor the network if none is.
install_packages() {
    missing=""
    for package in "$@"; do
        status=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null) || status=""
        [ "$status" = installed ] || missing="$missing $package"
    done
    [ -n "$missing" ] || return 0

    as_root=""
    if [ "$(id -u)" -ne 0 ]; then
        as_root=sudo
        if ! command -v sudo >/dev/null; then
            echo "These packages are missing; install them as root and try again:$missing" >&2
            return 1
        fi
    fi
    echo "Installing:$missing"
    $as_root apt-get update -qq
    # shellcheck disable=SC2086
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing
}
