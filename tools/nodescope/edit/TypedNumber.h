// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef TYPEDNUMBER_H
#define TYPEDNUMBER_H

#include "NumberForm.h"

#include <QLineEdit>
#include <QObject>
#include <QPointer>

class QFocusEvent;
class QKeyEvent;
class QSpinBox;
class QValidator;
class RefusedFrame;

/**
 * Lets a number be typed in an edit of the library as a person means it, and stepped by Up and Down.
 *
 * The edit takes every character. Before its editor reads it, on Return and when it is left, the plain number takes the
 * place of the expression. What cannot be read is framed in red, says why, and is never handed on.
 */
class TypedNumber : public QObject
{
    Q_OBJECT

public:
    enum class Place {
        Field, ///< commits on Return and when it is left
        Cell, ///< an edit over a cell of a table, whose text the table's manager reads itself
        Grid ///< in a popup of a table: the library would commit every keystroke
    };

    /// Lives as long as @p edit.
    TypedNumber(QLineEdit &edit, const NumberForm &form, Place place);

    /// Takes the place of a validator that the editor has set.
    void keepValidator();
    /// Whether something was typed that is not committed yet.
    bool isPending() const;
    /// Puts the plain number in the place of what was typed. False, and says why, where it cannot be read.
    bool settle();
    /// Whether nobody else commits it when the editor is to end.
    bool isCommittedByTool() const { return m_spin || m_place == Place::Grid; }
    /// Hands a settled number to the editor.
    void commit();
    void setCommitted() { m_edit.setModified(false); }
    /// For commands: the steps that are made while the keyboard stays here make one.
    int series() const { return m_series; }

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// Or changed, which must be told as well.
    void refused(const QString &why);
    /// The number was emptied or given up: the field's own is to be shown.
    void dropped();
    /// A number in a grid is to be committed.
    void entered();
    void stepped();

private:
    class Validator;

    int base() const;
    NumberForm::Reading read() const;
    bool isBlank() const;
    double clamped(double value) const;
    void show(const QString &text);
    void follow();
    void mark(const QString &why);
    void refuse(const QString &why);
    bool press(const QKeyEvent &key);
    bool isInGrid() const;
    bool moveOn(int step);
    bool accept();
    bool step(const QKeyEvent &key);
    void selectLater();
    double stepWidth() const;
    void leave(const QFocusEvent &event);

    QLineEdit &m_edit;
    QSpinBox *const m_spin; ///< to which the edit belongs, or null
    QWidget &m_control; ///< that has the keyboard: the spin box or the edit
    NumberForm m_form;
    const Place m_place;
    QValidator *m_validator;
    QPointer<RefusedFrame> m_frame;
    QString m_why;
    QString m_formerTip;
    int m_series;
};

#endif
