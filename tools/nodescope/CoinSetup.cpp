// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "CoinSetup.h"

#include "NamedFiles.h"
#include "SceneCameras.h"
#include "ShapeGuard.h"
#include "TickingRotor.h"
#include "ViewPickAction.h"
#include "ViewRenderAction.h"

#include <Inventor/SoInteraction.h>
#include <Inventor/nodekits/SoBaseKit.h>

#include <QByteArray>

void setUpCoin(bool allowNodeLibraries)
{
    if (allowNodeLibraries)
        qunsetenv("COIN_NO_SOTYPE_DYNLOAD");
    else
        qputenv("COIN_NO_SOTYPE_DYNLOAD", QByteArray("1"));
    qunsetenv("COIN_ALLOW_SPIDERMONKEY");

    SoInteraction::init();
    SoBaseKit::setSearchingChildren(TRUE); // a camera or light inside a kit counts
    ViewRenderAction::initClass();
    ViewPickAction::initClass();
    passOverSceneCameras();
    ShapeGuard::guardShapes();
    TickingRotor::replaceRotor();
    guardNamedFiles();
}
