// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef ROWSTATE_H
#define ROWSTATE_H

#include "ControlLock.h"
#include "DefaultValue.h"

#include <QPointer>

class QLabel;
class QPushButton;
class RowLink;
class SoField;

/**
 * Shows the state of a row's field, each told by form and by colour.
 *
 * Unlike its default: a dot before the label, and the button that sets it back is alive. Ignored: the label is struck
 * through and the controls are dimmed, but alive. Driven: the controls are read-only, and a line below them says by
 * what. Such a line also leads to nodes that the field holds.
 */
class RowState : public QObject
{
    Q_OBJECT

public:
    RowState(QWidget &editor, QLabel &label);

    void show(const SoField &field);
    /// Whether the field differs from its default and can be set to it.
    bool isChanged() const { return m_shown.isChanged && !isLocked(); }
    bool isLocked() const { return m_lock.isLocked(); }

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The line below the row was clicked, which says where the value comes from or which nodes it is.
    void linkClicked();

private:
    struct Shown {
        bool isChanged = false;
        bool isIgnored = false;
        bool isForeign = false; ///< of a node that is not saved with the scene
        QString obstacle;
        QString link;
        bool isLeading = false;

        bool operator==(const Shown &other) const;
    };

    void prepareLabel();
    void align();
    void showLabel();
    void showControls();
    void showLink();
    void insertLink();

    QWidget &m_editor;
    QLabel &m_label;
    QWidget *m_dot;
    QPointer<QPushButton> m_defaultButton;
    QPointer<QPushButton> m_ignoreButton;
    QPointer<RowLink> m_link; ///< made when it is first needed
    ControlLock m_lock;
    DefaultValue m_default;
    Shown m_shown;
};

#endif
