// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef ROWPAINT_H
#define ROWPAINT_H

#include <QObject>

class RowShape;

/**
 * Paints what the library's controls paint otherwise: a label too long for its column is cut in its middle, a swatch is
 * filled and framed. The pointer over a text that its edit cuts tells it whole.
 */
class RowPaint : public QObject
{
public:
    void watch(const RowShape &row);

    bool eventFilter(QObject *watched, QEvent *event) override;
};

#endif
