// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSLIDER_H
#define HBSLIDER_H

#include <harborapi_export.h>

#include <QFrame>
#include <QPointer>
#include <QString>

#include <Inventor/SbString.h>

#include <memory>

class HbFieldEditorCommandManager;
class HbFieldEditors;
class QCheckBox;
class QHBoxLayout;
class QLineEdit;
class QSlider;
class TranslatedTexts;

/**
 * A check box, a slider and an edit that show one number of a field editor.
 *
 * Reports every change to the editor it serves or to that editor's command manager, and never touches the
 * field. While the handle is dragged and the box is checked, the editor writes the field at each step;
 * the release is one report, with the value from before the drag.
 */
class HARBORAPI_EXPORT HbSlider : public QFrame
{
    Q_OBJECT

public:
    /// What the slider edits; any value but SingleField stands for a cell.
    enum SliderParentType : int { SingleField = 0, TableCell = 1 };
    /// The integer type behind an integer slider; other values are accepted.
    enum SliderType : int { Int32 = 1, UInt32 = 2, Int16 = 3, UInt16 = 4 };

    /// @p editor and @p commandManager are not owned; either may be null or die first.
    HbSlider(SliderParentType parentType, HbFieldEditors *editor, HbFieldEditorCommandManager *commandManager,
             QWidget *parent, int row, int col);
    ~HbSlider() override;

    /// Shows the value that a field's text gives; empty here.
    virtual void setValue(QString text);
    /// Writes the value into the edit.
    virtual void updateEdit() = 0;
    /// Takes the value from the edit's text.
    virtual void setValueFromEdit() = 0;
    /// Takes the value from a slider position.
    virtual void setValueFromSlider(int position) = 0;
    /// Keeps the value as the one from before a drag; empty here.
    virtual void saveDataFromField();

    /// Where the cell is that it edits.
    void setRow(int row);
    /// Whether the user typed in the edit since its text was last set.
    bool isEdited() const;
    /// Whether moves are reported while the handle is dragged.
    bool isChecked() const;
    void setChecked(bool checked);
    /// The edit's text as it stands, without a prefix.
    QString getValueFromEdit() const;
    /// Sets the edit's text and shows its start.
    void setText(QString &text);
    /// The slider's position, which is not the value: see the typed slider's own accessor.
    int getValue() const;
    /// Moves the slider to the value's position without reporting.
    void updateSlider();
    /// The edit's text with the prefix of its base, "0" or "0x".
    QString getText() const;
    /// Takes the value at @p position and reports it as the end of a drag.
    void changeValueAfterFinish(int position);
    /// Takes the value at @p position; while a drag is announced, the editor writes it.
    void changeValueFromSlider(int position);

public Q_SLOTS:
    /// Commits the edit's text if the user changed it.
    void changeValueFromEdit();

protected Q_SLOTS:
    void eventNotify(bool state);
    void beginCallback();
    void finishCallback();
    void valueChangeSlot(int newValue);

protected:
    /// Changing a QSlider's range may move it; through these the move is not taken for the user's.
    void setSliderMinimum(int minimum);
    void setSliderMaximum(int maximum);
    void setSliderRange(int minimum, int maximum);
    /// Makes previousData anew.
    void keepPreviousData(const QString &text);

    TranslatedTexts *m_texts; ///< a child
    QLineEdit *edit;
    SbString *previousData = nullptr; ///< from a press to its release; the command manager's from then on
    QHBoxLayout *m_layout;
    int sliderPosition = 0;
    QSlider *slider;
    QCheckBox *notifyBox;
    bool notify = true;
    bool inChange = false;
    bool reactToSlider = false; ///< set once construction is complete
    SliderParentType parentType;
    int base = 10; ///< of the edit's text: 10, 8 or 16
    QPointer<HbFieldEditors> editor;
    QPointer<HbFieldEditorCommandManager> commandManager;
    int row;
    int col;

private:
    void reportCommand(SbString *previous);
    bool isSilenced() const;
    void reportLive();
    template <class Report> void reportCell(const Report &report);

    std::unique_ptr<SbString> m_unclaimed; ///< previousData that no manager took
};

#endif
