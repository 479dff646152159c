// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBTABLEPOPUPWIDGET_H
#define HBTABLEPOPUPWIDGET_H

#include <HbMFieldWidget.h>

#include <vector>

class HbTablePopupLineEdit;

/**
 * Shows values of many components in one column and edits the current row in a grid beside the widget.
 *
 * Each change of an edit's text is one report, with column -1: the whole value is that of the grid.
 */
class HARBORAPI_EXPORT HbTablePopupWidget : public HbMFieldWidget
{
    Q_OBJECT

public:
    HbTablePopupWidget(HbFieldEditorCommandManager *commandManager, int rows, int columns, QWidget *parent,
                       const char *name, Qt::WindowFlags flags);
    HbTablePopupWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, int rows, int columns,
                       QWidget *parent, const char *name, Qt::WindowFlags flags);
    ~HbTablePopupWidget() override;

    /// An open grid shows what the row holds by now.
    void refresh() override;
    void initClass(int rows, int columns);
    /// Opens the grid at the widget's left edge, or closes it.
    void managePopFramePos();
    /// Fills the grid with a row's value, without a report; -1 stands for the current row.
    void updatePopupLines(int row);
    /// Shows the start of every edit's text.
    void revertCursorPosition();
    /// Gives every edit a validator: 0 none, 1 16-bit integers, 2 32-bit integers, 3 floats with 6 decimals,
    /// 4 any real number. Any other kind changes nothing.
    void setValidator(int kind);
    /// The text of a component; empty here.
    virtual QString getPopupValue(int row, int index);

    /// Reports that the grid was edited.
    void reportPopupEdit();
    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /// Fills the grid and opens it, or closes it.
    void setEditFrame();

protected:
    void hideEvent(QHideEvent *event) override;

    QPushButton *m_editButton;
    QFrame *m_popupFrame;
    std::vector<HbTablePopupLineEdit *> m_popupEdits; ///< row by row
    std::vector<QString> m_filledTexts; ///< what updatePopupLines() filled in, or was written since

private:
    QSize popupSize() const;
    bool chooseRow(int row);

    bool m_filling = false;
};

#endif
