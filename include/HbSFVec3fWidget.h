// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSFVEC3FWIDGET_H
#define HBSFVEC3FWIDGET_H

#include <HbSFieldWidget.h>

#include <array>

class QLabel;
class QLineEdit;

/// Edits an SoSFVec3f with one edit per component.
class HARBORAPI_EXPORT HbSFVec3fWidget : public HbSFieldWidget
{
public:
    HbSFVec3fWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                    Qt::WindowFlags flags);
    HbSFVec3fWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name, Qt::WindowFlags flags);
    ~HbSFVec3fWidget() override;

    void refresh() override;
    void applyChanges() override;
    bool edited() override;

protected:
    void initClass();
    void buildComponent(QLineEdit *&edit, QLabel *&label);

    std::array<QLineEdit *, 3> m_edits; ///< from left to right
    std::array<QLabel *, 3> m_labels;
};

#endif
