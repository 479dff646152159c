#!/bin/sh
# SPDX-FileCopyrightText: 2026 The HarborAPI authors
# SPDX-License-Identifier: BSD-3-Clause
#
# Runs a command under a virtual X server of its own, which takes a free display by itself, so that many can start at
# once: virtual-display.sh COMMAND [ARGUMENT...]

number=$(mktemp)
Xvfb -displayfd 3 -screen 0 1600x1000x24 +extension GLX -nolisten tcp 3>"$number" 2>/dev/null &
server=$!
trap 'kill $server 2>/dev/null; rm -f "$number"' EXIT
until [ -s "$number" ]; do
    kill -0 $server 2>/dev/null || { echo "Xvfb does not start" >&2; exit 1; }
    sleep 0.05
done
DISPLAY=:$(cat "$number") "$@"
