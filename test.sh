#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The HarborAPI authors
# SPDX-License-Identifier: BSD-3-Clause
#
# Builds and runs the tests on Qt 6: ./test.sh
# With --all also the thorough ones, on Qt 5.15 and under the sanitizers, and looks for clang's warnings.
# --monkey MINUTES plays with library and tool at random, side by side for that long, under the sanitizers.
# --coverage prints how many lines of each file the tests reach.

set -uo pipefail
cd "$(dirname "$0")" || exit 1

usage() {
    echo "usage: ./test.sh [--all | --coverage | --monkey MINUTES]" >&2
    exit 2
}

. packaging/debian-packages.sh
packages="$packages_build $packages_test"
passed_over="--label-exclude thorough"
case "${1:-}" in
"") presets=(dev) ;;
--all)
    presets=(dev dev-qt5 asan tsan)
    packages="$packages_test_all $packages"
    passed_over=""
    ;;
--coverage)
    presets=(coverage)
    find build/coverage -name '*.gcda' -delete 2>/dev/null # what former runs reached
    packages="$packages_coverage $packages"
    ;;
--monkey)
    presets=()
    [[ ${2:-} =~ ^[1-9][0-9]*$ ]] || usage
    ;;
*) usage ;;
esac
# shellcheck disable=SC2086
install_packages $packages || exit 1

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

# play MINUTES: library and tool in random hands; a run that fails prints the command that plays it again.
play() {
    local minutes=$1 monkeys=(monkey_library monkey_tool) players=() monkey i
    if ! { cmake --preset asan && cmake --build --preset asan --target "${monkeys[@]}"; }; then
        failed+=("asan (build)")
        return
    fi
    . build/asan/test-environment.sh
    for monkey in "${monkeys[@]}"; do
        $fixed_addresses "build/asan/bin/$monkey" --minutes "$minutes" > >(sed -u "s/^/$monkey: /") &
        players+=($!)
    done
    for i in "${!monkeys[@]}"; do
        wait "${players[i]}" || failed+=("${monkeys[i]}")
    done
}

print_coverage() {
    gcovr --root . --filter include/ --filter src/ --filter tools/ build/coverage || failed+=("gcovr")
}

for preset in "${presets[@]}"; do
    run_tests "$preset"
done
case "${1:-}" in
--all) check_clang_warnings ;;
--coverage) print_coverage ;;
--monkey) play "$2" ;;
esac

printf '\n'
[ ${#summary[@]} -eq 0 ] || printf '%s\n' "${summary[@]}"
if [ ${#failed[@]} -gt 0 ]; then
    printf 'FAILED: %s\n' "${failed[@]}"
    exit 1
fi
