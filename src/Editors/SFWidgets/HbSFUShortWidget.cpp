// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFUShortWidget.h>

#include "IntegerWidgets.h"

#include <Inventor/fields/SoSFUShort.h>

HbSFUShortWidget::HbSFUShortWidget(const char *label, const HbRangeComponent &range,
                                   HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                                   Qt::WindowFlags flags)
    : HbSFieldWidget(label, UInt16SliderFrame, manager, parent, name ? name : "HbSFUShortWidget", flags),
      m_slider(IntegerWidgets::limitedSlider<HbUIntSlider>(m_editionFrame, range))
{
}

HbSFUShortWidget::HbSFUShortWidget(const HbRangeComponent &range, HbFieldEditorCommandManager *manager, QWidget *parent,
                                   const char *name, Qt::WindowFlags flags)
    : HbSFUShortWidget(nullptr, range, manager, parent, name, flags)
{
}

HbSFUShortWidget::~HbSFUShortWidget() = default;

void HbSFUShortWidget::refresh()
{
    IntegerWidgets::show<SoSFUShort>(editedField(), *m_slider);
    HbSFieldWidget::refresh();
}

void HbSFUShortWidget::applyChanges()
{
    IntegerWidgets::write(editedField(), m_slider->getUIntValue() & 0xffffu);
}

bool HbSFUShortWidget::edited()
{
    return m_slider->isEdited();
}
