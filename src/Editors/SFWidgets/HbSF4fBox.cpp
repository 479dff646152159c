// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSF4fBox.h>

#include "Components.h"
#include "support/TranslatedTexts.h"

HbSF4fBox::HbSF4fBox(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                     Qt::WindowFlags flags)
    : HbSFieldWidget(label, manager, parent, name ? name : "HbSF4fBox", flags)
{
    initClass();
}

HbSF4fBox::HbSF4fBox(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name, Qt::WindowFlags flags)
    : HbSF4fBox(nullptr, manager, parent, name, flags)
{
}

HbSF4fBox::~HbSF4fBox() = default;

void HbSF4fBox::initClass()
{
    m_texts = new TranslatedTexts(this);
    setEditLayout("SF4fBoxHMargin", "SF4fBoxHSpacing");
    for (std::size_t i = 0; i < m_edits.size(); ++i)
        buildComponent(m_edits[i], m_labels[i]);
}

void HbSF4fBox::buildComponent(QLineEdit *&edit, QLabel *&label)
{
    auto *const column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(nscsettings_fieldEditor(QStringLiteral("SF4fBoxVSpacing")));
    column->setObjectName(QStringLiteral("SF4FvLayout"));
    label = Components::newControl<QLabel>(m_editionFrame, "SF4flabel", "SFVecLabelHeight");
    edit = Components::newFloatEdit(m_editionFrame, "SF4fine"); // spelled so deliberately
    edit->setAlignment(Qt::AlignLeft);
    Components::add(column, label, edit, m_editLayout);
    commitOnReturn(edit);
}

void HbSF4fBox::setNameLabels(QString *names)
{
    for (std::size_t i = 0; i < m_edits.size(); ++i) {
        const auto text = [name = names[i]] { return HbSFieldWidget::tr("<p>") + name + HbSFieldWidget::tr("</p>"); };
        m_texts->set(m_labels[i], "text", text);
        m_edits[i]->setAccessibleName(names[i]);
    }
}

bool HbSF4fBox::edited()
{
    return Components::isEdited(m_edits);
}

void HbSF4fBox::revertCursorPosition()
{
    Components::rewind(m_edits);
}
