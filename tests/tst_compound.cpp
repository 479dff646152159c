// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "EditorKinds.h"
#include "TestSupport.h"

#include <HbSFBitMaskWidget.h>
#include <HbSFColorWidget.h>
#include <HbSFEnumWidget.h>
#include <HbSFLineWidget.h>
#include <HbSFNameWidget.h>
#include <HbSFRotationWidget.h>
#include <HbSFStringWidget.h>
#include <HbSFVec2i32Widget.h>

#include <Inventor/fields/SoSFBitMask.h>
#include <Inventor/fields/SoSFColor.h>
#include <Inventor/fields/SoSFString.h>
#include <Inventor/fields/SoSFVec2i32.h>

namespace
{
using Manager = HbFieldEditorCommandManager;

template <class Widget> std::unique_ptr<HbSFieldWidget> labelled(Manager *manager)
{
    return std::make_unique<Widget>("label", manager, nullptr, nullptr, Qt::WindowFlags());
}

template <class Widget> std::unique_ptr<HbSFieldWidget> unlabelled(Manager *manager)
{
    return std::make_unique<Widget>(manager, nullptr, nullptr, Qt::WindowFlags());
}

/// From left to right.
QList<QLineEdit *> edits(const HbSFieldWidget &editor)
{
    return editor.findChildren<QLineEdit *>();
}

QColor swatchColour(const HbSFColorWidget &editor)
{
    const auto *const swatch = editor.findChild<QPushButton *>("m_colorDisp");
    return swatch->icon().pixmap(swatch->iconSize()).toImage().pixelColor(2, 2);
}
} // namespace

