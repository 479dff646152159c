// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TestSupport.h"

#include <HbRangeComponent.h>
#include <HbSFBoolWidget.h>
#include <HbSFFloatWidget.h>
#include <HbSFInt32Widget.h>
#include <HbSFShortWidget.h>
#include <HbSFUInt32Widget.h>
#include <HbSFUShortWidget.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QSlider>

#include <Inventor/fields/SoSFFloat.h>
#include <Inventor/fields/SoSFShort.h>
#include <Inventor/fields/SoSFUShort.h>

#include <functional>

namespace
{
using Manager = HbFieldEditorCommandManager;

/// One row of the contract: an editor, its field's type, and values in the field's notation.
struct EditorKind {
    const char *name;
    const char *fieldType;
    std::function<HbSFieldWidget *(Manager *)> build;
    QStringList values; ///< extremes among them
    QString typed; ///< what a person types; empty for the check box
    QString written; ///< what the field then holds
};

const HbRangeComponent integers(0, 100, false);
const HbRangeComponent reals(0.0f, 10.0f, false);

const EditorKind kinds[] = {
    {"HbSFFloatWidget",
     "SFFloat",
     [](Manager *manager) { return new HbSFFloatWidget("label", reals, manager, nullptr, nullptr, {}); },
     {"0", "-5", "250", "3.40282e+38", "-1.17549e-38", "nan", "inf", "-inf"},
     "2.5",
     "2.5"},
    {"HbSFInt32Widget",
     "SFInt32",
     [](Manager *manager) { return new HbSFInt32Widget("label", integers, manager, nullptr, nullptr, {}); },
     {"0", "-12", "2147483647", "-2147483648"},
     "-7",
     "-7"},
    {"HbSFShortWidget",
     "SFShort",
     [](Manager *manager) { return new HbSFShortWidget("label", integers, manager, nullptr, nullptr, {}); },
     {"0", "32767", "-32768"},
     "123",
     "123"},
    {"HbSFUInt32Widget",
     "SFUInt32",
     [](Manager *manager) { return new HbSFUInt32Widget("label", integers, manager, nullptr, nullptr, {}); },
     {"0x10", "0xffffffff", "0"},
     "ff",
     "0xff"},
    {"HbSFUShortWidget",
     "SFUShort",
     [](Manager *manager) { return new HbSFUShortWidget("label", integers, manager, nullptr, nullptr, {}); },
     {"0x10", "0xffff", "0"},
     "2a",
     "0x2a"},
    {"HbSFBoolWidget",
     "SFBool",
     [](Manager *manager) { return new HbSFBoolWidget("label", manager, nullptr, nullptr, {}); },
     {"TRUE", "FALSE"},
     QString(),
     "TRUE"},
};

/// An editor of the kind in the test's row, with a field of its own.
struct Bench {
    explicit Bench(Manager *manager)
        : kind(kinds[currentRow]), field(static_cast<SoField *>(SoType::fromName(kind.fieldType).createInstance())),
          editor(kind.build(manager)), edit(editor->findChild<QLineEdit *>()),
          box(editor->findChild<QCheckBox *>(QStringLiteral("m_box")))
    {
        set(kind.values.first());
        editor->setField(field.get());
        editor->refresh();
        editor->show();
    }

    void set(const QString &text) { setText(*field, text); }
    QString text() const
    {
        SbString text;
        field->get(text);
        return QString::fromUtf8(text.getString());
    }
    void change()
    {
        if (!edit) {
            box->click();
            return;
        }
        retype(edit, kind.typed);
        QTest::keyClick(edit, Qt::Key_Return);
    }

    /// Field text does not tell infinities and NaN, which a field may hold all the same.
    static void setText(SoField &field, const QString &text)
    {
        if (text.contains(QLatin1Char('n')) && field.isOfType(SoSFFloat::getClassTypeId()))
            static_cast<SoSFFloat &>(field).setValue(text.toFloat());
        else
            field.set(text.toUtf8().constData());
    }

    static inline int currentRow = 0;
    const EditorKind &kind;
    std::unique_ptr<SoField> field;
    std::unique_ptr<HbSFieldWidget> editor;
    QLineEdit *edit;
    QCheckBox *box;
};
} // namespace

