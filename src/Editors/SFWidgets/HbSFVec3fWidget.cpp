// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFVec3fWidget.h>

#include "Components.h"
#include "support/FieldWatch.h"
#include "support/TranslatedTexts.h"

#include <Inventor/fields/SoSFVec3f.h>

HbSFVec3fWidget::HbSFVec3fWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent,
                                 const char *name, Qt::WindowFlags flags)
    : HbSFieldWidget(label, manager, parent, name ? name : "HbSFVec3fWidget", flags)
{
    initClass();
}

HbSFVec3fWidget::HbSFVec3fWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                                 Qt::WindowFlags flags)
    : HbSFVec3fWidget(nullptr, manager, parent, name, flags)
{
}

HbSFVec3fWidget::~HbSFVec3fWidget() = default;

void HbSFVec3fWidget::initClass()
{
    setEditLayout("SF3fBoxHMargin", "SF3fBoxHSpacing");
    for (std::size_t i = 0; i < m_edits.size(); ++i)
        buildComponent(m_edits[i], m_labels[i]);
    (new TranslatedTexts(this))->call([this] {
        const QString texts[]
            = {HbSFieldWidget::tr("<p>x</p>"), HbSFieldWidget::tr("<p>y</p>"), HbSFieldWidget::tr("<p>z</p>")};
        const QString names[] = {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z")};
        for (std::size_t i = 0; i < m_edits.size(); ++i)
            Components::setLabel(m_labels[i], m_edits[i], texts[i], names[i]);
    });
}

void HbSFVec3fWidget::buildComponent(QLineEdit *&edit, QLabel *&label)
{
    auto *const column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(nscsettings_fieldEditor(QStringLiteral("SF3fBoxVSpacing")));
    column->setObjectName(QStringLiteral("SFVec3fLayout"));
    label = Components::newControl<QLabel>(m_editionFrame, "SFVec3fLabel", "SFVecLabelHeight");
    edit = Components::newFloatEdit(m_editionFrame, "SFVec3fLine");
    edit->setAlignment(Qt::AlignLeft);
    Components::add(column, label, edit, m_editLayout);
    commitOnReturn(edit);
}

void HbSFVec3fWidget::refresh()
{
    if (const auto *const vector = fieldCast<SoSFVec3f>(editedField()))
        Components::show(m_edits, vector->getValue().getValue());
    HbSFieldWidget::refresh();
}

void HbSFVec3fWidget::applyChanges()
{
    if (auto *const vector = fieldCast<SoSFVec3f>(editedField()))
        vector->setValue(Components::numbers(m_edits).data());
}

bool HbSFVec3fWidget::edited()
{
    return Components::isEdited(m_edits);
}
