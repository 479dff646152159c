#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The HarborAPI authors
# SPDX-License-Identifier: BSD-3-Clause
#
# Makes the pictures of the documents anew with a built nodescope: docs/make-pictures.sh [nodescope [plugins]]
# "plugins" is the directory in which examples/plugins was built. The picture of the window Plug-ins is made by hand.

set -euo pipefail

nodescope=$(realpath -- "${1:-$(dirname "$0")/../build/release/bin/nodescope}")
plugins=${2:+$(realpath -- "$2")}
cd "$(dirname "$0")/.."

. packaging/debian-packages.sh
# shellcheck disable=SC2086
install_packages $packages_run $packages_virtual_display

# The same pictures on every desktop.
export LC_ALL=C.UTF-8 QT_STYLE_OVERRIDE=fusion QT_SCALE_FACTOR=1
unset QT_QPA_PLATFORMTHEME

mkdir -p docs/images/editors

# grab NODE FIELD=CLASS...: the editors of a node's fields
grab() {
    local node=$1 pair
    shift
    local options=()
    for pair in "$@"; do
        options+=(--grab "${pair%%=*}=docs/images/editors/${pair#*=}.png")
    done
    # the rule silences what the platform cannot do, such as raising a window
    QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES="default.warning=false" \
        "$nodescope" --size 1200x800 --select "$node" "${options[@]}" docs/editors.iv
}

grab Light on=HbSFBoolWidget color=HbSFColorWidget
grab Combine constantColor=HbSFVec4fWidget
grab Unit unit=HbSFInt32Widget
grab Style linePattern=HbSFUShortWidget
grab Binding value=HbSFEnumWidget
grab Font name=HbSFNameWidget
grab Note string=HbSFStringWidget
grab Placing translation=HbSFVec3fWidget rotation=HbSFRotationWidget
grab Matrix matrix=HbSFMatrixWidget
grab Section plane=HbSFPlaneWidget
grab Mapping scaleFactor=HbSFVec2fWidget
grab Mirror size=HbSFVec2sWidget
grab Flag image=HbSFImageWidget
grab Row numElements1=HbSFShortWidget
grab Tower height=HbSFFloatWidget parts=HbSFBitMaskWidget
grab Sample mask=HbSFUInt32Widget bounds=HbSFBox3sWidget duration=HbSFLineWidget

grab Points point=HbMFVec3fWidget
grab Faces coordIndex=HbMFInt32Widget
grab Look diffuseColor=HbMFColorWidget shininess=HbMFFloatWidget
grab Sign string=HbMFStringWidget
grab Lists poses=HbMFMatrixWidget turns=HbMFDefaultFieldWidget

# picture FILE SCENE NODE: the whole window
picture() {
    QT_QPA_PLATFORM=xcb xvfb-run -a -s "-screen 0 1600x1000x24 +extension GLX" \
        "$nodescope" --size 1400x850 --select "$3" --screenshot "docs/images/$1.png" "$2"
}

picture nodescope examples/scenes/harbour.iv Sun
if [ -n "$plugins" ]; then
    NSC_NO_PLUGINS=false NSC_PLUGINS_DIRECTORY=$plugins \
        picture plugins/nodescope examples/plugins/camera-editor/photo.iv Front
fi

echo "docs/images: nodescope.png and $(find docs/images/editors -name '*.png' | wc -l) editors"
