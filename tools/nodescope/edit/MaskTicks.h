// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef MASKTICKS_H
#define MASKTICKS_H

#include <QList>
#include <QObject>

class HbSFBitMaskWidget;
class QCheckBox;
class SoSFEnum;

/**
 * The boxes of a bit mask's editor, made to tell and to switch exactly the bits of their names.
 *
 * The editor itself ticks a box that shares a bit with the value, and makes the value anew of all boxes at each click.
 */
class MaskTicks : public QObject
{
    Q_OBJECT

public:
    /// Takes over the editor's boxes.
    explicit MaskTicks(HbSFBitMaskWidget &editor);

    /// Ticks the boxes whose bits are all set.
    void show(const SoSFEnum &mask);
    /// The mask's value once the bits of a name are switched.
    static int switched(const SoSFEnum &mask, const QString &name, bool on);

Q_SIGNALS:
    void clicked(const QString &name, bool on);

private:
    QList<QCheckBox *> m_boxes;
};

#endif
