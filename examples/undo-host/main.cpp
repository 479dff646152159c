// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause
//
// A host with undo: every edit of a cone's height is one step, and the editor follows the field.

#include <HbFieldEditorCommandManager.h>
#include <HbRangeComponent.h>
#include <HbSFFloatWidget.h>

#include <Inventor/SoDB.h>
#include <Inventor/nodes/SoCone.h>
#include <Inventor/sensors/SoFieldSensor.h>

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSlider>
#include <QTimer>
#include <QUndoStack>

namespace
{
using FieldValue = std::shared_ptr<SoField>;

/// The exact value of a field. Its text would lose bits.
FieldValue copyOf(const SoField &field)
{
    FieldValue copy(static_cast<SoField *>(field.getTypeId().createInstance()));
    copy->copyFrom(field);
    return copy;
}

class ChangeField : public QUndoCommand
{
public:
    ChangeField(SoField &field, FieldValue before, FieldValue after)
        : m_field(field), m_before(std::move(before)), m_after(std::move(after))
    {
        m_field.getContainer()->ref();
    }
    ~ChangeField() override { m_field.getContainer()->unref(); }
    void undo() override { m_field.copyFrom(*m_before); }
    void redo() override { m_field.copyFrom(*m_after); }

private:
    SoField &m_field;
    FieldValue m_before;
    FieldValue m_after;
};

class UndoManager : public HbFieldEditorCommandManager
{
public:
    UndoManager(SoField &field, QUndoStack &undo)
        : m_field(&field), m_undo(undo), m_known(copyOf(field)), m_sensor(fieldChanged, this)
    {
        m_sensor.setDeleteCallback([](void *self, SoSensor *) { static_cast<UndoManager *>(self)->m_field = nullptr; },
                                   this);
        m_refresh.setSingleShot(true);
        connect(&m_refresh, &QTimer::timeout, this, [this] { refreshEditor(); });
        m_sensor.setPriority(0); // call at once: this host runs none of Coin's queues
        m_sensor.attach(&field);
    }

    void serve(HbSFieldWidget *editor)
    {
        m_editor = editor;
        m_slider = editor->findChild<QSlider *>();
        // A step by key or wheel writes the field without a command. By now the editor has written it.
        if (m_slider)
            connect(m_slider, &QSlider::valueChanged, this, [this] {
                if (!isDragged())
                    record();
            });
    }

    void sfieldSetValue(SbString *previousData) override
    {
        const std::unique_ptr<SbString> owned(previousData);
        m_editor->applyChanges();
        record();
    }
    void fieldSetDefaultValue() override
    {
        QMetaObject::invokeMethod(m_editor, "setDefaultFieldValue");
        record();
    }
    void fieldSetIgnored(bool ignored) override
    {
        if (m_field)
            m_field->setIgnored(ignored);
    }

    void mfieldSwapRows(int, int) override { }
    void mfieldSwapColumns(int, int) override { }
    void mfieldDeleteRows(int, int) override { }
    void mfieldAddRows(int, int) override { }
    void mfieldSet1Value(int, int, QString, SbString *previousData) override { delete previousData; }
    void mfieldSetValue(int, const void *) override { }

private:
    static void fieldChanged(void *self, SoSensor *) { static_cast<UndoManager *>(self)->m_refresh.start(0); }

    bool isDragged() const { return m_slider && m_slider->isSliderDown(); }

    void record()
    {
        if (!m_field || m_field->isSame(*m_known))
            return;
        FieldValue before = std::exchange(m_known, copyOf(*m_field));
        m_undo.push(new ChangeField(*m_field, std::move(before), m_known));
    }

    void refreshEditor()
    {
        if (!m_editor || !m_field || isDragged())
            return;
        m_known = copyOf(*m_field);
        m_editor->refresh();
    }

    SoField *m_field; ///< null once it is gone: steps keep its node, but a field without a step may die
    QUndoStack &m_undo;
    FieldValue m_known;
    SoFieldSensor m_sensor;
    QTimer m_refresh;
    QPointer<HbSFieldWidget> m_editor;
    QPointer<QSlider> m_slider;
};
} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    SoDB::init();

    auto *cone = new SoCone;
    cone->ref();
    {
        QUndoStack undo;
        UndoManager manager(cone->height, undo);
        QMainWindow window;
        QMenu *edit = window.menuBar()->addMenu(QStringLiteral("&Edit"));
        edit->addAction(undo.createUndoAction(&window));
        edit->addAction(undo.createRedoAction(&window));

        auto *editor
            = new HbSFFloatWidget("height", HbRangeComponent(0.0F, 10.0F, false), &manager, &window, nullptr, {});
        editor->setField(&cone->height);
        editor->refresh();
        editor->show();
        manager.serve(editor);
        window.setCentralWidget(editor);
        window.show();
        QApplication::exec();
    }
    cone->unref();
    return 0;
}
