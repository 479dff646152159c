#!/bin/sh
# SPDX-FileCopyrightText: 2026 The HarborAPI authors
# SPDX-License-Identifier: BSD-3-Clause
#
# plugins.sh NODESCOPE DIRECTORY SCENE: whether the tool loads the example plug-ins below DIRECTORY and releases them.

set -eu
log=$(NSC_NO_PLUGINS=false NSC_PLUGINS_DIRECTORY=$2 QT_LOGGING_RULES=harbor.plugins.debug=true \
    "$1" --select Front --screenshot "$2/plugins.png" "$3" 2>&1)
echo "$log"
for plugin in Template CameraEditor SceneStatistics; do
    echo "$log" | grep "libNsc_$plugin.so is open"
    echo "$log" | grep "libNsc_$plugin.so is closed"
done
! echo "$log" | grep "Could not"
