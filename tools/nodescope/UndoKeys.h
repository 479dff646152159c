// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef UNDOKEYS_H
#define UNDOKEYS_H

#include <QKeyEvent>

/// Undo and redo in an edit are not the edit's own but the application's. True if @p event was such a key.
inline bool leaveToApplication(QEvent &event)
{
    if (event.type() != QEvent::ShortcutOverride)
        return false;
    auto &key = static_cast<QKeyEvent &>(event);
    if (!key.matches(QKeySequence::Undo) && !key.matches(QKeySequence::Redo))
        return false;
    key.ignore();
    return true;
}

#endif
