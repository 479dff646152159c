// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SEARCHLINE_H
#define SEARCHLINE_H

#include <QWidget>

class QLabel;
class QLineEdit;
class SceneSearch;
class SceneTree;

/// A line over the tree that finds nodes by type and name: Return goes to the next, Shift+Return to the previous one.
class SearchLine : public QWidget
{
    Q_OBJECT

public:
    /// The tree is not owned.
    explicit SearchLine(SceneTree *tree, QWidget *parent = nullptr);

    /// Takes the keyboard.
    void activate();
    void clear();
    void goToNext() { go(1); }
    void goToPrevious() { go(-1); }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void go(int direction);
    void selectionChanged();
    void count();
    void showCount(const SceneSearch &search);

    SceneTree *m_tree;
    QLineEdit *m_edit;
    QLabel *m_count;
    bool m_isGoing = false;
};

#endif
