// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSFVEC2FWIDGET_H
#define HBSFVEC2FWIDGET_H

#include <HbSFieldWidget.h>

#include <array>

class QLabel;
class QLineEdit;

/// Edits an SoSFVec2f with one edit per component.
class HARBORAPI_EXPORT HbSFVec2fWidget : public HbSFieldWidget
{
public:
    HbSFVec2fWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                    Qt::WindowFlags flags);
    HbSFVec2fWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name, Qt::WindowFlags flags);
    ~HbSFVec2fWidget() override;

    void refresh() override;
    void applyChanges() override;
    bool edited() override;

protected:
    void initClass();
    void buildComponent(QLineEdit *&edit, QLabel *&label);

    std::array<QLineEdit *, 2> m_edits; ///< from left to right
    std::array<QLabel *, 2> m_labels;
};

#endif
