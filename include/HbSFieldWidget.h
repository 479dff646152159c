// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSFIELDWIDGET_H
#define HBSFIELDWIDGET_H

#include <HbFieldEditors.h>

#include <QPixmap>
#include <QPointer>

class FieldWatch;
class HbFieldEditorCommandManager;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpacerItem;

/**
 * The frame of every editor of a single value: label, edition area, and the buttons "Set to default" and
 * "Ignore this field".
 *
 * An edit is committed by Return or by leaving a changed control: with a command manager the manager is
 * told and writes the field, without one applyChanges() does. Subclasses fill the edition area and wire
 * their controls to setCommandValue() and setFocusLeaveEvent().
 *
 * The button "Set to default" works through a command manager only.
 */
class HARBORAPI_EXPORT HbSFieldWidget : public HbFieldEditors
{
    Q_OBJECT

public:
    /// What the edition area is made of; any other value gives the plain frame.
    enum SFFrameType : int {
        PlainFrame = 0,
        RealSliderFrame = 1,
        Int32SliderFrame = 2,
        UInt32SliderFrame = 3,
        Int16SliderFrame = 4,
        UInt16SliderFrame = 5
    };

    /// The manager is not owned and may be null or die first. Texts are UTF-8; a null @p name gives the
    /// object name "HbSFieldWidget", a null @p label no text.
    HbSFieldWidget(const char *label, SFFrameType frameType, HbFieldEditorCommandManager *manager, QWidget *parent,
                   const char *name, Qt::WindowFlags flags);
    HbSFieldWidget(SFFrameType frameType, HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                   Qt::WindowFlags flags);
    HbSFieldWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name, Qt::WindowFlags flags);
    HbSFieldWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                   Qt::WindowFlags flags);
    ~HbSFieldWidget() override;

    /// Takes any field and shows nothing of it until refresh(). A field that dies is forgotten: the editor reports
    /// nothing from then on until another is set.
    bool setField(SoField *field) override;
    /// Shows the field's ignore flag; subclasses show the value.
    void refresh() override;
    void setRefresh(bool enabled) override;
    void swapRows(int first, int second) override;
    void swapColumns(int first, int second) override;
    void set1Value(int row, int col, QString text) override;
    void setValue(int row, const void *data) override;
    void applyChanges() override;

    /// Whether the user changed the value since the last refresh; false here.
    virtual bool edited();

protected Q_SLOTS:
    /// Sets the buttons' tool tips, which are not translated; called at each change of the language.
    virtual void languageChange();
    /// Commits the edit.
    virtual void setCommandValue();
    /// Commits the edit if there is one.
    void setFocusLeaveEvent();
    void ignoreButtonStateChanged();
    /// Writes the field's default into it, even with a command manager; nothing in this class calls it.
    /// A field outside a container, or of one that cannot be created afresh, stays as it is.
    virtual void setDefaultFieldValue();

protected:
    /// The field set by setField(); null without one and after it died.
    SoField *editedField() const;

    /// Tells the manager or, without one, writes the value. Within another commit of this editor, as when a manager's
    /// refresh() changes a text that commits, nothing happens.
    void commit();

    /// Commits on Return and on leaving the edit.
    void commitOnReturn(QLineEdit *edit);
    /// Commits at each change of the edit's text, also one made by refresh().
    void commitOnChange(QLineEdit *edit);
    /// Fills the edition area with one edit for texts of any length.
    QLineEdit *addLineEdit();
    /// Puts equal stretches on both sides of the edition frame.
    void centreEditionFrame();
    /// Gives the edit layout the margin and the spacing of these names in the layout settings.
    void setEditLayout(const char *marginKey, const char *spacingKey);

    QLabel *m_label;
    QPushButton *m_defaultButton;
    QPushButton *m_ignoreButton;
    QPointer<HbFieldEditorCommandManager> m_commandManager;
    QFrame *m_editionFrame = nullptr;
    QHBoxLayout *m_fieldLayout;
    QHBoxLayout *m_buttonLayout;
    QHBoxLayout *m_editLayout;
    QHBoxLayout *m_editionAreaLayout;
    QSpacerItem *m_labelSpacer;
    QSpacerItem *m_buttonSpacer;

private:
    void buildSlider(SFFrameType frameType);
    void buildEditionFrame();
    void buildLayout();
    void connectButtons();

    friend class HbFieldEditors; // whether the field is lost

    std::unique_ptr<FieldWatch> m_field;
    bool m_isCommitting = false;
    QPixmap m_defaultIcon;
    QPixmap m_ignoreIcon;
};

#endif
