// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbRangeSettings.h>

#include "IntegerText.h"

#include <QByteArray>

namespace
{
struct FieldRange {
    const char *nodeClass;
    const char *field;
    const char *min;
    const char *max;
    const char *type; ///< "f" float, "i" integer
    const char *fixed; ///< "1" hard limit, "0" initial span
};

constexpr FieldRange FieldRangeSettings[] = {
    {"DefaultNode", "floatField", "0.0", "10.0", "f", "0"},    {"DefaultNode", "intField", "0", "100", "i", "0"},
    {"Complexity", "value", "0.0", "1.0", "f", "1"},           {"Complexity", "textureQuality", "0.0", "1.0", "f", "1"},
    {"DirectionalLight", "intensity", "0.0", "1.0", "f", "1"}, {"Material", "transparency", "0.0", "1.0", "f", "1"},
};

/// Without a separator, deliberately.
QString keyOf(const char *nodeName, const char *fieldName)
{
    return QLatin1String(nodeName) + QLatin1String(fieldName);
}

int toInt(const QString &text)
{
    return text.toInt(nullptr, IntegerText::baseOf(text));
}

HbRangeComponent rangeOf(const FieldRange &row)
{
    const QString min = QLatin1String(row.min);
    const QString max = QLatin1String(row.max);
    const QLatin1String type(row.type);
    HbRangeComponent range;
    range.setBoundFixed(QByteArray(row.fixed).toInt() != 0);
    if (type == QLatin1String("f"))
        range.setfRange(min.toFloat(), max.toFloat());
    else if (type == QLatin1String("i"))
        range.setiRange(toInt(min), toInt(max));
    return range;
}
} // namespace

HbRangeSettings::HbRangeSettings()
{
    for (const FieldRange &row : FieldRangeSettings)
        m_ranges.insert(keyOf(row.nodeClass, row.field), rangeOf(row));
}

bool HbRangeSettings::isBounded(const char *nodeName, const char *fieldName) const
{
    return m_ranges.contains(keyOf(nodeName, fieldName));
}

HbRangeComponent HbRangeSettings::getFieldRange(const char *nodeName, const char *fieldName) const
{
    return m_ranges.value(keyOf(nodeName, fieldName));
}

int HbRangeSettings::checkBase(QString text) const
{
    return IntegerText::baseOf(text);
}
