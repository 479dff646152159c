// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBRANGESETTINGS_H
#define HBRANGESETTINGS_H

#include <HbRangeComponent.h>

#include <QMap>
#include <QString>

/**
 * The known ranges of certain fields of certain node classes.
 *
 * No editor looks here by itself: a host asks and passes the range on. The rows of the node class
 * "DefaultNode", fields "floatField" and "intField", are meant for fields that have no row of their own.
 */
class HARBORAPI_EXPORT HbRangeSettings
{
public:
    HbRangeSettings();

    /// Whether there is a range for the field. Class and field name are joined without a separator.
    bool isBounded(const char *nodeName, const char *fieldName) const;
    /// The field's range, or one of zeros, not fixed.
    HbRangeComponent getFieldRange(const char *nodeName, const char *fieldName) const;
    /// The base of an integer text: 16 for "0x...", 8 for "0" and one digit, else 10.
    int checkBase(QString text) const;

private:
    QMap<QString, HbRangeComponent> m_ranges;
};

#endif
