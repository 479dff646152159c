// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TestSupport.h"

#include <HbSFieldWidget.h>

#include <Inventor/nodes/SoCone.h>

namespace
{
/// Reaches what is protected, and counts direct writes.
class Widget : public HbSFieldWidget
{
public:
    using HbSFieldWidget::HbSFieldWidget;
    void applyChanges() override { ++writes; }

    using HbSFieldWidget::editedField;
    using HbSFieldWidget::setCommandValue;
    using HbSFieldWidget::setDefaultFieldValue;
    int writes = 0;
};

QPushButton *button(const QWidget &widget, const char *name)
{
    return widget.findChild<QPushButton *>(QLatin1String(name));
}
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

    void managerMayDieFirst()
    {
        const Ref<SoCone> cone;
        cone->height = 7;
        auto manager = std::make_unique<RecordingManager>();
        Widget orphan(manager.get(), nullptr, nullptr, {});
        manager.reset(); // from here on as if there never was one
        Widget alone(nullptr, nullptr, nullptr, {});
        for (Widget *const widget : {&alone, &orphan}) {
            widget->setField(&cone->height);
            button(*widget, "m_defaultButton")->click();
            QCOMPARE(cone->height.getValue(), 7.0f);
        }
        orphan.setCommandValue();
        QCOMPARE(orphan.writes, 1);
        button(orphan, "m_ignoreButton")->click();
        QVERIFY(cone->height.isIgnored());
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

    void safeWithoutAField()
    {
        Widget widget(nullptr, nullptr, nullptr, {});
        {
            const Ref<SoCone> cone;
            widget.setField(&cone->height);
        }
        QCOMPARE(widget.editedField(), nullptr); // it died
        widget.setCommandValue();
        widget.setDefaultFieldValue();
        widget.updateEditor();
    }
};

QTEST_MAIN(TestEditors)
#include "tst_editors.moc"
