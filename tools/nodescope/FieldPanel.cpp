// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FieldPanel.h"

#include "CoinRef.h"
#include "FieldObserver.h"
#include "FieldRow.h"
#include "FieldText.h"
#include "NodeOrigin.h"
#include "OriginNotice.h"
#include "PanelGrid.h"

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
    : TitledArea(parent), m_stack(stack), m_observer(new FieldObserver(this)), m_notice(new OriginNotice(this)),
      m_grid(new PanelGrid(*m_area, [this] { return widestLabel(); }))
{
    connect(m_observer, &FieldObserver::fieldChanged, this, &FieldPanel::followField);
    connect(m_observer, &FieldObserver::nodeChanged, this, &FieldPanel::followAll);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { showFocus(now); });
    connect(m_notice, &OriginNotice::fileWanted, this, &FieldPanel::fileWanted);
    static_cast<QBoxLayout *>(layout())->insertWidget(1, m_notice);
    showTitle();
}

FieldPanel::~FieldPanel()
{
    disconnect(qApp, nullptr, this, nullptr); // the focus still moves while the children die
    m_observer->watch(nullptr);
    for (FieldRow *const row : m_rows)
        row->release();
}

/// A commit, or the focus that leaves a page, may have somebody ask for another node: then that one is shown.
void FieldPanel::setNode(SoNode *node)
{
    const unsigned request = ++m_requests;
    if (node == m_node.get()) {
        followAll();
        return;
    }
    const std::shared_ptr<SoNode> wanted = coinRef(node);
    finish();
    if (request != m_requests)
        return;
    const std::vector<SoField *> fields = fieldsOf(node);
    const bool isReused = node && m_node && node->getTypeId() == m_node->getTypeId() && fits(fields);
    if (!isReused)
        removePage();
    if (request != m_requests)
        return;
    const std::shared_ptr<SoNode> previous = std::exchange(m_node, wanted); // until its rows let go
    m_observer->watch(node);
    if (isReused)
        reuse(fields);
    else
        rebuild(fields);
    showTitle();
}

void FieldPanel::finish()
{
    for (FieldRow *const row : rows())
        row->finish();
}

/// Classes read from a file may differ in the fields of their nodes.
bool FieldPanel::fits(const std::vector<SoField *> &fields) const
{
    return std::equal(fields.begin(), fields.end(), m_rows.begin(), m_rows.end(),
                      [](const SoField *field, const FieldRow *row) { return row->fits(*field); });
}

void FieldPanel::reuse(const std::vector<SoField *> &fields)
{
    auto field = fields.begin();
    for (FieldRow *const row : rows())
        row->setField(**field++);
}

void FieldPanel::rebuild(const std::vector<SoField *> &fields)
{
    for (FieldRow *const row : std::exchange(m_rows, {}))
        row->release();
    m_grid->clear();
    auto *const page = new QWidget; // built out of sight, laid out once
    auto *const layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (SoField *const field : fields) {
        auto *const row = new FieldRow(*field, m_stack, page);
        connect(row, &FieldRow::message, this, &FieldPanel::message);
        connect(row, &FieldRow::nodeWanted, this, &FieldPanel::nodeWanted);
        layout->addWidget(row->widget());
        m_grid->add(*row->widget());
        row->widget()->show(); // which lays it out
        m_rows.push_back(row);
    }
    layout->addStretch(1);
    m_grid->align();
    m_area->setWidget(page);
    m_grid->orderTabs();
}

/// Its rows go on until others take their place.
void FieldPanel::removePage()
{
    if (QWidget *const page = m_area->takeWidget()) {
        page->hide();
        page->deleteLater(); // one of its editors may be what called us
    }
}

int FieldPanel::widestLabel() const
{
    int width = 0;
    for (const FieldRow *const row : m_rows)
        width = std::max(width, row->labelWidth());
    return width;
}

void FieldPanel::showTitle()
{
    m_notice->show(NodeOrigin::of(m_node.get()));
    if (!m_node) {
        m_title->setText(tr("No node selected"));
        return;
    }
    const QString title = FieldText::nodeName(*m_node);
    m_title->setText(m_rows.empty() ? tr("%1 has no fields").arg(title) : title);
}

void FieldPanel::showFocus(const QWidget *focused)
{
    for (FieldRow *const row : rows())
        row->setFocused(focused && row->widget()->isAncestorOf(focused));
    m_grid->showFocus(focused);
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
    for (FieldRow *const row : rows())
        row->follow();
}
