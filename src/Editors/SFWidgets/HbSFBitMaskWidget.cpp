// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFBitMaskWidget.h>

#include "support/FieldWatch.h"

#include <QCheckBox>
#include <QHBoxLayout>

#include <Inventor/SbName.h>
#include <Inventor/fields/SoSFBitMask.h>

namespace
{
void lookUp(const SoSFEnum &field, const QString &wanted, int *value)
{
    for (int i = 0; i < field.getNumEnums(); ++i) {
        SbName name;
        const int candidate = field.getEnum(i, name);
        if (wanted != QLatin1String(name.getString()))
            continue;
        *value = candidate;
        return;
    }
}
} // namespace

HbSFBitMaskWidget::HbSFBitMaskWidget(SoField *field, const char *label, HbFieldEditorCommandManager *manager,
                                     QWidget *parent, const char *name, Qt::WindowFlags flags)
    : HbSFieldWidget(label, manager, parent, name ? name : "HbSFBitMaskWidget", flags)
{
    setField(field);
    buildBoxes();
    centreEditionFrame();
}

HbSFBitMaskWidget::HbSFBitMaskWidget(SoField *field, HbFieldEditorCommandManager *manager, QWidget *parent,
                                     const char *name, Qt::WindowFlags flags)
    : HbSFBitMaskWidget(field, nullptr, manager, parent, name, flags)
{
}

HbSFBitMaskWidget::~HbSFBitMaskWidget() = default;

void HbSFBitMaskWidget::buildBoxes()
{
    const auto *const mask = fieldCast<SoSFEnum>(editedField());
    if (!mask)
        return;
    const int value = mask->getValue();
    auto *const column = new QVBoxLayout;
    column->setObjectName(QStringLiteral("SFBitMaskLayout"));
    for (int i = 0; i < mask->getNumEnums(); ++i) {
        SbName name;
        const int bits = mask->getEnum(i, name);
        if (bits == 0)
            continue;
        auto *const box = new QCheckBox(QString::fromLatin1(name.getString()), m_editionFrame);
        box->setObjectName(box->text());
        box->setChecked(value & bits);
        column->addWidget(box);
        connect(box, &QCheckBox::clicked, this, &HbSFBitMaskWidget::setBitMaskValue);
        m_boxes.push_back(box);
    }
    m_editLayout->addLayout(column);
}

void HbSFBitMaskWidget::refresh()
{
    HbSFieldWidget::refresh();
}

void HbSFBitMaskWidget::applyChanges() { }

void HbSFBitMaskWidget::setBitMaskValue()
{
    auto *const mask = fieldCast<SoSFEnum>(editedField());
    if (!mask)
        return;
    int value = 0;
    int bits = 0; // an unknown name has those of the box before, deliberately
    for (auto box = m_boxes.rbegin(); box != m_boxes.rend(); ++box) {
        lookUp(*mask, (*box)->text(), &bits);
        if ((*box)->isChecked())
            value |= bits;
    }
    mask->setValue(value);
}
