// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef ROWTEXTCACHE_H
#define ROWTEXTCACHE_H

#include <QHash>
#include <QString>

#include <Inventor/fields/SoMField.h>
#include <Inventor/sensors/SoFieldSensor.h>

/// Texts of a field that take long to make; dropped whenever the field changes.
class RowTextCache
{
public:
    RowTextCache() : m_sensor(fieldChanged, this) { m_sensor.setPriority(0); }

    /// The text kept for @p row of @p field, or what @p make gives.
    template <class Make> QString text(SoMField &field, int row, const Make &make)
    {
        if (m_sensor.getAttachedField() != &field) {
            m_texts.clear();
            m_sensor.detach();
            m_sensor.attach(&field);
        }
        const auto kept = m_texts.constFind(row);
        if (kept != m_texts.constEnd())
            return *kept;
        if (m_texts.size() >= mostTexts)
            m_texts.clear();
        return *m_texts.insert(row, make());
    }

    void clear() { m_texts.clear(); }

private:
    static constexpr int mostTexts = 1000; ///< more rows than a screen shows
    static void fieldChanged(void *self, SoSensor *) { static_cast<RowTextCache *>(self)->m_texts.clear(); }

    QHash<int, QString> m_texts;
    SoFieldSensor m_sensor;
};

#endif
