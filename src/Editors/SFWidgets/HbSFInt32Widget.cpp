// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFInt32Widget.h>

#include "IntegerWidgets.h"

HbSFInt32Widget::HbSFInt32Widget(const char *label, const HbRangeComponent &range, HbFieldEditorCommandManager *manager,
                                 QWidget *parent, const char *name, Qt::WindowFlags flags)
    : HbSFieldWidget(label, Int32SliderFrame, manager, parent, name ? name : "HbSFInt32Widget", flags),
      m_slider(IntegerWidgets::limitedSlider<HbIntSlider>(m_editionFrame, range))
{
}

HbSFInt32Widget::HbSFInt32Widget(const HbRangeComponent &range, HbFieldEditorCommandManager *manager, QWidget *parent,
                                 const char *name, Qt::WindowFlags flags)
    : HbSFInt32Widget(nullptr, range, manager, parent, name, flags)
{
}

HbSFInt32Widget::~HbSFInt32Widget() = default;

void HbSFInt32Widget::refresh()
{
    IntegerWidgets::show<SoSFInt32>(editedField(), *m_slider);
    HbSFieldWidget::refresh();
}

void HbSFInt32Widget::applyChanges()
{
    IntegerWidgets::write(editedField(), m_slider->getIntValue());
}

bool HbSFInt32Widget::edited()
{
    return m_slider->isEdited();
}
