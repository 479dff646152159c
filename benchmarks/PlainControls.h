// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef PLAINCONTROLS_H
#define PLAINCONTROLS_H

class QString;
class QValidator;
class QWidget;

/// What a person writes who edits fields without the library: the same controls in the same layouts.
/// Nothing is connected.
namespace PlainControls
{
enum Finish {
    Bare, ///< as little as does the job
    Complete ///< also the frames and the accessible names that the editors have
};

/// Label, check box, slider, edit and two buttons. The edit takes over @p validator, which may be null.
QWidget *numberRow(const QString &label, QValidator *validator, Finish finish, QWidget *parent);
/// Label, check box and two buttons.
QWidget *boolRow(const QString &label, Finish finish, QWidget *parent);
/// Label, three edits and two buttons; bare.
QWidget *vectorRow(const QString &label, QWidget *parent);
} // namespace PlainControls

#endif
