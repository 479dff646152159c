// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "EditorKinds.h"
#include "TestSupport.h"

#include <HbRangeComponent.h>
#include <HbSFFloatWidget.h>
#include <HbSFShortWidget.h>

#include <QRandomGenerator>

#include <Inventor/SoLists.h>
#include <Inventor/errors/SoReadError.h>
#include <Inventor/fields/SoSFFloat.h>
#include <Inventor/fields/SoSFShort.h>
#include <Inventor/fields/SoSField.h>

namespace
{
using Manager = HbFieldEditorCommandManager;

/// An editor of the kind in the test's row, with a field of its own.
struct Bench {
    explicit Bench(Manager *manager) : kind(kindOfRow()), field(makeField(kind.fieldType)), editor(kind.build(manager))
    {
        set(kind.values.first());
        present(*editor, field.get());
    }

    void set(const QString &text) { setText(*field, text); }
    QString text() const { return textOf(*field); }
    bool shows(const QString &value) const { return isSameOnDisplay(*field, text(), value); }
    void change(const QString &typed) { kind.change(*editor, typed); }
    void change() { change(kind.typed); }
    QPushButton *button(const char *name) const { return editor->findChild<QPushButton *>(QLatin1String(name)); }

    static const EditorKind &kindOfRow()
    {
        QFETCH(std::size_t, row);
        return editorKinds().at(row);
    }

    const EditorKind &kind;
    std::unique_ptr<SoField> field;
    std::unique_ptr<HbSFieldWidget> editor;
};

QByteArray describe(const QString &first, const QString &second)
{
    return first.left(200).toUtf8() + " | " + second.left(200).toUtf8();
}
} // namespace

