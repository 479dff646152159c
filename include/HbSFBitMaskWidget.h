// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSFBITMASKWIDGET_H
#define HBSFBITMASKWIDGET_H

#include <HbSFieldWidget.h>

class QCheckBox;

/**
 * Edits an SoSFBitMask with one check box per named bit.
 *
 * A click writes the field at once, even with a command manager. The boxes show the field as it was at
 * construction: to show another value, build another widget.
 */
class HARBORAPI_EXPORT HbSFBitMaskWidget : public HbSFieldWidget
{
    Q_OBJECT

public:
    /// The check boxes are built from @p field, which may be null.
    HbSFBitMaskWidget(SoField *field, const char *label, HbFieldEditorCommandManager *manager, QWidget *parent,
                      const char *name, Qt::WindowFlags flags);
    HbSFBitMaskWidget(SoField *field, HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                      Qt::WindowFlags flags);
    ~HbSFBitMaskWidget() override;

    /// Shows the ignore flag only.
    void refresh() override;
    /// Does nothing: each click has written already.
    void applyChanges() override;

protected Q_SLOTS:
    void setBitMaskValue();

private:
    void buildBoxes();

    std::vector<QCheckBox *> m_boxes;
};

#endif
