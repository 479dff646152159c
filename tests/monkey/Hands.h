// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HANDS_H
#define HANDS_H

#include <QKeyEvent>
#include <QPointer>
#include <QRandomGenerator>
#include <QWidget>

/// Types, clicks and drags at random in the controls below a widget. Each deed tells what it did.
class Hands
{
public:
    Hands(QWidget *place, QRandomGenerator &random) : m_place(place), m_random(random) { }

    QString type();
    QString press();
    QString click();
    QString drag();
    QString wheel();
    /// One of these.
    QString doAnything();

    static QString someText(QRandomGenerator &random);

private:
    QWidget *someControl();
    QPoint somewhere(const QWidget &control);
    static QString told(const char *deed, const QWidget &control);

    QPointer<QWidget> m_place;
    QRandomGenerator &m_random;
};

#endif
