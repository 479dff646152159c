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

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include <Inventor/fields/SoSFBitMask.h>
#include <Inventor/fields/SoSFString.h>
#include <Inventor/fields/SoSFVec2i32.h>

#include <functional>

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

void open(HbSFieldWidget &editor, SoField &field)
{
    editor.setField(&field);
    editor.refresh();
    editor.show();
    QApplication::setActiveWindow(&editor);
}

/// From left to right.
QList<QLineEdit *> edits(const HbSFieldWidget &editor)
{
    return editor.findChildren<QLineEdit *>();
}

/// Does @p action once the colour dialog is open, which is closed after it in any case.
void onceOpen(const std::function<void(QColorDialog &)> &action)
{
    QTimer::singleShot(0, qApp, [action] {
        const QPointer<QColorDialog> dialog(qobject_cast<QColorDialog *>(QApplication::activeModalWidget()));
        if (dialog)
            action(*dialog);
        if (dialog && dialog->isVisible())
            dialog->reject();
    });
}

QColor swatchColour(const HbSFColorWidget &editor)
{
    const auto *const swatch = editor.findChild<QPushButton *>(QStringLiteral("m_colorDisp"));
    return swatch->icon().pixmap(swatch->iconSize()).toImage().pixelColor(2, 2);
}
} // namespace

