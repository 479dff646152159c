// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSFLINEWIDGET_H
#define HBSFLINEWIDGET_H

#include <HbSFieldWidget.h>

class QLineEdit;

/**
 * Edits any field through its text in file notation; what does not parse is left to the field's parser.
 *
 * Built with a label it commits on Return and on leaving, without one at each change of the text. Without a command
 * manager, also once that died, Return is left to the parent: then only leaving the line writes, and without a label
 * nothing does.
 */
class HARBORAPI_EXPORT HbSFLineWidget : public HbSFieldWidget
{
public:
    HbSFLineWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                   Qt::WindowFlags flags);
    HbSFLineWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name, Qt::WindowFlags flags);
    ~HbSFLineWidget() override;

    void refresh() override;
    void applyChanges() override;
    bool edited() override;

protected:
    QLineEdit *m_lineEdit;

private:
    bool eventFilter(QObject *watched, QEvent *event) override;
    template <class Signal> void commitDirectly(Signal signal, const char *signature);
};

#endif
