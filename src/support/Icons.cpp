// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Icons.h"

#include "resources/ignorefield.xpm"
#include "resources/settodefault.xpm"

#include <QPixmapCache>

namespace
{
/// Reading an XPM costs more than the rest of a small editor; the cache shares it among all editors.
QPixmap cached(const char *key, const char *const *xpm)
{
    QPixmap pixmap;
    const QString name = QLatin1String("HarborAPI/") + QLatin1String(key);
    if (!QPixmapCache::find(name, &pixmap)) {
        pixmap = QPixmap(xpm);
        QPixmapCache::insert(name, pixmap);
    }
    return pixmap;
}
} // namespace

QPixmap Icons::setToDefault()
{
    return cached("settodefault", settodefault_xpm);
}

QPixmap Icons::ignoreField()
{
    return cached("ignorefield", ignorefield_xpm);
}
