// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef ROWTEXTCACHE_H
#define ROWTEXTCACHE_H

#include <QByteArray>
#include <QHash>
#include <QString>

#include <Inventor/fields/SoMField.h>
#include <Inventor/sensors/SoFieldSensor.h>

/**
 * Texts of a field that take long to make.
 *
 * They are dropped whenever the field changes. A field may also change in silence: a text is kept only as long as its
 * stamp, say the bytes that it tells, is the same, and without a stamp only a long one.
 */
class RowTextCache
{
public:
    RowTextCache() : m_sensor(fieldChanged, this) { m_sensor.setPriority(0); }

    /// The text kept for @p row of @p field, or what @p make gives. The stamp may be raw data.
    template <class Make> QString text(SoMField &field, int row, const Make &make, const QByteArray &stamp = {})
    {
        if (m_sensor.getAttachedField() != &field) {
            m_texts.clear();
            m_sensor.detach();
            m_sensor.attach(&field);
        }
        const auto kept = m_texts.constFind(row);
        if (kept != m_texts.constEnd() && kept->stamp == stamp)
            return kept->text;
        const QString text = make();
        if (m_texts.size() >= mostTexts)
            m_texts.clear();
        if (!stamp.isEmpty() || text.size() >= manyCharacters)
            m_texts.insert(row, {text, QByteArray(stamp.constData(), stamp.size())});
        return text;
    }

    void clear() { m_texts.clear(); }

private:
    struct Text {
        QString text;
        QByteArray stamp;
    };
    static constexpr int mostTexts = 1000; ///< more rows than a screen shows
    static constexpr int manyCharacters = 4096;
    static void fieldChanged(void *self, SoSensor *) { static_cast<RowTextCache *>(self)->m_texts.clear(); }

    QHash<int, Text> m_texts;
    SoFieldSensor m_sensor;
};

#endif
