// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "SearchLine.h"

#include "CoinRef.h"
#include "NodeQuery.h"
#include "SceneSearch.h"
#include "SceneTree.h"
#include "UndoKeys.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>

#include <Inventor/nodes/SoNode.h>

namespace
{
/// Anew each time: it takes no longer than a person notices, and the scene may have changed.
SceneSearch searchFor(const QString &text, const SceneTree &tree)
{
    const NodeQuery query(text);
    return {query.isEmpty() ? nullptr : tree.root(), query};
}
} // namespace

SearchLine::SearchLine(SceneTree *tree, QWidget *parent)
    : QWidget(parent), m_tree(tree), m_edit(new QLineEdit(this)), m_count(new QLabel(this))
{
    m_edit->setObjectName(QStringLiteral("searchEdit"));
    m_edit->setPlaceholderText(tr("Find type or name"));
    m_edit->setAccessibleName(m_edit->placeholderText());
    m_edit->setToolTip(tr("Finds nodes by their type, what derives from it, and their name.\n"
                          "Return goes to the next one, Shift+Return to the previous one, Escape to the tree."));
    m_edit->setClearButtonEnabled(true);
    QPalette palette = m_edit->palette();
    QColor quiet = palette.color(QPalette::Text);
    quiet.setAlphaF(0.5F);
    palette.setColor(QPalette::PlaceholderText, quiet); // some desktops' dark themes leave it black
    m_edit->setPalette(palette);
    m_edit->installEventFilter(this);
    m_count->setObjectName(QStringLiteral("searchCount"));
    m_count->hide();
    auto *const line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(m_edit, 1);
    line->addWidget(m_count);
    m_count->setIndent(0);
    m_count->setContentsMargins(0, 0, fontMetrics().averageCharWidth(), 0);
    connect(m_edit, &QLineEdit::textChanged, this, &SearchLine::count);
    connect(tree, &SceneTree::nodeSelected, this, &SearchLine::selectionChanged);
    connect(tree, &SceneTree::newSceneGraph, this, &SearchLine::count);
}

void SearchLine::activate()
{
    m_edit->setFocus(Qt::ShortcutFocusReason);
    m_edit->selectAll();
}

void SearchLine::clear()
{
    m_edit->clear();
}

void SearchLine::go(int direction)
{
    const std::shared_ptr<SoNode> root = coinRef(m_tree->root()); // what is selected may open another scene
    const SceneSearch search = searchFor(m_edit->text(), *m_tree);
    if (search.count() == 0)
        return;
    const ScenePath here = m_tree->pathOf(m_tree->currentItem());
    qint64 number = search.countBefore(here);
    if (direction < 0)
        --number;
    else if (search.isMatch(here))
        ++number;
    {
        const QScopedValueRollback<bool> going(m_isGoing, true);
        m_tree->select(search.place((number + search.count()) % search.count()));
    }
    if (m_tree->root() == root.get())
        showCount(search);
}

void SearchLine::selectionChanged()
{
    if (!m_isGoing)
        count();
}

void SearchLine::count()
{
    const bool isSearching = !m_edit->text().trimmed().isEmpty();
    m_count->setVisible(isSearching);
    if (isSearching)
        showCount(searchFor(m_edit->text(), *m_tree));
}

void SearchLine::showCount(const SceneSearch &search)
{
    const ScenePath here = m_tree->pathOf(m_tree->currentItem());
    if (search.count() == 0)
        m_count->setText(tr("None"));
    else if (search.isMatch(here))
        m_count->setText(tr("%1 of %2").arg(search.countBefore(here) + 1).arg(search.count()));
    else
        m_count->setText(tr("%1 found").arg(search.count()));
}

/// The line's edit's.
bool SearchLine::eventFilter(QObject *, QEvent *event)
{
    if (leaveToApplication(*event))
        return true;
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto &key = static_cast<const QKeyEvent &>(*event);
    if (key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo))
        return true; // there is no step
    if (key.key() == Qt::Key_Escape)
        m_tree->setFocus(Qt::OtherFocusReason);
    else if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter)
        go(key.modifiers() & Qt::ShiftModifier ? -1 : 1);
    else
        return false;
    return true;
}
