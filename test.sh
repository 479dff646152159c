#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The HarborAPI authors
# SPDX-License-Identifier: BSD-3-Clause
#
# Builds and runs the tests on Qt 6: ./test.sh
# With --all also the thorough ones, on Qt 5.15 and under the sanitizers, and looks for clang's warnings.

set -uo pipefail
cd "$(dirname "$0")" || exit 1

case "${1:-}" in
"") presets=(dev) ;;
--all) presets=(dev dev-qt5 asan tsan) ;;
*)
    echo "usage: ./test.sh [--all]" >&2
    exit 2
    ;;
esac
all=${1:-}

. packaging/debian-packages.sh
# shellcheck disable=SC2086
install_packages $packages_build ${all:+$packages_test_all} $packages_test || exit 1

passed_over=""
[ -n "$all" ] || passed_over="--label-exclude thorough"

# The sanitizers of g++ 12 fail at random where the kernel randomises addresses widely.
fixed_addresses=""
if setarch -R true 2>/dev/null; then
    fixed_addresses="setarch -R"
fi

failed=()
summary=()

# run_tests PRESET: builds and tests it, and keeps ctest's closing lines for the end.
run_tests() {
    local preset=$1 log=build/$1/ctest.log
    echo "=== $preset"
    if ! { cmake --preset "$preset" && cmake --build --preset "$preset"; }; then
        failed+=("$preset (build)")
        return
    fi
    # shellcheck disable=SC2086
    $fixed_addresses ctest --preset "$preset" $passed_over 2>&1 | tee "$log" || failed+=("$preset")
    summary+=("=== $preset" "$(sed -n '/tests passed/,$p' "$log")")
}

# Library, tool and benchmarks under clang, whose warnings differ from g++'s; without the precompiled header, which
# hides a missing include.
check_clang_warnings() {
    echo "=== clang"
    cmake --preset dev -B build/clang -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON \
        -DBUILD_TESTING=OFF -DHARBOR_BUILD_BENCHMARKS=ON && cmake --build build/clang || failed+=("clang")
}

for preset in "${presets[@]}"; do
    run_tests "$preset"
done
[ -z "$all" ] || check_clang_warnings

printf '\n'
[ ${#summary[@]} -eq 0 ] || printf '%s\n' "${summary[@]}"
if [ ${#failed[@]} -gt 0 ]; then
    printf 'FAILED: %s\n' "${failed[@]}"
    exit 1
fi
