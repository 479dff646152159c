// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Areas.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>

Areas::Areas(QWidget *tree, QWidget *view, QWidget *panel) : QObject(panel), m_tree(tree), m_view(view), m_panel(panel)
{
    panel->installEventFilter(this);
}

void Areas::addTo(QMenu &menu)
{
    const auto add = [&](const QString &text, const QKeySequence &key, int direction) {
        QAction *const action = menu.addAction(text);
        action->setShortcut(key);
        action->setShortcutContext(Qt::ApplicationShortcut); // a dock may float
        connect(action, &QAction::triggered, this, [this, direction] { go(direction); });
    };
    add(tr("&Next Area"), Qt::Key_F6, 1);
    add(tr("&Previous Area"), Qt::SHIFT | Qt::Key_F6, -1);
    menu.addSeparator();
}

void Areas::go(int direction)
{
    const QList<QWidget *> areas{m_tree, m_view, m_panel};
    const int count = static_cast<int>(areas.size());
    QWidget *const focused = QApplication::focusWidget();
    int here = direction > 0 ? -1 : 0; // from elsewhere the first or the last is next; the search line is the tree's
    for (int i = 0; i < count; ++i) {
        if (focused && areas[i] && (areas[i] == focused || areas[i]->isAncestorOf(focused)))
            here = i;
    }
    for (int step = 1; step <= count; ++step) {
        const int next = (here + direction * step + count + count) % count;
        if (QWidget *const widget = entrance(areas[next])) {
            widget->window()->activateWindow();
            widget->setFocus(direction > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return;
        }
    }
}

/// Where the keyboard was there before, or the first place for it.
QWidget *Areas::entrance(QWidget *area) const
{
    if (!area || !area->isVisible() || area != m_panel)
        return area && area->isVisible() ? area : nullptr;
    const auto takesKeys = [area](const QWidget *widget) {
        return widget && area->isAncestorOf(widget) && widget->isVisible() && widget->isEnabled()
            && (widget->focusPolicy() & Qt::TabFocus);
    };
    if (takesKeys(area->focusWidget()))
        return area->focusWidget();
    QWidget *widget = area->nextInFocusChain();
    while (widget != area && !takesKeys(widget))
        widget = widget->nextInFocusChain();
    return widget == area ? nullptr : widget;
}

/// The key comes here when nothing inside had a use for it.
bool Areas::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape || !m_tree)
        return false;
    m_tree->window()->activateWindow();
    m_tree->setFocus(Qt::OtherFocusReason);
    return true;
}
