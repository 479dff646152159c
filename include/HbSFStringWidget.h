// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSFSTRINGWIDGET_H
#define HBSFSTRINGWIDGET_H

#include <HbSFieldWidget.h>

class QLineEdit;

/**
 * Edits an SoSFString in one line. The text is the value itself, without quotes.
 *
 * Built with a label it commits on Return and on leaving; without one every change of the text commits,
 * also one made by refresh().
 */
class HARBORAPI_EXPORT HbSFStringWidget : public HbSFieldWidget
{
public:
    HbSFStringWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                     Qt::WindowFlags flags);
    HbSFStringWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name, Qt::WindowFlags flags);
    ~HbSFStringWidget() override;

    void refresh() override;
    void applyChanges() override;
    bool edited() override;

private:
    QLineEdit *m_lineEdit;
};

#endif
