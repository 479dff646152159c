// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "SaveLosses.h"

#include "SourceText.h"

#include <QCoreApplication>

#include <algorithm>

SaveLosses SaveLosses::between(const SourceText &source, const SourceText &written)
{
    SaveLosses losses;
    losses.comments = source.comments();
    losses.connections = std::max(0, source.connections() - written.connections());
    losses.drivenValues = source.connections() - losses.connections + source.movingNodes();
    return losses;
}

QStringList SaveLosses::lines() const
{
    const auto tr = [](const char *text) { return QCoreApplication::translate("SaveLosses", text); };
    QStringList lines;
    const auto add = [&](int count, const char *one, const char *many) {
        if (count > 0)
            lines.append(count == 1 ? tr(one) : tr(many).arg(count));
    };
    add(comments, "1 comment", "%1 comments");
    add(connections, "1 connection of a field, which is not written again",
        "%1 connections of fields, which are not written again");
    add(drivenValues, "the stored value of 1 driven field: that of this moment is written",
        "the stored values of %1 driven fields: those of this moment are written");
    return lines;
}
