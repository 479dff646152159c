// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSFNAMEWIDGET_H
#define HBSFNAMEWIDGET_H

#include <HbSFieldWidget.h>

class QLineEdit;

/**
 * Edits an SoSFName in one line. The text is in the notation of the field, which quotes where it must.
 *
 * Built with a label it commits on Return and on leaving; without one every change of the text commits,
 * also one made by refresh().
 */
class HARBORAPI_EXPORT HbSFNameWidget : public HbSFieldWidget
{
public:
    HbSFNameWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                   Qt::WindowFlags flags);
    HbSFNameWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name, Qt::WindowFlags flags);
    ~HbSFNameWidget() override;

    void refresh() override;
    void applyChanges() override;
    bool edited() override;

private:
    QLineEdit *m_lineEdit;
};

#endif
