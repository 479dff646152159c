// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef CONTROLLOCK_H
#define CONTROLLOCK_H

#include <QObject>

#include <functional>
#include <vector>

class QAbstractItemView;

/// Makes the controls of an editor read-only, of whatever kind they are: what they show can still be selected and
/// copied.
class ControlLock : public QObject
{
    Q_OBJECT

public:
    explicit ControlLock(QWidget &editor);

    bool isLocked() const { return m_locked; }
    /// Unlocked controls are what they were before.
    void setLocked(bool locked);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void lock(QWidget *control);
    void lockTable(QAbstractItemView *table);
    template <class Control> void change(Control *control, void (Control::*set)(bool), bool to);

    QWidget &m_editor;
    bool m_locked = false;
    std::vector<std::function<void()>> m_changes; ///< each takes one back
};

#endif