/// The contract that every editor of a single value keeps, on a desktop that writes a comma in its numbers.
class TestSFWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Complaints::listen();
        SoReadError::setHandlerCallback([](const SoError *, void *) {}, nullptr); // of what is typed
    }
    void cleanup() { QCOMPARE(Complaints::take(), QByteArray()); }

    void showsEveryValueAndKeepsIt_data() { addKinds(); }
    void showsEveryValueAndKeepsIt()
    {
        Bench bench(nullptr);
        QCOMPARE(bench.editor->objectName(), QLatin1String(bench.kind.name));
        for (const QWidget *const part : bench.editor->findChildren<QWidget *>())
            QVERIFY2(!part->objectName().isEmpty() || part->inherits("QAbstractItemView"),
                     part->metaObject()->className());
        for (const QString &value : bench.kind.values) {
            bench.set(value);
            const QString held = bench.text();
            bench.editor->refresh();
            QCOMPARE(bench.text(), held); // looking changes nothing
            bench.editor->grab();
            bench.set(bench.kind.values.first());
            bench.editor->applyChanges(); // writes what was shown
            QVERIFY2(bench.shows(held), describe(held, bench.text()));
            QVERIFY(!bench.editor->edited());
        }
    }

    void keepsRandomValues_data()
    {
        addKinds();
        const auto &kinds = editorKinds();
        const auto line = std::find_if(kinds.begin(), kinds.end(),
                                       [](const EditorKind &kind) { return kind.name == "HbSFLineWidget"; });
        SoTypeList types;
        SoType::getAllDerivedFrom(SoSField::getClassTypeId(), types);
        const QByteArrayList withoutNumbers{"SFNode",  "SFPath",   "SFEngine",  "SFTrigger",
                                            "SFImage", "SFImage3", "SFBitMask", "SFString"};
        for (int i = 0; i < types.getLength(); ++i) {
            const QByteArray type = types[i].getName().getString();
            if (types[i].canCreateInstance() && !withoutNumbers.contains(type))
                QTest::addRow("line of %s", type.constData()) << std::size_t(line - kinds.begin()) << type;
        }
    }
    void keepsRandomValues()
    {
        QFETCH(QByteArray, fieldType);
        const std::unique_ptr<SoField> field = makeField(fieldType.constData());
        const std::unique_ptr<SoField> before = makeField(fieldType.constData());
        const std::unique_ptr<HbSFieldWidget> editor(Bench::kindOfRow().build(nullptr));
        editor->setField(field.get());
        QRandomGenerator random(7);
        for (int round = 0; round < 1000; ++round) {
            setRandomValue(*field, random);
            before->copyFrom(*field);
            editor->refresh();
            editor->applyChanges();
            const QString held = textOf(*before);
            const QString now = textOf(*field);
            QVERIFY2(field->isSame(*before) || isSameOnDisplay(*field, held, now), describe(held, now));
        }
    }

    void writesWithoutAManager_data() { addKinds(); }
    void writesWithoutAManager()
    {
        Bench bench(nullptr);
        bench.set(bench.kind.values.last());
        bench.editor->refresh();
        Listener listener(*bench.field);
        bench.change();
        const int writes = listener.take();
        QVERIFY2(bench.shows(bench.kind.written), describe(bench.text(), bench.kind.written));
        QVERIFY2(writes == 1 || writes == commitsOnReturn, qPrintable(QString::number(writes)));
        bench.button("m_ignoreButton")->click();
        QVERIFY(bench.field->isIgnored());
        bench.field->setIgnored(FALSE);
        bench.editor->refresh();
        QVERIFY(!bench.button("m_ignoreButton")->isChecked());
    }

    void leavingCommits_data() { addKinds(); }
    void leavingCommits()
    {
        RecordingManager manager;
        Bench bench(&manager);
        auto *edit = bench.editor->findChild<QLineEdit *>();
        if (!edit || qstrcmp(bench.kind.fieldType, "SFRotation") == 0)
            return; // a half-edited rotation is not written
        if (!edit->isEnabled()) {
            bench.button("m_editButton")->click();
            edit = bench.editor->findChild<QLineEdit *>("popupEdit_0_0");
        }
        manager.takeLog();
        edit->setFocus();
        edit->clearFocus();
        QCOMPARE(manager.takeLog(), QStringList());
        retype(edit, bench.kind.typed);
        edit->clearFocus();
        QCOMPARE(manager.takeLog(), QStringList({"sfield null"}));
    }

    void reportsToAManager_data() { addKinds(); }
    void reportsToAManager()
    {
        RecordingManager manager;
        Bench bench(&manager);
        bench.set(bench.kind.values.last());
        bench.editor->refresh();
        const QString held = bench.text();
        manager.takeLog();
        bench.change();
        QCOMPARE(bench.text(), held);
        QCOMPARE(manager.log.value(0), "sfield null");
        bench.editor->refresh(); // the manager refused: the real value is back
        bench.editor->applyChanges();
        QCOMPARE(bench.text(), held);

        manager.takeLog();
        bench.button("m_defaultButton")->click();
        bench.button("m_ignoreButton")->click();
        QCOMPARE(manager.takeLog(), QStringList({"default", "ignored 1"}));
        QVERIFY(bench.text() == held && !bench.field->isIgnored());

        manager.onCommit = [&bench] {
            bench.editor->applyChanges();
            bench.editor->refresh();
        };
        bench.change();
        QCOMPARE(manager.takeLog(), QStringList({"sfield null"})); // once, though Return and leaving follow each other
        QVERIFY2(bench.shows(bench.kind.written), describe(bench.text(), bench.kind.written));
    }

    void deaths_data() { addKinds(); }
    void deaths()
    {
        RecordingManager manager;
        for (Manager *const used : {static_cast<Manager *>(&manager), static_cast<Manager *>(nullptr)}) {
            Bench bench(used);
            manager.takeLog();
            bench.field.reset();
            bench.editor->refresh();
            bench.change();
            for (const char *const name : {"m_ignoreButton", "m_defaultButton"})
                bench.button(name)->click();
            QCOMPARE(manager.takeLog(), QStringList()); // there is nothing to tell of
            Bench doomed(used); // an editor goes while somebody types in it
            doomed.change(); // shows the popup where there is one
            QLineEdit *edit = doomed.editor->findChild<QLineEdit *>("popupEdit_0_0");
            if (!edit)
                edit = doomed.editor->findChild<QLineEdit *>();
            if (edit && !doomed.editor->findChild<QSpinBox *>()) // which commits each key
                retype(edit, doomed.kind.typed);
            manager.takeLog();
            doomed.editor.reset();
            QCOMPARE(manager.takeLog(), QStringList());
        }
    }

    void floatWidensItsRange()
    {
        SoSFFloat field;
        HbSFFloatWidget editor("", HbRangeComponent(0.0f, 100.0f, true), nullptr, nullptr, nullptr, {});
        editor.setField(&field);
        auto *const slider = editor.findChild<QSlider *>();
        const int width = slider->maximum() - slider->minimum();
        field = 250;
        editor.refresh();
        QCOMPARE(editor.findChild<QLineEdit *>()->text(), "250");
        field = 100; // in the middle of what is now a range up to 250
        editor.refresh();
        QCOMPARE(slider->value() - slider->minimum(), width * 100 / 250);
    }

    void sixteenBits()
    {
        SoSFShort number;
        HbSFShortWidget editor("", HbRangeComponent(0, 100, false), nullptr, nullptr, nullptr, {});
        editor.setField(&number);
        editor.findChild<QSlider *>()->setMaximum(70000);
        editor.findChild<QSlider *>()->setValue(70000);
        QCOMPARE(number.getValue(), short(4464));
    }

private:
    static void addKinds()
    {
        QTest::addColumn<std::size_t>("row");
        QTest::addColumn<QByteArray>("fieldType");
        for (std::size_t row = 0; row < editorKinds().size(); ++row)
            QTest::newRow(editorKinds()[row].name.constData()) << row << QByteArray(editorKinds()[row].fieldType);
    }
};

QTEST_MAIN(TestSFWidgets)
#include "tst_sfwidgets.moc"