/// What is peculiar to each editor of text, choices and several numbers.
class TestCompound : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Complaints::listen(); }
    void init()
    {
        Complaints::expect(Complaints::missingDefaultSlot);
        Complaints::expect(Complaints::missingApplySlot);
    }
    void cleanup() { QCOMPARE(Complaints::take(), QByteArray()); }

    void withoutALabelEachKeyCommits()
    {
        const struct {
            const char *type;
            std::unique_ptr<HbSFieldWidget> (*build)(Manager *);
            bool isLine;
        } rows[] = {
            {"SFString", unlabelled<HbSFStringWidget>, false},
            {"SFName", unlabelled<HbSFNameWidget>, false},
            {"SFVec3f", unlabelled<HbSFLineWidget>, true},
        };
        for (const auto &row : rows) {
            const std::unique_ptr<SoField> field = makeField(row.type, "7 7 7");
            RecordingManager manager;
            const auto editor = row.build(&manager);
            open(*editor, *field);
            QCOMPARE(manager.takeLog().size(), 1); // showing a text changes it, too
            QLineEdit *const edit = edits(*editor).first();
            QCOMPARE(edit->cursorPosition() == 0, !row.isLine);
            retype(edit, QStringLiteral("abc"));
            QCOMPARE(manager.takeLog().size(), 4); // the first key clears the line
            edit->clearFocus();
            QCOMPARE(manager.takeLog().size(), row.isLine ? 0 : 1);
        }
    }

    void lineWithoutAManager()
    {
        for (const bool hasLabel : {true, false}) {
            const std::unique_ptr<SoField> field = makeField("SFVec3f", "1 2 3");
            const auto editor = hasLabel ? labelled<HbSFLineWidget>(nullptr) : unlabelled<HbSFLineWidget>(nullptr);
            open(*editor, *field);
            QLineEdit *const edit = edits(*editor).first();
            retype(edit, QStringLiteral("4 5 6"));
            QTest::keyClick(edit, Qt::Key_Return);
            QCOMPARE(textOf(*field), QStringLiteral("1 2 3"));
            edit->clearFocus();
            QCOMPARE(textOf(*field), hasLabel ? QStringLiteral("4 5 6") : QStringLiteral("1 2 3"));
        }
    }

    void lineOfAString()
    {
        SoSFString field;
        field.setValue("say \"x\" \\ y");
        const auto editor = labelled<HbSFLineWidget>(nullptr);
        open(*editor, field);
        QCOMPARE(edits(*editor).first()->text(), textOf(field));
        editor->applyChanges();
        QCOMPARE(field.getValue().getString(), "say \"x\" \\ y");
    }

    void enumerations()
    {
        const SbName names[] = {"A", "B", "\xC4"};
        const auto field = makeField("SFEnum", "B");
        HbSFEnumWidget editor("", nullptr, 3, names, nullptr, nullptr, {});
        open(editor, *field);
        auto *const box = editor.findChild<QComboBox *>(QStringLiteral("comboBox"));
        QCOMPARE(box->itemText(2), QStringLiteral("\u00c4"));
        field->set("C"); // no entry: it takes over the one that is shown
        editor.refresh();
        QCOMPARE(box->currentIndex(), 1);
        QCOMPARE(box->currentText(), QStringLiteral("C"));
        field->set("A");
        editor.applyChanges();
        QCOMPARE(textOf(*field), QStringLiteral("C"));

        const auto empty = unlabelled<HbSFEnumWidget>(nullptr);
        open(*empty, *field);
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
        editor.findChild<QCheckBox *>(QStringLiteral("ONE"))->click();
        QCOMPARE(field.getValue(), 7);
        QCOMPARE(manager.log, QStringList()); // it is not told

        field.setValue(4);
        editor.refresh();
        editor.applyChanges();
        QCOMPARE(field.getValue(), 4);
        QVERIFY(!editor.findChild<QCheckBox *>(QStringLiteral("FOUR"))->isChecked()); // as it was at the start

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
        open(pinned, wide);
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
            open(*editor, *field);
            QList<QLineEdit *> components = edits(*editor);
            if (!components.first()->validator())
                components.removeFirst(); // the line of the whole value
            for (const char *const text : {"", "-"}) {
                retype(components[1], QLatin1String(text));
                QTest::keyClick(components[1], Qt::Key_Return);
                QCOMPARE(textOf(*field), kind.values.last());
            }
            QTest::keyClick(components[0], Qt::Key_Return);
            QStringList expected = kind.values.last().split(QLatin1Char(' '));
            expected[1] = QStringLiteral("0");
            QCOMPARE(textOf(*field), expected.join(QLatin1Char(' ')));
        }
    }

    void rotations()
    {
        const auto field = makeField("SFRotation", "0 0 1 1.5707963");
        const QString before = textOf(*field);
        const auto editor = labelled<HbSFRotationWidget>(nullptr);
        open(*editor, *field);
        QCOMPARE(edits(*editor)[3]->text(), QStringLiteral("1.5708"));
        retype(edits(*editor)[0], QStringLiteral("2"));
        QTest::keyClick(edits(*editor)[0], Qt::Key_Tab); // on to the next component
        retype(edits(*editor)[2], QStringLiteral("0"));
        QCOMPARE(textOf(*field), before);
        QTest::keyClick(edits(*editor)[2], Qt::Key_Return);
        QVERIFY(isSameOnDisplay(*field, textOf(*field), QStringLiteral("1 0 0 1.5708")));

        const auto eager = unlabelled<HbSFRotationWidget>(nullptr);
        open(*eager, *field);
        retype(edits(*eager)[3], QStringLiteral("0.25"));
        QTest::keyClick(edits(*eager)[3], Qt::Key_Tab);
        QVERIFY(isSameOnDisplay(*field, textOf(*field), QStringLiteral("1 0 0 0.25")));

        editor->refresh();
        field->set("0 0 1 1");
        QFocusEvent leaving(QEvent::FocusOut);
        QCoreApplication::sendEvent(editor.get(), &leaving); // nothing was edited
        QVERIFY(isSameOnDisplay(*field, textOf(*field), QStringLiteral("0 0 1 1")));
    }

    void colourDialog()
    {
        const struct {
            const char *before;
            QColor chosen;
            QColor offered;
            const char *after;
        } rows[] = {
            {"0 0.2 0", QColor(128, 1, 0), QColor(0, 51, 0), "0.501961 0.00392157 0"},
            {"1 0.5 0", QColor(), QColor(255, 127, 0), "1 0.5 0"}, // cancelled
            {"2 0 0", QColor(), QColor(Qt::black), "2 0 0"}, // too bright
        };
        for (const auto &row : rows) {
            const auto field = makeField("SFColor", row.before);
            HbSFColorWidget editor("", nullptr, nullptr, nullptr, {});
            open(editor, *field);
            QColor offered;
            onceOpen([&](QColorDialog &dialog) {
                offered = dialog.currentColor();
                dialog.setCurrentColor(row.chosen.isValid() ? row.chosen : QColor(Qt::green));
                row.chosen.isValid() ? dialog.accept() : dialog.reject();
            });
            editor.findChild<QPushButton *>(QStringLiteral("m_colorDisp"))->click();
            QCOMPARE(offered, row.offered);
            QStringList shown;
            for (const QLineEdit *const edit : edits(editor))
                shown << edit->text();
            QCOMPARE(shown.join(QLatin1Char(' ')), QString(row.after));
            QVERIFY(isSameOnDisplay(*field, textOf(*field), row.after));
        }
        HbSFColorWidget fieldless("", nullptr, nullptr, nullptr, {});
        onceOpen([](QColorDialog &dialog) { dialog.setCurrentColor(Qt::blue), dialog.accept(); });
        fieldless.findChild<QPushButton *>(QStringLiteral("m_colorDisp"))->click();
        QCOMPARE(swatchColour(fieldless), QColor(Qt::blue));
    }

    void colourEditorDiesWithItsDialogOpen()
    {
        const auto field = makeField("SFColor", "1 0 0");
        auto *const editor = new HbSFColorWidget("", nullptr, nullptr, nullptr, {});
        open(*editor, *field);
        onceOpen([editor](QColorDialog &) { delete editor; });
        editor->findChild<QPushButton *>(QStringLiteral("m_colorDisp"))->click();
        QCOMPARE(textOf(*field), QStringLiteral("1 0 0"));
    }

    void swatch()
    {
        const struct {
            const char *before;
            int component;
            QString typed;
            QColor colour;
        } rows[] = {
            {"1 0 1", 1, "0.5", QColor(255, 127, 255)}, {"1 0 1", 2, "", QColor(255, 0, 0)},
            {"0 0 1", 0, "2", QColor(0, 0, 255)}, // too bright, as the next two: it stays
            {"0 0 1", 0, "nan", QColor(0, 0, 255)},     {"0 0 1", 0, "-1e30", QColor(0, 0, 255)},
        };
        for (const auto &row : rows) {
            const auto field = makeField("SFColor", row.before);
            HbSFColorWidget editor("", nullptr, nullptr, nullptr, {});
            open(editor, *field);
            edits(editor)[row.component]->selectAll();
            edits(editor)[row.component]->insert(row.typed);
            QCOMPARE(swatchColour(editor), row.colour);
            QCOMPARE(textOf(*field), QString(row.before)); // not yet
        }
    }
};

QTEST_MAIN(TestCompound)
#include "tst_compound.moc"
