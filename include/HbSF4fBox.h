// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSF4FBOX_H
#define HBSF4FBOX_H

#include <HbSFieldWidget.h>

#include <array>

class QLabel;
class QLineEdit;
class TranslatedTexts;

/// Four labelled edits for floats: the base of the editors of four numbers, of no use alone.
class HARBORAPI_EXPORT HbSF4fBox : public HbSFieldWidget
{
public:
    HbSF4fBox(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
              Qt::WindowFlags flags);
    HbSF4fBox(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name, Qt::WindowFlags flags);
    ~HbSF4fBox() override;

    /// Whether the user changed any of the edits.
    bool edited() override;

    /// Names the components, the first of the four names for the leftmost one. Names are not translated.
    void setNameLabels(QString *names);
    /// Shows the start of every edit's text.
    void revertCursorPosition();

protected:
    void initClass();
    void buildComponent(QLineEdit *&edit, QLabel *&label);

    std::array<QLineEdit *, 4> m_edits; ///< from left to right
    std::array<QLabel *, 4> m_labels;

private:
    TranslatedTexts *m_texts; ///< a child
};

#endif
