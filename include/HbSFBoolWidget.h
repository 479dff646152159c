// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSFBOOLWIDGET_H
#define HBSFBOOLWIDGET_H

#include <HbSFieldWidget.h>

class QCheckBox;

/// Edits an SoSFBool with one check box; each click commits at once.
class HARBORAPI_EXPORT HbSFBoolWidget : public HbSFieldWidget
{
public:
    HbSFBoolWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                   Qt::WindowFlags flags);
    HbSFBoolWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name, Qt::WindowFlags flags);
    ~HbSFBoolWidget() override;

    void refresh() override;
    void applyChanges() override;

protected:
    QCheckBox *m_box;
};

#endif
