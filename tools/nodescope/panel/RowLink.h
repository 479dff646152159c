// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef ROWLINK_H
#define ROWLINK_H

#include <QWidget>

class QToolButton;

/// A line below a row, where its controls begin, that says where the value comes from and leads there by a click.
class RowLink : public QWidget
{
    Q_OBJECT

public:
    explicit RowLink(QWidget *parent);

    void setText(const QString &text, const QString &toolTip);
    /// Whether there is a place to go to.
    void setLeading(bool leading);
    void setIndent(int width);

Q_SIGNALS:
    void clicked();

private:
    QToolButton *m_button;
};

#endif
