// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBPOPUPWIDGET_H
#define HBPOPUPWIDGET_H

#include <HbSFLineWidget.h>

#include <vector>

class QGridLayout;
class TranslatedTexts;

/// Shows a value as a line of text and edits it in a grid of edits that a button opens.
class HARBORAPI_EXPORT HbPopupWidget : public HbSFLineWidget
{
    Q_OBJECT

public:
    HbPopupWidget(const char *label, HbFieldEditorCommandManager *manager, int rows, int columns, QWidget *parent,
                  const char *name, Qt::WindowFlags flags);
    HbPopupWidget(HbFieldEditorCommandManager *manager, int rows, int columns, QWidget *parent, const char *name,
                  Qt::WindowFlags flags);
    ~HbPopupWidget() override;

    /// Whether the user changed any edit of the grid.
    bool edited() override;
    /// Shows the start of every edit's text.
    void revertCursorPosition();
    /// Gives every edit a validator: 0 none, 1 16-bit integers, 2 32-bit integers, 3 floats with 6 decimals,
    /// 4 any real number. Any other kind changes nothing.
    void setValidator(int kind);

protected Q_SLOTS:
    /// Opens the grid beside its button, or closes it.
    void managePopFramePos();

protected:
    /// The edit at a place of the grid.
    QLineEdit *editAt(int row, int column) const;

    QPushButton *m_editButton;
    QFrame *m_popupFrame;
    int m_columns;
    /// The edit of row r and column c is at r + c x columns; places without an edit hold null.
    std::vector<QLineEdit *> m_edits;

private:
    void buildPopup(int rows);
    void buildEdit(QGridLayout *grid, int row, int column);

    TranslatedTexts *m_texts; ///< a child
};

#endif
