// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef AREAS_H
#define AREAS_H

#include <QObject>
#include <QPointer>

class QMenu;
class QWidget;

/// Takes the keyboard round the tree, the view and the panel, and by Escape from the panel to the tree.
class Areas : public QObject
{
    Q_OBJECT

public:
    /// None is owned; @p view may be null.
    Areas(QWidget *tree, QWidget *view, QWidget *panel);

    void addTo(QMenu &menu);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void go(int direction);
    QWidget *entrance(QWidget *area) const;

    QPointer<QWidget> m_tree;
    QPointer<QWidget> m_view;
    QPointer<QWidget> m_panel;
};

#endif
