// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef PANELFIXTURE_H
#define PANELFIXTURE_H

#include "TestSupport.h"

#include "tools/nodescope/FieldPanel.h"
#include "tools/nodescope/SceneFile.h"
#include "tools/nodescope/SceneOutput.h"

#include <QUndoStack>

#include <Inventor/SoInteraction.h>
#include <Inventor/actions/SoWriteAction.h>
#include <Inventor/nodes/SoCone.h>

/// The node as it would be saved.
inline QByteArray saved(SoNode *node)
{
    SceneOutput output{SceneFormat()};
    SoWriteAction(&output).apply(node);
    return output.content();
}

inline void wheel(QWidget *target, int delta)
{
    const QPointF at = target->rect().center();
    QWheelEvent event(at, target->mapToGlobal(at.toPoint()), {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event); // only such go on to the parent
    qApp->notify(target, &event);
}

/// A panel in an active window that shows a cone.
class PanelFixture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Complaints::listen();
        SoInteraction::init();
    }

    void init()
    {
        m_cone = std::make_unique<Ref<SoCone>>();
        m_stack = std::make_unique<QUndoStack>();
        m_panel = std::make_unique<FieldPanel>(m_stack.get());
        m_messages.clear();
        connect(m_panel.get(), &FieldPanel::message, this, [this](const QString &text) { m_messages << text; });
        m_panel->resize(500, 300);
        m_panel->show();
        m_panel->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
        m_panel->setNode(*m_cone);
    }

    void cleanup()
    {
        m_panel.reset();
        m_stack.reset();
        m_cone.reset();
        m_odd.reset();
        QCOMPARE(Complaints::take(), QByteArray());
    }

protected:
    template <class Control> Control *control(const char *field)
    {
        return m_panel->editorOf(QString(field).section('.', 1))->findChild<Control *>();
    }
    QLineEdit *height() { return control<QLineEdit>("Cone.height"); }
    QSlider *slider() { return control<QSlider>("Cone.height"); }

    /// Shows a node of a class that has one field: "SFVec3f value 1 2 3".
    void show(const QByteArray &declaration)
    {
        const QByteArrayList words = declaration.split(' ');
        const QByteArray text = "#Inventor V2.1 ascii\nOdd { fields [ " + words[0] + " value ] "
            + (words.size() > 2 ? declaration.mid(words[0].size()) : QByteArray()) + " }";
        SoInput input;
        input.setBuffer(text.constData(), size_t(text.size()));
        SoNode *node = nullptr;
        QVERIFY(SoDB::read(&input, node) && node);
        m_odd = std::make_unique<Ref<SoNode>>(node);
        m_panel->setNode(node);
    }
    template <class Field> Field *field() { return static_cast<Field *>((*m_odd)->getField("value")); }
    QList<QLineEdit *> edits(const char *field = "value")
    {
        return m_panel->editorOf(field)->findChildren<QLineEdit *>();
    }

    void typeHeight(const QString &text, Qt::Key end = Qt::Key_Return) { enter(height(), text, end); }

    std::unique_ptr<QUndoStack> m_stack;
    std::unique_ptr<FieldPanel> m_panel;
    std::unique_ptr<Ref<SoCone>> m_cone;
    std::unique_ptr<Ref<SoNode>> m_odd;
    QStringList m_messages;
};

#endif
