// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "DeletionWatch.h"

#include <Inventor/SoDB.h>

void ensureCoinStarted()
{
    if (!SoDB::isInitialized())
        SoDB::init();
}
