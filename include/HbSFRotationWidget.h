// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSFROTATIONWIDGET_H
#define HBSFROTATIONWIDGET_H

#include <HbSF4fBox.h>

/**
 * Edits an SoSFRotation: axis and angle in radians. The field normalises the axis.
 *
 * Built with a label, leaving one component does not commit, so that no half-edited rotation is written.
 */
class HARBORAPI_EXPORT HbSFRotationWidget : public HbSF4fBox
{
public:
    HbSFRotationWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                       Qt::WindowFlags flags);
    HbSFRotationWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name, Qt::WindowFlags flags);
    ~HbSFRotationWidget() override;

    void refresh() override;
    void applyChanges() override;

    /// Commits what was edited; unlike others it does not go on to the frame's own handler.
    void focusOutEvent(QFocusEvent *event) override;

private:
    void nameComponents();
};

#endif
