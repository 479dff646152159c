// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Hands.h"

#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QtTest>

namespace
{
const char *const texts[]
    = {"1",     "-2.5",  "1e38",   "nan", "inf",    "0x1F", "017",    "99999999999", "-",       "",
       "1 2 3", "\"",    "a b",    "\\",  "[1, 2]", "TRUE", "#",      "{",           "0,5",     "1e-45",
       "B",     "70000", "-70000", "~",   "\n",     "\t",   "\u00e4", "USE x",       "4 5 6 7", "0"};

void send(QWidget *control, int key, QChar character, Qt::KeyboardModifiers modifiers = {})
{
    const QPointer<QWidget> alive(control);
    for (const QEvent::Type kind : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(kind, key, modifiers, character.isNull() ? QString() : QString(character));
        if (alive)
            QCoreApplication::sendEvent(alive, &event);
    }
}
} // namespace

QString Hands::someText(QRandomGenerator &random)
{
    return QString::fromUtf8(texts[random.bounded(int(std::size(texts)))]);
}

QWidget *Hands::someControl()
{
    QList<QWidget *> all;
    const bool anyOne = m_random.bounded(6) == 0;
    const auto children = m_place->findChildren<QWidget *>();
    for (QWidget *const child : children)
        if (child->isVisible() && child->isEnabled() && !child->inherits("QScrollBar")
            && (anyOne || child->focusPolicy() != Qt::NoFocus || child->inherits("QPushButton")))
            all << child;
    if (QWidget *const popup = QApplication::activePopupWidget())
        all << popup;
    return all.isEmpty() ? m_place.data() : all[m_random.bounded(int(all.size()))];
}

QString Hands::told(const char *deed, const QWidget &control)
{
    return QStringLiteral("%1 %2 %3").arg(deed, control.metaObject()->className(), control.objectName());
}

QString Hands::type()
{
    QPointer<QWidget> control = someControl();
    const QString text = someText(m_random);
    const QString done = told("types", *control) + QLatin1Char(' ') + text;
    control->setFocus();
    if (auto *const edit = qobject_cast<QLineEdit *>(control.data()); edit && m_random.bounded(2))
        edit->selectAll();
    for (const QChar character : text) {
        if (control)
            send(control, character.toUpper().unicode() < 0x80 ? character.toUpper().unicode() : int(Qt::Key_unknown),
                 character);
    }
    if (control && m_random.bounded(2))
        send(control, Qt::Key_Return, {});
    return done;
}

QString Hands::press()
{
    constexpr Qt::Key keys[] = {Qt::Key_Return, Qt::Key_Tab,    Qt::Key_Escape,   Qt::Key_Up,    Qt::Key_Down,
                                Qt::Key_Delete, Qt::Key_Insert, Qt::Key_Home,     Qt::Key_End,   Qt::Key_Plus,
                                Qt::Key_Minus,  Qt::Key_F2,     Qt::Key_PageDown, Qt::Key_Space, Qt::Key_Backspace};
    constexpr Qt::KeyboardModifier modifiers[]
        = {Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier};
    QWidget *const focused = QApplication::focusWidget();
    QWidget *const control = focused && m_random.bounded(2) ? focused : someControl();
    const Qt::Key key = keys[m_random.bounded(int(std::size(keys)))];
    const QString done = told("presses", *control) + QStringLiteral(" %1").arg(key, 0, 16);
    send(control, key,
         key == Qt::Key_Plus        ? QChar('+')
             : key == Qt::Key_Minus ? QChar('-')
                                    : QChar(),
         modifiers[m_random.bounded(4)]);
    return done;
}

QPoint Hands::somewhere(const QWidget &control)
{
    return {m_random.bounded(std::max(1, control.width())), m_random.bounded(std::max(1, control.height()))};
}

QString Hands::click()
{
    const QPointer<QWidget> control = someControl();
    const QString done = told("clicks", *control);
    const QPoint place = somewhere(*control);
    QTest::mouseClick(control, Qt::LeftButton, {}, place);
    if (control && m_random.bounded(4) == 0)
        QTest::mouseDClick(control, Qt::LeftButton, {}, place);
    return done;
}

QString Hands::drag()
{
    const QPointer<QWidget> control = someControl();
    const QString done = told("drags", *control);
    QTest::mousePress(control, Qt::LeftButton, {}, somewhere(*control));
    for (int i = m_random.bounded(4); i > 0 && control; --i) {
        const QPointF place = somewhere(*control);
        QMouseEvent move(QEvent::MouseMove, place, control->mapToGlobal(place.toPoint()), Qt::NoButton, Qt::LeftButton,
                         {});
        QCoreApplication::sendEvent(control, &move);
    }
    if (control && m_random.bounded(5))
        QTest::mouseRelease(control, Qt::LeftButton, {}, somewhere(*control));
    return done;
}

QString Hands::wheel()
{
    QWidget *const control = someControl();
    const QString done = told("turns the wheel over", *control);
    const QPointF place = somewhere(*control);
    QWheelEvent event(place, control->mapToGlobal(place.toPoint()), {}, {0, m_random.bounded(2) ? 120 : -120},
                      Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(control, &event);
    return done;
}

QString Hands::doAnything()
{
    static const std::pair<int, QString (Hands::*)()> deeds[]
        = {{10, &Hands::type}, {6, &Hands::press}, {6, &Hands::click}, {2, &Hands::drag}, {2, &Hands::wheel}};
    int choice = m_random.bounded(26);
    for (const auto &[weight, deed] : deeds)
        if ((choice -= weight) < 0)
            return (this->*deed)();
    return {};
}
