// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef REFUSEDFRAME_H
#define REFUSEDFRAME_H

#include <QWidget>

/// A red frame over a control that holds what cannot be read. Takes no input.
class RefusedFrame : public QWidget
{
    Q_OBJECT

public:
    explicit RefusedFrame(QWidget *control);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif
