// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef TITLEDAREA_H
#define TITLEDAREA_H

#include <QWidget>

class QLabel;
class QScrollArea;

/// A bold title over an area that scrolls.
class TitledArea : public QWidget
{
public:
    explicit TitledArea(QWidget *parent);

protected:
    QLabel *m_title;
    QScrollArea *m_area;
};

#endif
