// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBMFIELDWIDGET_H
#define HBMFIELDWIDGET_H

#include <HbFieldEditors.h>

#include <QPointer>

#include <memory>

class AccessButtonPrivate;
class FieldWatch;
class HbFieldEditorCommandManager;
class HbMFieldTable;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QSpacerItem;
class QSpinBox;
class RowTextCache;
class SoMField;

/**
 * The frame of every editor of many values: a label, buttons for the rows, and the table, one row per value.
 *
 * The table's cells hold no text: what they show is asked of getFieldValue(), so that a field of a million values
 * costs what is visible. Edits go to the command manager or, without one, to the field.
 *
 * The button "Set to default" works through a command manager only.
 */
class HARBORAPI_EXPORT HbMFieldWidget : public HbFieldEditors
{
    Q_OBJECT

public:
    /// The table kind that gives an HbMFColorTable; any other gives an HbMFieldTable.
    static const int m_colorTableFlag;

    /// The manager is not owned and may be null or die first. @p fieldType is shown as the label's text; a null
    /// @p name gives the object name "HbMFieldWidget". Texts are UTF-8.
    HbMFieldWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                   Qt::WindowFlags flags);
    HbMFieldWidget(int tableKind, HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                   Qt::WindowFlags flags);
    HbMFieldWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                   const char *name, Qt::WindowFlags flags);
    HbMFieldWidget(const char *fieldType, int tableKind, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                   const char *name, Qt::WindowFlags flags);
    ~HbMFieldWidget() override;

    /// Takes a field that checkField() accepts and shows nothing of it until refresh(). A refused field leaves the
    /// one before. A field that dies is forgotten, and the table emptied: nothing is
    /// reported from then on until another is set.
    bool setField(SoField *field) override;
    /// Gives the table its rows and shows the ignore flag. Nothing without a field or while disabled.
    void refresh() override;
    /// Enables refresh().
    void setRefresh(bool enabled) override;
    void swapRows(int first, int second) override;
    void swapColumns(int first, int second) override;
    void set1Value(int row, int col, QString text) override;
    void setValue(int row, const void *data) override;
    void applyChanges() override;

    /// The text of a component; empty here, and for rows and columns that the field does not have.
    virtual QString getFieldValue(int row, int col) const;
    /// Where a cell's text stands: centred.
    virtual int getTextFlags();
    /// Whether this editor can edit @p field; here any field of many values.
    virtual bool checkField(SoField *field);
    /// The field set by setField(); null without one and after it died.
    SoMField *editedField() const;
    /// The box that scrolls to a row.
    QSpinBox *accessBox() const;

public Q_SLOTS:
    /// Sets the buttons' tool tips, which are not translated; called at each change of the language.
    virtual void languageChange();
    void ignoreButtonStateChanged();
    /// Writes the field's default into it, even with a command manager; nothing in this class calls it.
    virtual void setDefaultFieldValue();

public:
    /// The start of getFieldValue(), at least @p limit characters where it has as many. Cells are painted with it.
    /// Editors of this library, not classes derived from them, tell the start of a very long text without
    /// getFieldValue(); who derives one for such texts may override this too.
    virtual QString getCellText(int row, int col, int limit) const;

protected:
    /// The edited field as an F; null where it is none.
    template <class F> F *fieldAs() const;
    /// Texts that take long to make, as long as they are true.
    RowTextCache &textCache() const;

    AccessButtonPrivate *m_accessBox;
    QPushButton *m_upButton;
    QPushButton *m_downButton;
    QPushButton *m_defaultButton;
    QPushButton *m_ignoreButton;
    QPushButton *m_deleteButton;
    QPushButton *m_addButton;
    QLabel *m_label;
    HbMFieldTable *m_table;
    QHBoxLayout *m_buttonsLayout;
    QSpacerItem *m_accessSpacer; ///< between the add and delete buttons and the access box
    QSpacerItem *m_moveSpacer; ///< between the access box and the move buttons
    QPointer<HbFieldEditorCommandManager> m_commandManager;
    bool m_refreshEnabled = true;

private:
    void initClass();
    void createButtons();
    void layOut();
    void connectAll();

    friend class HbFieldEditors; // whether the field is lost

    std::unique_ptr<FieldWatch> m_field;
    std::unique_ptr<RowTextCache> m_textCache;
};

#endif
