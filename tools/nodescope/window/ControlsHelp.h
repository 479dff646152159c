// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef CONTROLSHELP_H
#define CONTROLSHELP_H

class QWidget;

/// Shows a small window that tells what mouse and keys do.
void showControlsHelp(QWidget *parent);

#endif
