// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFFloatWidget.h>

#include "support/FieldWatch.h"

#include <HbRangeComponent.h>
#include <HbRealSlider.h>

#include <Inventor/fields/SoSFFloat.h>

HbSFFloatWidget::HbSFFloatWidget(const char *label, const HbRangeComponent &range, HbFieldEditorCommandManager *manager,
                                 QWidget *parent, const char *name, Qt::WindowFlags flags)
    : HbSFieldWidget(label, RealSliderFrame, manager, parent, name ? name : "HbSFFloatWidget", flags),
      m_slider(static_cast<HbRealSlider *>(m_editionFrame))
{
    m_slider->setValidLimits(range.fMin, range.fMax, range.boundFixed);
}

HbSFFloatWidget::~HbSFFloatWidget() = default;

void HbSFFloatWidget::refresh()
{
    const auto *const number = fieldCast<SoSFFloat>(editedField());
    if (!number)
        return;
    const float value = number->getValue();
    if (value > m_slider->getTop())
        m_slider->setValidLimits(m_slider->getBottom(), value, m_slider->areLimitsLocked());
    if (m_slider->getBottom() > value)
        m_slider->setValidLimits(value, m_slider->getTop(), m_slider->areLimitsLocked());
    m_slider->setRealValue(value);
    HbSFieldWidget::refresh();
}

void HbSFFloatWidget::applyChanges()
{
    if (auto *const number = fieldCast<SoSFFloat>(editedField()))
        number->setValue(m_slider->getRealValue());
}

bool HbSFFloatWidget::edited()
{
    return m_slider->isEdited();
}
