// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSFENUMWIDGET_H
#define HBSFENUMWIDGET_H

#include <HbSFieldWidget.h>

class QComboBox;

/**
 * Edits an SoSFEnum with a combo box; choosing an entry commits at once.
 *
 * A value that is no entry takes over the current entry's text.
 */
class HARBORAPI_EXPORT HbSFEnumWidget : public HbSFieldWidget
{
public:
    /// @p names are the @p count texts of the entries; names are Latin-1.
    HbSFEnumWidget(const char *label, HbFieldEditorCommandManager *manager, int count, const SbName *names,
                   QWidget *parent, const char *name, Qt::WindowFlags flags);
    /// Without entries.
    HbSFEnumWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name, Qt::WindowFlags flags);
    ~HbSFEnumWidget() override;

    void refresh() override;
    void applyChanges() override;

private:
    QComboBox *m_comboBox;
};

#endif
