// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "PathExpansion.h"

#include <QRegularExpression>

QByteArray PathExpansion::expand(const QByteArray &path)
{
    static const QRegularExpression reference(QStringLiteral("\\$(?:([A-Za-z_]\\w*)|\\{([A-Za-z_]\\w*)\\})"));
    const QString text = QString::fromLatin1(path); // a character for each byte
    QByteArray expanded;
    int rest = 0;
    for (auto matches = reference.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const QByteArray value = qgetenv((match.captured(1) + match.captured(2)).toLatin1().constData());
        if (value.isEmpty())
            return {};
        expanded += path.mid(rest, int(match.capturedStart()) - rest) + value;
        rest = int(match.capturedEnd());
    }
    return expanded + path.mid(rest);
}

QByteArray PathExpansion::baseName(const QByteArray &path)
{
    return path.mid(path.lastIndexOf('/') + 1);
}
