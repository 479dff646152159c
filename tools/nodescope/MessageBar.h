// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef MESSAGEBAR_H
#define MESSAGEBAR_H

#include <QElapsedTimer>
#include <QWidget>

class QLabel;
class QListWidget;
class QToolButton;

/// The last message in one line, and on demand all of them.
class MessageBar : public QWidget
{
    Q_OBJECT

public:
    explicit MessageBar(QWidget *parent = nullptr);

    void add(const QString &text);
    /// The last message is no longer about what is shown: only the list keeps it. What the same click or key has just
    /// brought stays.
    void outdate();
    QStringList messages() const;

    /// Shows at once how far something has come that keeps the program busy.
    void showProgress(const QString &text);
    void endProgress();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void showLast();
    void showText(const QString &text);

    QLabel *m_last;
    QToolButton *m_more;
    QListWidget *m_list;
    bool m_isCurrent = false;
    QElapsedTimer m_sinceAdded;
};

#endif
