// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TestSupport.h"

#include <HbMFColorWidget.h>
#include <HbMFMatrixWidget.h>
#include <HbNscPluginsManagerDialog.h>
#include <HbRangeComponent.h>
#include <HbSFColorWidget.h>
#include <HbSFImageWidget.h>
#include <HbSFLineWidget.h>
#include <HbSFMatrixWidget.h>
#include <HbSFUInt32Widget.h>
#include <HbSFVec2fWidget.h>
#include <HbSFVec2sWidget.h>
#include <HbSFVec3fWidget.h>
#include <HbSFVec4fWidget.h>
#include <HbSlider.h>

#include <QTranslator>

#include <Inventor/fields/SoSFInt32.h>
#include <Inventor/nodes/SoCone.h>

#define main undoHost
#include "examples/undo-host/main.cpp"
#undef main

namespace
{
class Widget : public HbSFieldWidget
{
public:
    using HbSFieldWidget::HbSFieldWidget;
    void applyChanges() override { }
    using HbSFieldWidget::setDefaultFieldValue;
};

class Tilde : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QLatin1Char('~') + QString::fromUtf8(text);
    }
};

/// One editor of each class that translates something.
struct Speaking {
    Speaking()
    {
        for (QWidget *const editor : std::initializer_list<QWidget *>{&color, &image, &matrix, &number, &two, &pair,
                                                                      &three, &four, &colors, &matrices})
            for (QWidget *const part : editor->findChildren<QWidget *>())
                parts << part;
        number.findChild<HbSlider *>()->setValue("0x10"); // which explains itself
    }
    QStringList texts() const
    {
        QStringList all;
        for (const QWidget *const part : parts) {
            const auto *const label = qobject_cast<const QLabel *>(part);
            all << (label ? label->text() : QString()) << part->toolTip() << part->accessibleName();
        }
        return all << colors.findChild<QTableWidget *>()->horizontalHeaderItem(0)->text();
    }

    HbSFColorWidget color{"", nullptr, nullptr, nullptr, {}};
    HbSFImageWidget image{"", nullptr, nullptr, nullptr, {}};
    HbSFMatrixWidget matrix{"", nullptr, nullptr, nullptr, {}};
    HbSFUInt32Widget number{"", HbRangeComponent(0, 100, false), nullptr, nullptr, nullptr, {}};
    HbSFVec2fWidget two{"", nullptr, nullptr, nullptr, {}};
    HbSFVec2sWidget pair{"", nullptr, nullptr, nullptr, {}};
    HbSFVec3fWidget three{"", nullptr, nullptr, nullptr, {}};
    HbSFVec4fWidget four{"", nullptr, nullptr, nullptr, {}};
    HbMFColorWidget colors{"", nullptr, nullptr, nullptr, {}};
    HbMFMatrixWidget matrices{"", nullptr, nullptr, nullptr, {}};
    QList<QWidget *> parts;
};
} // namespace

/// What every editor shares: commands, the frame of the single-value editors.
class TestEditors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Complaints::listen(); }
    void cleanup() { QCOMPARE(Complaints::take(), QByteArray()); }

    void commandsCalledByName()
    {
        RecordingManager manager;
        QMetaObject::invokeMethod(&manager, "mfieldDeleteRows", Q_ARG(int, 4));
        QMetaObject::invokeMethod(&manager, "mfieldSet1Value", Q_ARG(int, 2));
        QCOMPARE(manager.takeLog(), QStringList({"deleteRows 4 1", "set1Value 2 -1 null null"}));
    }

    void unknownFrame()
    {
        RecordingManager manager;
        const Widget odd(static_cast<Widget::SFFrameType>(77), &manager, nullptr, nullptr, {});
        QVERIFY(odd.findChild<QFrame *>(QStringLiteral("m_editionFrame")));
    }

    void defaultValueIsWrittenDirectly()
    {
        RecordingManager manager;
        const Ref<SoCone> cone;
        Widget widget(&manager, nullptr, nullptr, {});
        widget.setField(&cone->height);
        cone->height = 7;
        widget.setDefaultFieldValue();
        QCOMPARE(cone->height.getValue(), 2.0f);
        QCOMPARE(manager.takeLog(), QStringList());

        SoSFFloat loose; // without a container
        loose = 3;
        widget.setField(&loose);
        widget.setDefaultFieldValue();
        QCOMPARE(loose.getValue(), 3.0f);
    }

    void commitWithinACommit()
    {
        SoSFInt32 field;
        RecordingManager manager;
        HbSFLineWidget line(&manager, nullptr, nullptr, {}); // commits at each change of its text
        present(line, &field);
        manager.takeLog();
        manager.onCommit = [&] {
            line.applyChanges();
            field.setValue(field.getValue() + 1); // so that the text is never what was written
            if (manager.log.size() < 50)
                line.refresh();
        };
        line.findChild<QLineEdit *>()->setText("5");
        QCOMPARE(manager.takeLog(), QStringList("sfield null"));
        QCOMPARE(field.getValue(), 6);
        line.refresh(); // commits what it shows where that is another text, as ever
        field.setValue(9);
        line.refresh();
        QCOMPARE(manager.takeLog(), QStringList("sfield null"));
    }

    void languages()
    {
        Speaking before;
        const HbNscPluginsManagerDialog dialog(nullptr, nullptr);
        auto *const host = before.color.findChild<QPushButton *>("m_colorDisp");
        host->setToolTip("of the host");
        const QStringList english = before.texts();
        Tilde tilde;
        QCoreApplication::installTranslator(&tilde);
        QCoreApplication::processEvents();
        Speaking after;
        QCOMPARE(host->toolTip(), "of the host");
        host->setToolTip("~Choose a colour");
        QCOMPARE(before.texts(), after.texts());
        QVERIFY(before.texts().filter("~").size() > 40);
        QCOMPARE(dialog.getWindow()->windowTitle(), "~Plug-ins Management");
        QCoreApplication::removeTranslator(&tilde);
        QCoreApplication::processEvents();
        host->setToolTip("of the host");
        QCOMPARE(before.texts(), english);
    }

    void exampleHostAfterTheFieldDied()
    {
        auto cone = std::make_unique<Ref<SoCone>>();
        SoSFFloat &height = (*cone)->height;
        QUndoStack undo;
        UndoManager manager(height, undo);
        HbSFFloatWidget editor("height", HbRangeComponent(0.0F, 10.0F, false), &manager, nullptr, nullptr, {});
        present(editor, &height);
        manager.serve(&editor);
        height = 3; // it will follow
        cone.reset();
        QCoreApplication::processEvents();
        editor.findChild<QSlider *>()->setValue(70);
        enter(editor.findChild<QLineEdit *>(), "5");
        manager.sfieldSetValue(nullptr);
        manager.fieldSetDefaultValue();
        manager.fieldSetIgnored(true);
        QCOMPARE(undo.count(), 0);
    }
};

QTEST_MAIN(TestEditors)
#include "tst_editors.moc"
