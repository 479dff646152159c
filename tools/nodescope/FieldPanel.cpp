// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FieldPanel.h"

#include "CoinRef.h"
#include "FieldObserver.h"
#include "FieldRow.h"
#include "FieldText.h"

#include <QApplication>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

#include <Inventor/lists/SoFieldList.h>
#include <Inventor/nodes/SoNode.h>

#include <algorithm>

namespace
{
std::vector<SoField *> fieldsOf(const SoNode *node)
{
    SoFieldList list;
    const int count = node ? node->getFields(list) : 0;
    std::vector<SoField *> fields;
    for (int i = 0; i < count; ++i)
        fields.push_back(list[i]);
    return fields;
}
} // namespace

FieldPanel::FieldPanel(QUndoStack *stack, QWidget *parent)
    : TitledArea(parent), m_stack(stack), m_observer(new FieldObserver(this))
{
    connect(m_observer, &FieldObserver::fieldChanged, this, &FieldPanel::followField);
    connect(m_observer, &FieldObserver::nodeChanged, this, &FieldPanel::followAll);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { showFocus(now); });
    showTitle();
}

FieldPanel::~FieldPanel()
{
    disconnect(qApp, nullptr, this, nullptr); // the focus still moves while the children die
    m_observer->watch(nullptr);
    for (FieldRow *const row : m_rows)
        row->release();
}

void FieldPanel::setNode(SoNode *node)
{
    if (node == m_node.get()) {
        followAll();
        return;
    }
    finish();
    const std::shared_ptr<SoNode> previous = std::exchange(m_node, coinRef(node)); // until its rows let go
    m_observer->watch(node);
    const std::vector<SoField *> fields = fieldsOf(node);
    const bool isSameClass = node && previous && node->getTypeId() == previous->getTypeId();
    if (!isSameClass || !reuse(fields))
        rebuild(fields);
    showTitle();
}

void FieldPanel::finish()
{
    for (FieldRow *const row : m_rows)
        row->finish();
}

/// Classes read from a file may differ in the fields of their nodes.
bool FieldPanel::reuse(const std::vector<SoField *> &fields)
{
    const bool fits = std::equal(fields.begin(), fields.end(), m_rows.begin(), m_rows.end(),
                                 [](const SoField *field, const FieldRow *row) { return row->fits(*field); });
    if (!fits)
        return false;
    for (size_t i = 0; i < fields.size(); ++i)
        m_rows[i]->setField(*fields[i]);
    return true;
}

void FieldPanel::rebuild(const std::vector<SoField *> &fields)
{
    removeRows();
    auto *const page = new QWidget; // built out of sight, laid out once
    auto *const layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (SoField *const field : fields) {
        auto *const row = new FieldRow(*field, m_stack, page);
        connect(row, &FieldRow::message, this, &FieldPanel::message);
        layout->addWidget(row->widget());
        row->widget()->show();
        m_rows.push_back(row);
    }
    layout->addStretch(1);
    alignLabels();
    m_area->setWidget(page);
}

void FieldPanel::removeRows()
{
    for (FieldRow *const row : m_rows)
        row->release();
    m_rows.clear();
    if (QWidget *const page = m_area->takeWidget()) {
        page->hide();
        page->deleteLater(); // one of its editors may be what called us
    }
}

void FieldPanel::alignLabels()
{
    int width = 0;
    for (const FieldRow *const row : m_rows)
        width = std::max(width, row->labelWidth());
    for (FieldRow *const row : m_rows)
        row->setLabelWidth(width);
}

void FieldPanel::showTitle()
{
    if (!m_node) {
        m_title->setText(tr("No node selected"));
        return;
    }
    QString title = FieldText::typeName(*m_node);
    if (const SbName name = m_node->getName(); name.getLength() > 0)
        title += QLatin1Char(' ') + QString::fromLatin1(name.getString());
    m_title->setText(m_rows.empty() ? tr("%1 has no fields").arg(title) : title);
}

void FieldPanel::showFocus(const QWidget *focused)
{
    for (FieldRow *const row : m_rows)
        row->setFocused(focused && row->widget()->isAncestorOf(focused));
}

QWidget *FieldPanel::editorOf(const QString &fieldName) const
{
    const SoField *const field = m_node ? m_node->getField(fieldName.toLatin1().constData()) : nullptr;
    const FieldRow *const row = field ? rowOf(field) : nullptr;
    return row ? row->widget() : nullptr;
}

FieldRow *FieldPanel::rowOf(const SoField *field) const
{
    const auto row = std::find_if(m_rows.begin(), m_rows.end(), [=](const FieldRow *r) { return r->field() == field; });
    return row != m_rows.end() ? *row : nullptr;
}

void FieldPanel::followField(const SoField *field)
{
    if (FieldRow *const row = rowOf(field))
        row->follow();
}

void FieldPanel::followAll()
{
    for (FieldRow *const row : m_rows)
        row->follow();
}