/// What is peculiar to each editor of text, choices and several numbers.
class TestCompound : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Complaints::listen(); }
    void cleanup() { QCOMPARE(Complaints::take(), QByteArray()); }

    void withoutALabelEachKeyCommits()
    {
        const std::tuple<const char *, std::unique_ptr<HbSFieldWidget> (*)(Manager *), bool> rows[] = {
            {"SFString", unlabelled<HbSFStringWidget>, false},
            {"SFName", unlabelled<HbSFNameWidget>, false},
            {"SFVec3f", unlabelled<HbSFLineWidget>, true},
        };
        for (const auto &[type, build, isLine] : rows) {
            const std::unique_ptr<SoField> field = makeField(type, "7 7 7");
            RecordingManager manager;
            const auto editor = build(&manager);
            present(*editor, field.get());
            QCOMPARE(manager.takeLog().size(), 1); // showing a text changes it, too
            QLineEdit *const edit = edits(*editor).first();
            QCOMPARE(edit->cursorPosition() == 0, !isLine);
            retype(edit, "abc");
            QCOMPARE(manager.takeLog().size(), 4); // the first key clears the line
            edit->clearFocus();
            QCOMPARE(manager.takeLog().size(), isLine ? 0 : 1);
        }
    }

    void lineWithoutAManager()
    {
        for (const bool hasLabel : {true, false}) {
            const std::unique_ptr<SoField> field = makeField("SFVec3f", "1 2 3");
            const auto editor = (hasLabel ? labelled<HbSFLineWidget> : unlabelled<HbSFLineWidget>)(nullptr);
            present(*editor, field.get());
            QLineEdit *const edit = edits(*editor).first();
            enter(edit, "4 5 6");
            QCOMPARE(textOf(*field), "1 2 3");
            edit->clearFocus();
            QCOMPARE(textOf(*field), hasLabel ? "4 5 6" : "1 2 3");
        }
    }

    void lineOfAString()
    {
        SoSFString field;
        field.setValue("say \"x\" \\ y");
        const auto editor = labelled<HbSFLineWidget>(nullptr);
        present(*editor, &field);
        QCOMPARE(edits(*editor).first()->text(), textOf(field));
        editor->applyChanges();
        QCOMPARE(field.getValue().getString(), "say \"x\" \\ y");
    }

    /// Coin keeps a word and a number in arrays, and writes behind them.
    void textBeyondTheReader()
    {
        const std::pair<const char *, QString> rows[] = {{"SFVec3f", QString(3000, '1')},
                                                         {"SFUInt32", "0x" + QString(600, 'f')},
                                                         {"SFName", QString(70000, 'a')},
                                                         {"SFName", '"' + QString(200000, 'a') + '"'}};
        for (const auto &[type, text] : rows) {
            const auto editor = labelled<HbSFLineWidget>(nullptr);
            const auto field = makeField(type);
            field->set(QByteArray(type) == "SFVec3f" ? "1 2 3" : "7");
            const QString before = textOf(*field);
            editor->setField(field.get());
            editor->findChild<QLineEdit *>("lineEdit")->setText(text);
            editor->applyChanges();
            QCOMPARE(textOf(*field), before);
        }
    }

    void enumerations()
    {
        const SbName names[] = {"A", "B", "\xC4"};
        const auto field = makeField("SFEnum", "B");
        HbSFEnumWidget editor("", nullptr, 3, names, nullptr, nullptr, {});
        present(editor, field.get());
        auto *const box = editor.findChild<QComboBox *>("comboBox");
        QCOMPARE(box->itemText(2), "\u00c4");
        field->set("C"); // no entry: it takes over the one that is shown
        editor.refresh();
        QCOMPARE(box->currentIndex(), 1);
        QCOMPARE(box->currentText(), "C");
        field->set("A");
        editor.applyChanges();
        QCOMPARE(textOf(*field), "C");

        struct Speaker : SoSFEnum {
            void writeValue(SoOutput *out) const override { out->write("A"); }
        } speaker; // tells its value itself
        speaker.setEnums(2, std::array{0, 1}.data(), names);
        speaker.setValue(1);
        editor.setField(&speaker);
        editor.refresh();
        QCOMPARE(box->currentText(), "A");

        const auto empty = unlabelled<HbSFEnumWidget>(nullptr);
        present(*empty, field.get());
        QCOMPARE(empty->findChild<QComboBox *>()->count(), 0);
    }

    void bitMasks()
    {
        SoSFBitMask field;
        const int values[] = {0, 1, 2, 4, 6};
        const SbName names[] = {"NONE", "ONE", "TWO", "FOUR", "SIX"};
        field.setEnums(5, values, names);
        field.setValue(2);
        RecordingManager manager;
        HbSFBitMaskWidget editor(&field, "mask", &manager, nullptr, nullptr, {});
        editor.show();
        QStringList boxes;
        for (const QCheckBox *const box : editor.findChildren<QCheckBox *>())
            boxes << box->text() + QString::number(box->isChecked());
        QCOMPARE(boxes, QStringList({"ONE0", "TWO1", "FOUR0", "SIX1"}));
        editor.findChild<QCheckBox *>("ONE")->click();
        QCOMPARE(field.getValue(), 7);
        QCOMPARE(manager.log, QStringList()); // it is not told

        field.setValue(4);
        editor.refresh();
        editor.applyChanges();
        QCOMPARE(field.getValue(), 4);
        QVERIFY(!editor.findChild<QCheckBox *>("FOUR")->isChecked()); // as it was at the start

        HbSFBitMaskWidget fieldless(nullptr, &manager, nullptr, nullptr, {});
        QVERIFY(fieldless.findChildren<QCheckBox *>().isEmpty());
    }

    void pinnedPairs()
    {
        RecordingManager manager;
        SoSFVec2i32 wide;
        wide.setValue(5, 6);
        HbSFVec2i32Widget pinned("", &manager, nullptr, nullptr, {});
        QCOMPARE(manager.takeLog().size(), 2); // each box falls to -1
        present(pinned, &wide);
        QVERIFY(wide.getValue() == SbVec2i32(5, 6));
        pinned.applyChanges();
        QVERIFY(wide.getValue() == SbVec2i32(-1, -1));
    }

    /// An empty edit commits nothing by itself and counts as 0 when another one does.
    void unfinishedComponents()
    {
        const QByteArrayList names{"HbSFVec3fWidget", "HbSFVec4fWidget", "HbSFMatrixWidget", "HbSFBox3sWidget"};
        for (const EditorKind &kind : editorKinds()) {
            if (!names.contains(kind.name))
                continue;
            const auto field = makeField(kind.fieldType, kind.values.last().toUtf8().constData());
            const std::unique_ptr<HbSFieldWidget> editor(kind.build(nullptr));
            present(*editor, field.get());
            QList<QLineEdit *> components = edits(*editor);
            if (!components.first()->validator())
                components.removeFirst(); // the line of the whole value
            for (const char *const text : {"", "-"}) {
                enter(components[1], QLatin1String(text));
                QCOMPARE(textOf(*field), kind.values.last());
            }
            QTest::keyClick(components[0], Qt::Key_Return);
            QStringList expected = kind.values.last().split(' ');
            expected[1] = "0";
            QCOMPARE(textOf(*field), expected.join(' '));
        }
    }

    void rotations()
    {
        const auto field = makeField("SFRotation", "0 0 1 1.5707963");
        const QString before = textOf(*field);
        const auto editor = labelled<HbSFRotationWidget>(nullptr);
        present(*editor, field.get());
        QCOMPARE(edits(*editor)[3]->text(), "1.5708");
        retype(edits(*editor)[0], "2");
        QTest::keyClick(edits(*editor)[0], Qt::Key_Tab); // on to the next component
        retype(edits(*editor)[2], "0");
        QCOMPARE(textOf(*field), before);
        QTest::keyClick(edits(*editor)[2], Qt::Key_Return);
        QVERIFY(isSameOnDisplay(*field, textOf(*field), "1 0 0 1.5708"));

        const auto eager = unlabelled<HbSFRotationWidget>(nullptr);
        present(*eager, field.get());
        retype(edits(*eager)[3], "0.25");
        QTest::keyClick(edits(*eager)[3], Qt::Key_Tab);
        QVERIFY(isSameOnDisplay(*field, textOf(*field), "1 0 0 0.25"));

        editor->refresh();
        field->set("0 0 1 1");
        QFocusEvent leaving(QEvent::FocusOut);
        QCoreApplication::sendEvent(editor.get(), &leaving); // nothing was edited
        QVERIFY(isSameOnDisplay(*field, textOf(*field), "0 0 1 1"));
    }

    void colourDialog()
    {
        const std::tuple<const char *, QColor, QColor, const char *> rows[] = {
            {"0 0.2 0", QColor(128, 1, 0), QColor(0, 51, 0), "0.501961 0.00392157 0"},
            {"0.501961291 0 0", QColor(128, 0, 0), QColor(128, 0, 0), "0.501961 0 0"}, // both are shown as one text
            {"1 0.5 0", QColor(), QColor(255, 127, 0), "1 0.5 0"}, // cancelled
            {"2 0 0", QColor(), QColor(Qt::black), "2 0 0"}, // too bright
        };
        for (const auto &[before, picked, expected, after] : rows) {
            const auto field = makeField("SFColor", before);
            HbSFColorWidget editor("", nullptr, nullptr, nullptr, {});
            present(editor, field.get());
            QColor offered, chosen = picked;
            onceOpen([&](QColorDialog &dialog) {
                offered = dialog.currentColor();
                dialog.setCurrentColor(chosen.isValid() ? chosen : QColor(Qt::green));
                chosen.isValid() ? dialog.accept() : dialog.reject();
            });
            editor.findChild<QPushButton *>("m_colorDisp")->click();
            QCOMPARE(offered, expected);
            QVERIFY2(isSameOnDisplay(*field, textOf(*field), after), qPrintable(textOf(*field)));
            const auto &value = static_cast<const SoSFColor &>(*field).getValue();
            QVERIFY(picked != QColor(128, 0, 0) || value[0] == 128 / 255.0F);
        }
    }

    void swatch()
    {
        const std::tuple<const char *, int, QString, QColor> rows[] = {
            {"1 0 1", 1, "0.5", QColor(255, 127, 255)}, {"1 0 1", 2, "", QColor(255, 0, 0)},
            {"0 0 1", 0, "2", QColor(0, 0, 255)}, // too bright, as the next two: it stays
            {"0 0 1", 0, "nan", QColor(0, 0, 255)},     {"0 0 1", 0, "-1e30", QColor(0, 0, 255)},
        };
        for (const auto &[before, component, typed, colour] : rows) {
            const auto field = makeField("SFColor", before);
            HbSFColorWidget editor("", nullptr, nullptr, nullptr, {});
            present(editor, field.get());
            edits(editor)[component]->selectAll();
            edits(editor)[component]->insert(typed);
            QCOMPARE(swatchColour(editor), colour);
            QCOMPARE(textOf(*field), QString(before)); // not yet
        }
    }
};

QTEST_MAIN(TestCompound)
#include "tst_compound.moc"
