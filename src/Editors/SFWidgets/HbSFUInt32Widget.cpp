// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFUInt32Widget.h>

#include "IntegerWidgets.h"

#include <Inventor/fields/SoSFUInt32.h>

HbSFUInt32Widget::HbSFUInt32Widget(const char *label, const HbRangeComponent &range,
                                   HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                                   Qt::WindowFlags flags)
    : HbSFieldWidget(label, UInt32SliderFrame, manager, parent, name ? name : "HbSFUInt32Widget", flags),
      m_slider(IntegerWidgets::limitedSlider<HbUIntSlider>(m_editionFrame, range))
{
}

HbSFUInt32Widget::HbSFUInt32Widget(const HbRangeComponent &range, HbFieldEditorCommandManager *manager, QWidget *parent,
                                   const char *name, Qt::WindowFlags flags)
    : HbSFUInt32Widget(nullptr, range, manager, parent, name, flags)
{
}

HbSFUInt32Widget::~HbSFUInt32Widget() = default;

void HbSFUInt32Widget::refresh()
{
    IntegerWidgets::show<SoSFUInt32>(editedField(), *m_slider);
    HbSFieldWidget::refresh();
}

void HbSFUInt32Widget::applyChanges()
{
    IntegerWidgets::write(editedField(), m_slider->getUIntValue());
}

bool HbSFUInt32Widget::edited()
{
    return m_slider->isEdited();
}
