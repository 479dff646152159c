// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef EDITMANAGER_H
#define EDITMANAGER_H

#include "FieldCommand.h"
#include "SliderEdit.h"
#include "TypedNumbers.h"

#include <HbFieldEditorCommandManager.h>

#include <QPointer>

#include <functional>

class HbFieldEditors;
class MaskTicks;
class QLineEdit;
class QUndoCommand;
class QUndoStack;
class ShownNumbers;
class WriteWatch;

/**
 * Turns the edits of one editor into undo steps.
 *
 * One step per committed text, click or slider drag, see SliderEdit. What changes nothing leaves no step and every bit
 * of the value as it was; so does, in a value of several numbers, a number that was not edited.
 */
class EditManager : public HbFieldEditorCommandManager, protected SliderTarget
{
    Q_OBJECT

public:
    explicit EditManager(QUndoStack *stack, QObject *parent = nullptr);
    ~EditManager() override;

    /// The editor that was created with this manager; once.
    virtual void setEditor(HbFieldEditors *editor);
    /// The spans of the sliders are chosen here, not by who made the editor.
    void fitSliders();
    /// The field must outlive its stay here. Shows nothing until refresh().
    virtual void setField(SoField *field);
    /// Shows the field's value; commands that come of it are not edits.
    void refresh() override;
    /// Commits what is being edited where no control of the editor itself would.
    virtual void finish() { }
    /// Makes plain numbers of what is being typed, before it is committed; at the latest now.
    void finishTyping() { m_typing.finish(); }

    /// Gives the field another value of its type, as one step.
    void setValue(const SoField &value);

    /// Whether a mouse button holds the slider.
    bool isHeld() const { return m_slider && m_slider->isHeld(); }
    /// Ends a drag.
    virtual void letGo();

    void mfieldSwapRows(int first, int second) override;
    void mfieldSwapColumns(int first, int second) override;
    void mfieldDeleteRows(int topRow, int numValues) override;
    void mfieldAddRows(int row, int numRows) override;
    void mfieldSet1Value(int row, int col, QString text, SbString *previousData) override;
    void mfieldSetValue(int row, const void *data) override;
    void sfieldSetValue(SbString *previousData) override;
    void fieldSetDefaultValue() override;
    void fieldSetIgnored(bool ignored) override;

Q_SIGNALS:
    /// Something the user should know, in one sentence.
    void message(const QString &text);

protected:
    /// Whether commands are edits.
    bool isListening() const;
    /// The same; where they are, a drag ends first.
    bool isCommanded();
    HbFieldEditors *editor() const { return m_editor; }
    SoField *field() const { return m_field; }
    QUndoStack *stack() const { return m_stack; }
    /// Makes a step of what is done already, or takes it back and says why.
    void push(std::unique_ptr<QUndoCommand> command);
    /// Where the field cannot be edited: says why.
    bool refuse();
    /// Why the field does not keep what was written to it, in one sentence; empty where it does.
    QString refusal(const WriteWatch &watch) const;
    /// Forgets what stands in an edit that is open for a while.
    virtual void dropTyped() { }
    TypedNumbers &typing() { return m_typing; }
    /// Of the commands that an edit makes.
    int editSeries() const { return m_editSeries; }

    std::optional<double> slidNumber(const HbSlider &slider) const override;
    std::optional<SliderSpan> slidSpan(double number) const override;
    bool beginSlide(const HbSlider &slider) override;
    void slide(const HbSlider &slider) override;
    bool isAsSlid() const override;
    void dropSlid() override;
    void putBack(HbSlider &slider) override;
    void endSlide(int series) override;

private:
    void editRotation();
    void commitStep(TypedNumber *number);
    bool refuseForeign();
    void edit(const FieldSnapshot &before, const std::function<void()> &write);
    void record(const FieldSnapshot &before, int series, const std::vector<FieldState> &images = {});

    void maskClicked(const QString &name, bool on);

    QPointer<QUndoStack> m_stack;
    HbFieldEditors *m_editor = nullptr;
    QPointer<QWidget> m_frame; ///< the editor as well: its controls still speak when it dies
    SoField *m_field = nullptr;
    std::unique_ptr<SliderEdit> m_slider;
    QPointer<MaskTicks> m_mask;
    QPointer<ShownNumbers> m_numbers;
    QPointer<QLineEdit> m_line; ///< shows the whole value and can be typed in
    QString m_shownLine;
    std::optional<FieldSnapshot> m_before; ///< from before the slider moved
    std::optional<FieldSnapshot> m_slid; ///< what it left in the field
    bool m_isStandard = false; ///< of a class that is known
    bool m_fitsSliders = false;
    bool m_refreshing = false;
    TypedNumbers m_typing;
    bool m_isTypingReady = false;
    int m_editSeries = FieldCommand::noSeries;
};

#endif
