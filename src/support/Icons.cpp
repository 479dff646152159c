// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Icons.h"

#include "resources/addrow.xpm"
#include "resources/deleterow.xpm"
#include "resources/edit.xpm"
#include "resources/ignorefield.xpm"
#include "resources/movedown.xpm"
#include "resources/moveup.xpm"
#include "resources/settodefault.xpm"

#include <QPixmapCache>

namespace
{
/// Reading an XPM costs more than the rest of a small editor; the cache shares it among all editors.
QPixmap cached(QPixmapCache::Key *key, const char *const *xpm)
{
    QPixmap pixmap;
    if (!QPixmapCache::find(*key, &pixmap)) {
        pixmap = QPixmap(xpm);
        *key = QPixmapCache::insert(pixmap);
    }
    return pixmap;
}
} // namespace

QPixmap Icons::setToDefault()
{
    static QPixmapCache::Key key;
    return cached(&key, settodefault_xpm);
}

QPixmap Icons::ignoreField()
{
    static QPixmapCache::Key key;
    return cached(&key, ignorefield_xpm);
}

QPixmap Icons::edit()
{
    static QPixmapCache::Key key;
    return cached(&key, edit_xpm);
}

QPixmap Icons::addRow()
{
    static QPixmapCache::Key key;
    return cached(&key, addrow_xpm);
}

QPixmap Icons::deleteRow()
{
    static QPixmapCache::Key key;
    return cached(&key, deleterow_xpm);
}

QPixmap Icons::moveUp()
{
    static QPixmapCache::Key key;
    return cached(&key, moveup_xpm);
}

QPixmap Icons::moveDown()
{
    static QPixmapCache::Key key;
    return cached(&key, movedown_xpm);
}
