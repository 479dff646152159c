// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef EDITMANAGER_H
#define EDITMANAGER_H

#include "FieldCommand.h"
#include "OwnEdit.h"

#include <HbFieldEditorCommandManager.h>

#include <QPointer>

#include <functional>

class HbFieldEditors;
class QLineEdit;
class QSlider;
class QUndoStack;

/**
 * Turns the edits of one editor into undo steps.
 *
 * One step per committed text, click or slider drag; the steps of a slider by key, wheel or a click in its
 * groove, which the editor writes without a command, make one step together while the slider has the focus.
 * What changes nothing leaves no step and every bit of the value as it was; so does, in a value of several numbers,
 * a number that was not edited.
 */
class EditManager : public HbFieldEditorCommandManager
{
    Q_OBJECT

public:
    explicit EditManager(QUndoStack *stack, QObject *parent = nullptr);
    ~EditManager() override;

    /// The editor that was created with this manager; once.
    virtual void setEditor(HbFieldEditors *editor);
    /// The field must outlive its stay here. Shows nothing until refresh().
    virtual void setField(SoField *field);
    /// Shows the field's value; commands that come of it are not edits.
    virtual void refresh();
    /// Commits what is being edited where no control of the editor itself would.
    virtual void finish() { }

    /// Whether a mouse button holds the slider.
    bool isHeld() const { return m_hold.has_value(); }

    void mfieldSwapRows(int first, int second) override;
    void mfieldSwapColumns(int first, int second) override;
    void mfieldDeleteRows(int topRow, int numValues) override;
    void mfieldAddRows(int row, int numRows) override;
    void mfieldSet1Value(int row, int col, QString text, SbString *previousData) override;
    void mfieldSetValue(int row, const void *data) override;
    void sfieldSetValue(SbString *previousData) override;
    void fieldSetDefaultValue() override;
    void fieldSetIgnored(bool ignored) override;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// Something the user should know, in one sentence.
    void message(const QString &text);

protected:
    /// Whether commands are edits.
    bool isListening() const;
    HbFieldEditors *editor() const { return m_editor; }
    SoField *field() const { return m_field; }
    QUndoStack *stack() const { return m_stack; }
    void tellRefused();

private:
    bool refuse(const FieldSnapshot &before);
    void edit(const FieldSnapshot &before, const std::function<void()> &write);
    void record(const FieldSnapshot &before, int series, const std::vector<FieldState> &images = {});

    void remember();
    void hold();
    void letGo();
    void sliderStepped();
    void maskClicked();

    QPointer<QUndoStack> m_stack;
    HbFieldEditors *m_editor = nullptr;
    QPointer<QWidget> m_frame; ///< the editor as well: its controls still speak when it dies
    SoField *m_field = nullptr;
    QPointer<QSlider> m_slider;
    QPointer<QLineEdit> m_edit;
    QPointer<QLineEdit> m_line; ///< shows the whole value and can be typed in
    QString m_shownLine;
    std::optional<FieldSnapshot> m_before; ///< from before the slider's next move
    std::optional<FieldSnapshot> m_dragged; ///< what a held slider left in the field
    int m_positionBefore = 0;
    bool m_isStandard = false; ///< of a class that is known
    bool m_isMask = false; ///< the editor writes by itself
    int m_series;
    std::optional<OwnEdit> m_hold; ///< while a mouse button holds the slider, whose moves are written at once
    bool m_refreshing = false;
};

#endif
