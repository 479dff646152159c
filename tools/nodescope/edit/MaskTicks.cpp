// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "MaskTicks.h"

#include <HbSFBitMaskWidget.h>

#include <QCheckBox>

#include <Inventor/SbName.h>
#include <Inventor/fields/SoSFEnum.h>

#include <utility>

namespace
{
int bitsOf(const QString &wanted, const SoSFEnum &mask)
{
    for (int i = 0; i < mask.getNumEnums(); ++i) {
        SbName name;
        const int bits = mask.getEnum(i, name);
        if (wanted == QLatin1String(name.getString()))
            return bits;
    }
    return 0;
}
} // namespace

MaskTicks::MaskTicks(HbSFBitMaskWidget &editor) : QObject(&editor), m_boxes(editor.findChildren<QCheckBox *>())
{
    for (const QCheckBox *const box : std::as_const(m_boxes)) {
        disconnect(box, &QCheckBox::clicked, &editor, nullptr); // it would write at once
        connect(box, &QCheckBox::clicked, this, [this, box](bool on) { Q_EMIT clicked(box->text(), on); });
    }
}

void MaskTicks::show(const SoSFEnum &mask)
{
    for (QCheckBox *const box : std::as_const(m_boxes)) {
        const int bits = bitsOf(box->text(), mask);
        box->setChecked(bits != 0 && (mask.getValue() & bits) == bits);
    }
}

int MaskTicks::switched(const SoSFEnum &mask, const QString &name, bool on)
{
    const int bits = bitsOf(name, mask);
    return on ? mask.getValue() | bits : mask.getValue() & ~bits;
}
