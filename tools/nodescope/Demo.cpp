// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Demo.h"

#include "FieldPanel.h"
#include "MainWindow.h"
#include "SceneDocument.h"
#include "SceneSearch.h"
#include "SceneTree.h"

#include <HbSlider.h>

#include <Inventor/fields/SoSFFloat.h>
#include <Inventor/lists/SoFieldList.h>
#include <Inventor/nodes/SoShape.h>

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>

namespace
{

constexpr int pause = 350; // milliseconds, so that an onlooker can follow

bool hasNumber(const SoNode *node)
{
    SoFieldList fields;
    const int count = node->getFields(fields);
    for (int i = 0; i < count; ++i)
        if (fields[i]->isOfType(SoSFFloat::getClassTypeId()) && !fields[i]->isConnected())
            return true;
    return false;
}

bool isEditableShape(const SoNode &node)
{
    return node.isOfType(SoShape::getClassTypeId()) && hasNumber(&node);
}

void press(QWidget *widget, int key, const QString &text = {}, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, text);
        QApplication::sendEvent(widget, &event);
    }
}

} // namespace

Demo::Demo(MainWindow *window) : QObject(window), m_window(window)
{
    m_timer.setInterval(pause);
    connect(&m_timer, &QTimer::timeout, this, &Demo::nextStep);
}

void Demo::start()
{
    constexpr qint64 enough = 3;
    const SceneSearch shapes(m_window->document()->root(), isEditableShape);
    for (qint64 i = 0; i < std::min(shapes.count(), enough); ++i)
        m_steps.emplace_back([this, shape = shapes.place(i)] { return selectNode(shape); });
    m_steps.emplace_back([this] { return typeNumber(); });
    m_steps.emplace_back([this] { return undo(); });
    m_steps.emplace_back([] { return true; }); // until the editors have followed
    m_timer.start();
}

void Demo::nextStep()
{
    const bool worked = m_steps[m_next++]();
    if (worked && m_next < m_steps.size())
        return;
    m_timer.stop();
    Q_EMIT finished(worked);
}

bool Demo::selectNode(const QVector<int> &path)
{
    m_window->tree()->select(path);
    return m_window->tree()->selectedNode() != nullptr;
}

bool Demo::typeNumber()
{
    QLineEdit *edit = numberEdit();
    if (!edit)
        return false;
    const QString number = QString::number(edit->text().toDouble() * 1.5 + 0.25, 'g', 3);
    edit->setFocus();
    press(edit, Qt::Key_A, {}, Qt::ControlModifier);
    for (const QChar digit : number)
        press(edit, digit.unicode(), QString(digit));
    press(edit, Qt::Key_Return, QStringLiteral("\r"));
    return m_window->document()->undoStack()->count() == 1;
}

bool Demo::undo()
{
    m_window->findChild<QAction *>(QStringLiteral("undo"))->trigger();
    return m_window->document()->undoStack()->index() == 0 && !m_window->document()->isModified();
}

QLineEdit *Demo::numberEdit() const
{
    const auto *slider = m_window->panel()->findChild<HbSlider *>();
    return slider ? slider->findChild<QLineEdit *>() : nullptr;
}
