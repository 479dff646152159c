// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFVec2fWidget.h>

#include "Components.h"
#include "support/FieldWatch.h"
#include "support/TranslatedTexts.h"

#include <Inventor/fields/SoSFVec2f.h>

HbSFVec2fWidget::HbSFVec2fWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent,
                                 const char *name, Qt::WindowFlags flags)
    : HbSFieldWidget(label, manager, parent, name ? name : "HbSFVec2fWidget", flags)
{
    initClass();
}

HbSFVec2fWidget::HbSFVec2fWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                                 Qt::WindowFlags flags)
    : HbSFVec2fWidget(nullptr, manager, parent, name, flags)
{
}

HbSFVec2fWidget::~HbSFVec2fWidget() = default;

void HbSFVec2fWidget::initClass()
{
    setEditLayout("SF2BoxHMargin", "SF2BoxHSpacing");
    for (std::size_t i = 0; i < m_edits.size(); ++i)
        buildComponent(m_edits[i], m_labels[i]);
    (new TranslatedTexts(this))->call([this] {
        const QString texts[] = {HbSFieldWidget::tr("<p>x</p>"), HbSFieldWidget::tr("<p>y</p>")};
        const QString names[] = {QStringLiteral("x"), QStringLiteral("y")};
        for (std::size_t i = 0; i < m_edits.size(); ++i)
            Components::setLabel(m_labels[i], m_edits[i], texts[i], names[i]);
    });
}

void HbSFVec2fWidget::buildComponent(QLineEdit *&edit, QLabel *&label)
{
    auto *const column = new QVBoxLayout;
    // deliberately the row's and not the column's
    m_editLayout->setContentsMargins(0, 0, 0, 0);
    m_editLayout->setSpacing(nscsettings_fieldEditor(QStringLiteral("SF2BoxVSpacing")));
    m_editLayout->setObjectName(QStringLiteral("SFVec2fLayout"));
    label = Components::newControl<QLabel>(m_editionFrame, "SFVec2fLabel", "SFVecLabelHeight");
    edit = Components::newFloatEdit(m_editionFrame, "SFVec2fBox");
    Components::add(column, label, edit, m_editLayout);
    commitOnReturn(edit);
}

void HbSFVec2fWidget::refresh()
{
    if (const auto *const vector = fieldCast<SoSFVec2f>(editedField()))
        Components::show(m_edits, vector->getValue().getValue());
    HbSFieldWidget::refresh();
}

void HbSFVec2fWidget::applyChanges()
{
    if (auto *const vector = fieldCast<SoSFVec2f>(editedField()))
        vector->setValue(Components::numbers(m_edits).data());
}

bool HbSFVec2fWidget::edited()
{
    return Components::isEdited(m_edits);
}
