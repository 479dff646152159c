// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFShortWidget.h>

#include "IntegerWidgets.h"

HbSFShortWidget::HbSFShortWidget(const char *label, const HbRangeComponent &range, HbFieldEditorCommandManager *manager,
                                 QWidget *parent, const char *name, Qt::WindowFlags flags)
    : HbSFieldWidget(label, Int16SliderFrame, manager, parent, name ? name : "HbSFShortWidget", flags),
      m_slider(IntegerWidgets::limitedSlider<HbIntSlider>(m_editionFrame, range))
{
}

HbSFShortWidget::HbSFShortWidget(const HbRangeComponent &range, HbFieldEditorCommandManager *manager, QWidget *parent,
                                 const char *name, Qt::WindowFlags flags)
    : HbSFShortWidget(nullptr, range, manager, parent, name, flags)
{
}

HbSFShortWidget::~HbSFShortWidget() = default;

void HbSFShortWidget::refresh()
{
    IntegerWidgets::show<SoSFShort>(editedField(), *m_slider);
    HbSFieldWidget::refresh();
}

void HbSFShortWidget::applyChanges()
{
    IntegerWidgets::write(editedField(), m_slider->getIntValue());
}

bool HbSFShortWidget::edited()
{
    return m_slider->isEdited();
}
