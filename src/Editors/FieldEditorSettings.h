// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef FIELDEDITORSETTINGS_H
#define FIELDEDITORSETTINGS_H

class QString;

/// A layout constant of the editors in pixels (points for "labelPointSize"); 0 for an unknown key.
/// Keys are case-sensitive. Called from the GUI thread.
int nscsettings_fieldEditor(const QString &key);

#endif
