// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef WHEELGUARD_H
#define WHEELGUARD_H

class QWidget;

/// Lets the wheel scroll what is around @p widget until the widget has the focus.
void ignoreWheelWithoutFocus(QWidget *widget);

#endif
