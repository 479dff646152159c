// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef PANELFIXTURE_H
#define PANELFIXTURE_H

#include "TestSupport.h"

#include "tools/nodescope/FieldPanel.h"

#include <QApplication>
#include <QLineEdit>
#include <QSlider>
#include <QUndoStack>

#include <Inventor/SoInteraction.h>
#include <Inventor/SoOutput.h>
#include <Inventor/actions/SoWriteAction.h>
#include <Inventor/nodes/SoCone.h>

#include <cstdlib>

/// The node as it would be saved.
inline QByteArray saved(SoNode *node)
{
    SoOutput out;
    out.setBuffer(std::malloc(1024), 1024, std::realloc);
    SoWriteAction(&out).apply(node);
    void *buffer = nullptr;
    size_t size = 0;
    out.getBuffer(buffer, size);
    const QByteArray text(static_cast<const char *>(buffer), int(size));
    std::free(buffer);
    return text;
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
        QCOMPARE(Complaints::take(), QByteArray());
    }

protected:
    template <class Control> Control *control(const char *field)
    {
        for (QFrame *const row : m_panel->findChildren<QFrame *>()) {
            if (row->accessibleName().endsWith(QString::fromLatin1(field)))
                return row->findChild<Control *>();
        }
        return nullptr;
    }
    QLineEdit *height() { return control<QLineEdit>("Cone.height"); }
    QSlider *slider() { return control<QSlider>("Cone.height"); }
    void typeHeight(const QString &text, Qt::Key end = Qt::Key_Return)
    {
        retype(height(), text);
        QTest::keyClick(height(), end);
    }

    std::unique_ptr<QUndoStack> m_stack;
    std::unique_ptr<FieldPanel> m_panel;
    std::unique_ptr<Ref<SoCone>> m_cone;
    QStringList m_messages;
};

#endif
