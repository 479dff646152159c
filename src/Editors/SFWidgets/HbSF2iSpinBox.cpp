// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSF2iSpinBox.h>

#include "Components.h"
#include "support/TranslatedTexts.h"
#include "support/WheelGuard.h"

#include <QSpinBox>

#include <limits>

HbSF2iSpinBox::HbSF2iSpinBox(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                             Qt::WindowFlags flags)
    : HbSFieldWidget(label, manager, parent, name ? name : "HbSF2iSpinBox", flags)
{
    initClass();
}

HbSF2iSpinBox::HbSF2iSpinBox(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                             Qt::WindowFlags flags)
    : HbSF2iSpinBox(nullptr, manager, parent, name, flags)
{
}

HbSF2iSpinBox::~HbSF2iSpinBox() = default;

void HbSF2iSpinBox::initClass()
{
    m_texts = new TranslatedTexts(this);
    setEditLayout("SF2BoxHMargin", "SF2BoxHSpacing");
    for (std::size_t i = 0; i < m_spins.size(); ++i)
        buildComponent(m_spins[i], m_labels[i]);
}

void HbSF2iSpinBox::buildComponent(QSpinBox *&spin, QLabel *&label)
{
    auto *const column = new QVBoxLayout;
    column->setSpacing(nscsettings_fieldEditor(QStringLiteral("SF2BoxVSpacing")));
    column->setObjectName(QStringLiteral("SF2BoxLayout"));
    label = Components::newControl<QLabel>(m_editionFrame, "SF4flabel", "SFVecLabelHeight");
    spin = Components::newControl<QSpinBox>(m_editionFrame, "SF2Box", "SFVecLineHeight");
    ignoreWheelWithoutFocus(spin);
    Components::add(column, label, spin, m_editLayout);
    connect(spin, QOverload<int>::of(&QSpinBox::valueChanged), this, &HbSF2iSpinBox::setCommandValue);
}

void HbSF2iSpinBox::setNameLabels(QString *names)
{
    for (std::size_t i = 0; i < m_spins.size(); ++i) {
        const auto text = [name = names[i]] { return HbSFieldWidget::tr("<p>") + name + HbSFieldWidget::tr("</p>"); };
        m_texts->set(m_labels[i], "text", text);
        m_spins[i]->setAccessibleName(names[i]);
    }
}

void HbSF2iSpinBox::setLimits(int mode)
{
    const auto setRange = [this](int minimum, int maximum) {
        for (QSpinBox *const spin : m_spins) {
            spin->setMinimum(minimum);
            spin->setMaximum(maximum);
        }
    };
    switch (mode) {
    case 0:
        setRange(std::numeric_limits<qint16>::min(), std::numeric_limits<qint16>::max());
        break;
    case 1:
        setRange(std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max());
        break;
    case 2:
        setRange(0, -1); // which a spin box takes for -1 only, deliberately
        break;
    default:
        break;
    }
}