/// The contract that every editor of a single value keeps.
class TestSFWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Complaints::listen(); }
    void init()
    {
        Bench::currentRow = 0;
        while (QTest::currentDataTag() && qstrcmp(kinds[Bench::currentRow].name, QTest::currentDataTag()) != 0)
            ++Bench::currentRow;
        Complaints::expect(Complaints::missingDefaultSlot);
    }
    void cleanup() { QCOMPARE(Complaints::take(), QByteArray()); }

    void showsEveryValueAndKeepsIt_data() { addKinds(); }
    void showsEveryValueAndKeepsIt()
    {
        Bench bench(nullptr);
        QCOMPARE(bench.editor->objectName(), QLatin1String(bench.kind.name));
        for (const QString &value : bench.kind.values) {
            bench.set(value);
            const QString held = bench.text();
            bench.editor->refresh();
            QCOMPARE(bench.text(), held); // looking changes nothing
            bench.editor->grab();
            bench.editor->applyChanges();
            QCOMPARE(bench.text(), held);
            QVERIFY(!bench.editor->edited());
        }
    }

    void writesOnceWithoutAManager_data() { addKinds(); }
    void writesOnceWithoutAManager()
    {
        Bench bench(nullptr);
        bench.set(bench.kind.values.last());
        bench.editor->refresh();
        bench.change();
        QCOMPARE(bench.text(), bench.kind.written);
    }

    void reportsToAManager_data() { addKinds(); }
    void reportsToAManager()
    {
        RecordingManager manager;
        Bench bench(&manager);
        bench.set(bench.kind.values.last());
        bench.editor->refresh();
        const QString held = bench.text();
        bench.change();
        QCOMPARE(bench.text(), held);
        QCOMPARE(manager.log.first(), QStringLiteral("sfield null"));
        manager.takeLog();
        bench.editor->refresh(); // the manager refused: the real value is back
        bench.editor->applyChanges();
        QCOMPARE(bench.text(), held);

        manager.onCommit = [&bench] {
            bench.editor->applyChanges();
            bench.editor->refresh();
        };
        bench.change();
        QCOMPARE(manager.takeLog(), QStringList({"sfield null"}));
        QCOMPARE(bench.text(), bench.kind.written);
    }

    void survivesWhateverIsTyped_data() { addKinds(); }
    void survivesWhateverIsTyped()
    {
        Bench bench(nullptr);
        if (!bench.edit)
            return;
        QRandomGenerator random(1);
        const QString alphabet = QStringLiteral("0123456789abcdefx+-.,eE \"'\\%nanif\u00e4\u20ac");
        for (int round = 0; round < 60; ++round) {
            QString text;
            for (int i = random.bounded(1, 14); i > 0; --i)
                text += alphabet.at(random.bounded(static_cast<int>(alphabet.size())));
            retype(bench.edit, text);
            QTest::keyClick(bench.edit, Qt::Key_Return);
            const QString held = bench.text();
            bench.editor->refresh();
            bench.editor->applyChanges();
            QVERIFY2(bench.text() == held, qPrintable(text + QLatin1Char(' ') + held));
        }
    }

    void copesWithoutItsField_data() { addKinds(); }
    void copesWithoutItsField()
    {
        Bench bench(nullptr);
        bench.field.reset();
        bench.editor->refresh();
        bench.change();
        std::unique_ptr<SoField> other(static_cast<SoField *>(SoType::fromName("SFString").createInstance()));
        bench.editor->setField(other.get()); // not a field of its type
        bench.editor->refresh();
        bench.editor->setField(nullptr);
        bench.change();
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
        QCOMPARE(editor.findChild<QLineEdit *>()->text(), QStringLiteral("250"));
        field = 100; // in the middle of what is now a range up to 250
        editor.refresh();
        QCOMPARE(slider->value() - slider->minimum(), width * 100 / 250);
    }

    void sixteenBits()
    {
        SoSFShort number;
        SoSFUShort natural;
        HbSFShortWidget signedEditor("", integers, nullptr, nullptr, nullptr, {});
        HbSFUShortWidget unsignedEditor("", integers, nullptr, nullptr, nullptr, {});
        signedEditor.setField(&number);
        unsignedEditor.setField(&natural);
        // both sliders can be dragged beyond 16 bits: one is cut here, the other by the field
        signedEditor.findChild<QSlider *>()->setMaximum(70000);
        signedEditor.findChild<QSlider *>()->setValue(70000);
        QCOMPARE(number.getValue(), short(4464));
        auto *const slider = unsignedEditor.findChild<QSlider *>();
        slider->setMaximum(std::numeric_limits<int>::min() + 70000);
        slider->setValue(slider->maximum());
        QCOMPARE(natural.getValue(), static_cast<unsigned short>(4464));
    }

    void boolStandsBetweenEqualStretches()
    {
        HbSFBoolWidget editor("flag", nullptr, nullptr, nullptr, {});
        editor.resize(400, 30);
        editor.show();
        const auto *const box = editor.findChild<QCheckBox *>(QStringLiteral("m_box"));
        const QRect frame(box->mapTo(&editor, QPoint()), box->size());
        const QWidget *const label = editor.findChild<QWidget *>(QStringLiteral("m_label"));
        const QWidget *const button = editor.findChild<QWidget *>(QStringLiteral("m_defaultButton"));
        const int left = frame.left() - label->geometry().right();
        const int right = button->mapTo(&editor, QPoint()).x() - frame.right();
        QVERIFY2(left > 50 && qAbs(left - right) < 4, qPrintable(QStringLiteral("%1 %2").arg(left).arg(right)));
    }

private:
    static void addKinds()
    {
        QTest::addColumn<int>("nothing");
        for (const EditorKind &kind : kinds)
            QTest::newRow(kind.name) << 0;
    }
};

QTEST_MAIN(TestSFWidgets)
#include "tst_sfwidgets.moc"
