// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "PanelFixture.h"

#include "tools/nodescope/FieldRows.h"
#include "tools/nodescope/MainWindow.h"

#include <HbMFieldTable.h>

#include <QCheckBox>
#include <QClipboard>
#include <QPushButton>

#include <Inventor/SoDB.h>
#include <Inventor/fields/SoFields.h>
#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoMultipleCopy.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoText2.h>

#include <malloc.h>

/// Fields of many values through the panel: one step an edit, taken back to the bit.
class TestTables : public PanelFixture
{
    Q_OBJECT

private Q_SLOTS:
    void everyCommandIsOneExactStep_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("result");
        const std::pair<const char *, const char *> rows[] = {
            {"add", "0 0 0, 1 0.33333334 1, 0 0 0, 2 2 2, 3 3 3"},
            {"delete", "0 0 0, 2 2 2, 3 3 3"},
            {"rows here and there", "1 0.33333334 1"},
            {"typed", "0 0 0, -2.5 0.33333334 1, 2 2 2, 3 3 3"},
            {"up", "1 0.33333334 1, 0 0 0, 2 2 2, 3 3 3"},
            {"up by key", "1 0.33333334 1, 0 0 0, 2 2 2, 3 3 3"},
            {"down", "0 0 0, 2 2 2, 1 0.33333334 1, 3 3 3"},
            {"columns", "0 0 0, 0.33333334 1 1, 2 2 2, 3 3 3"},
            {"paste", "0 0 0, 1 5 6, 2 7 8, 3 3 3"},
            {"paste values", "0 0 0, 4 5 6, 7 8 9, 3 3 3"},
            {"paste into a block", "0 0 0, 1 5 5, 2 5 5, 3 3 3"},
            {"paste a row into rows", "0 0 0, 0 0 0, 0 0 0, 3 3 3"},
            {"paste list", "0 0 0, 4 5 6, 7 8 9, 3 3 3"},
            {"delete the last", "0 0 0, 1 0.33333334 1, 2 2 2"},
            {"paste beyond the end", "0 0 0, 1 0.33333334 1, 2 2 2, 5 6 3, 7 8 0"},
        };
        for (const auto &[command, result] : rows)
            QTest::newRow(command) << QString(command) << QString(result);
    }

    void everyCommandIsOneExactStep()
    {
        QFETCH(QString, command);
        const Ref<SoCoordinate3> points;
        const float values[4][3] = {{0, 0, 0}, {1, 1 / 3.0f, 1}, {2, 2, 2}, {3, 3, 3}};
        points->point.setValues(0, 4, values);
        m_panel->setNode(points);
        const QByteArray before = saved(points);
        const auto copy = FieldRows::copy(points->point, 0, 4);
        Listener listener(points->point);
        run(command);
        QTEST(written(points->point), "result");
        QCOMPARE(listener.take(), 1);
        QCOMPARE(m_stack->count(), 1);
        QCOMPARE(table()->rowCount(), points->point.getNum());
        m_stack->undo();
        QCOMPARE(listener.take(), 1);
        QCOMPARE(saved(points), before);
        QVERIFY(FieldRows::areSame(points->point, *copy));
        m_stack->redo();
        QTEST(written(points->point), "result");
        QCoreApplication::processEvents();
        QCOMPARE(table()->rowCount(), points->point.getNum());
    }

    void defaultsComeBackAsDefaults()
    {
        const Ref<SoMaterial> material;
        m_panel->setNode(material);
        const QByteArray before = saved(material);
        type(control<HbMFieldTable>("Material.shininess"), 0, 0, "0.5");
        type(control<HbMFieldTable>("Material.diffuseColor"), 0, 2, "0.25");
        QCOMPARE(material->diffuseColor[0][1], 0.25f);
        type(control<HbMFieldTable>("Material.diffuseColor"), 0, 2, "1.5"); // no component of a colour
        QCOMPARE(m_stack->count(), 2);
        m_stack->setIndex(0);
        QCOMPARE(saved(material), before);
    }

    void pickedColourIsOneStep()
    {
        const Ref<SoMaterial> material;
        m_panel->setNode(material);
        onceOpen([](QColorDialog &dialog) { dialog.setCurrentColor(Qt::red), dialog.accept(); });
        Q_EMIT control<HbMFieldTable>("Material.diffuseColor")->cellClicked(0, 0);
        QCoreApplication::processEvents();
        QVERIFY(material->diffuseColor[0] == SbColor(1, 0, 0));
        QCOMPARE(m_stack->count(), 1);
    }

    void cellsOpenWithWhatTheyShow()
    {
        const Ref<SoText2> text;
        text->string = "old";
        m_panel->setNode(text);
        QCOMPARE(openCell(table(), 0, 0)->text(), "old");
        m_panel->setNode(*m_cone); // which closes it
        text->string = "new";
        m_panel->setNode(text);
        QCOMPARE(openCell(table(), 0, 0)->text(), "new");
    }

    void sliderInACellRecordsItsSteps()
    {
        const Ref<SoMaterial> material;
        m_panel->setNode(material);
        auto *const shininess = control<HbMFieldTable>("Material.shininess");
        openCell(shininess, 0, 0);
        auto *const slider = shininess->findChild<QSlider *>();
        QCoreApplication::processEvents();
        slider->setSliderDown(true);
        for (const int position : {40, 60, 80})
            slider->setSliderPosition(position);
        slider->setSliderDown(false);
        QCOMPARE(m_stack->count(), 1);
        slider->triggerAction(QSlider::SliderSingleStepAdd);
        slider->triggerAction(QSlider::SliderSingleStepAdd);
        QCOMPARE(m_stack->count(), 2); // the steps by key are one
        m_stack->undo();
        QCoreApplication::processEvents(); // the open slider follows
        const float step = material->shininess[0];
        slider->triggerAction(QSlider::SliderSingleStepAdd);
        m_stack->undo();
        QCOMPARE(material->shininess[0], step);
        QVERIFY(!material->shininess.isDefault());
        m_stack->undo();
        QVERIFY(material->shininess.isDefault());
    }

    void sliderThereAndBackLeavesNoTrace_data()
    {
        QTest::addColumn<int>("bits");
        for (int bits = 0; bits < 8; ++bits)
            QTest::addRow("%d", bits) << bits;
    }

    void sliderThereAndBackLeavesNoTrace()
    {
        QFETCH(int, bits);
        const bool isDefault = bits & 1;
        const bool isDragged = bits & 2;
        const bool isIgnored = bits & 4;
        const Ref<SoMaterial> material;
        if (!isDefault)
            material->shininess = 1 / 3.0f; // between the slider's places
        m_panel->setNode(material);
        const QByteArray before = saved(material);
        openCell(control<HbMFieldTable>("Material.shininess"), 0, 0);
        QCoreApplication::processEvents();
        auto *const slider = control<HbMFieldTable>("Material.shininess")->findChild<QSlider *>();
        const int place = slider->value();
        slider->setSliderDown(isDragged);
        for (const int moved : {20, 40, 0}) {
            if (isIgnored)
                m_panel->editorOf("shininess")->findChild<QPushButton *>("m_ignoreButton")->click();
            slider->setSliderPosition(place + moved);
            QCoreApplication::processEvents();
        }
        slider->setSliderDown(false);
        m_stack->setIndex(0);
        QCOMPARE(saved(material), before);
    }

    void ignoreUndoneInDragLeavesNoTrace()
    {
        const Ref<SoMaterial> material;
        m_panel->setNode(material);
        const QByteArray before = saved(material);
        openCell(control<HbMFieldTable>("Material.shininess"), 0, 0);
        QCoreApplication::processEvents();
        auto *const slider = control<HbMFieldTable>("Material.shininess")->findChild<QSlider *>();
        for (const int moved : {0, 30}) {
            m_panel->editorOf("shininess")->findChild<QPushButton *>("m_ignoreButton")->click();
            slider->setSliderDown(true);
            slider->setSliderPosition(slider->value() + moved);
            m_stack->undo();
            QCOMPARE(saved(material), before);
            slider->setSliderDown(false);
            QCOMPARE(saved(material), before);
        }
    }

    void retypedTextLeavesTheValue()
    {
        const Ref<SoMaterial> material;
        material->shininess = 1 / 3.0f;
        m_panel->setNode(material);
        QLineEdit *const edit = openCell(control<HbMFieldTable>("Material.shininess"), 0, 0);
        QCoreApplication::processEvents();
        enter(edit, edit->text()); // rounded
        QVERIFY(material->shininess[0] == 1 / 3.0f && m_stack->count() == 0);
    }

    void typedTextGoesToNoOtherValue()
    {
        const Ref<SoCoordinate3> points;
        const float values[3][3] = {{0, 0, 0}, {1, 1, 1}, {2, 2, 2}};
        points->point.setValues(0, 3, values);
        MainWindow window;
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.panel()->setNode(points);
        auto *const table = window.panel()->findChild<HbMFieldTable *>();
        table->addRow();
        QLineEdit *const edit = openCell(table, 3, 0);
        retype(edit, "77");
        QCoreApplication::processEvents();
        QTest::keyClick(edit, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(written(points->point), "0 0 0, 0 0 0, 1 1 1, 2 2 2");
        QVERIFY(!table->cellWidget(3, 0)); // the text was committed first
        openCell(table, 2, 0);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_7);
        points->point.deleteValues(0, 1);
        QCoreApplication::processEvents();
        QVERIFY(!table->cellWidget(2, 0) && window.messages().size() == 1);
        QCOMPARE(written(points->point), "0 0 0, 1 1 1, 2 2 2");
    }

    void refusedValuesAreToldAndPutBack()
    {
        const char *const cases[][4] = {
            // with a "!" where something was refused
            {"UShort", "0x1f", "5.\n1e2\n-1\n70000", "0x5, 0x64, 0x0, 0x0!"},
            {"Vec2s", "1 2", "0x1f\t1.5", "31 2!"},
            {"Vec3f", "1 2 3", "1e39\t0x10\t4", "1 2 4!"},
            {"Color", "1 0 0", "1.5\t0.5", "1 0.5 0!"},
            {"Vec3f", "1 2 3", "nan\t1/4\t1,000", "1 0.25 3!"},
            {"Float", "1, 2", "3\n\n0.123456789\t4\n", "3, 0.12345679!"},
            {"Bool", "TRUE, TRUE", "maybe\n0", "TRUE, FALSE!"},
            {"Vec3d", "1 2 3", "typed 4 5", "1 2 3!"},
        };
        for (const auto &[name, held, entered, result] : cases) {
            show(QByteArray("MF") + name + " value [ " + held + " ]");
            auto &field = *this->field<SoMField>();
            const auto before = FieldRows::copy(field, 0, field.getNum());
            table()->setCurrentCell(0, field.isOfType(SoMFColor::getClassTypeId()));
            QApplication::clipboard()->setText(entered);
            if (QByteArray(entered).startsWith("typed "))
                type(table(), 0, 0, entered + 6);
            else
                QTest::keyClick(table(), Qt::Key_V, Qt::ControlModifier);
            SbString now;
            field.get(now);
            const QString told = std::exchange(m_messages, {}).isEmpty() ? "" : "!";
            QCOMPARE(QString(now.getString()).remove('[').remove(']').simplified() + told, result);
            m_stack->setIndex(0);
            QVERIFY2(FieldRows::areSame(field, *before), entered);
        }
    }

    void undoOfRowsThatAreGoneDoesNothing()
    {
        const Ref<SoCoordinate3> points;
        points->point.setNum(10);
        m_panel->setNode(points);
        m_panel->findChild<HbFieldEditorCommandManager *>()->mfieldDeleteRows(8, 1);
        points->point.setNum(3);
        m_stack->undo();
        QCOMPARE(points->point.getNum(), 3);
    }

    void textIsPastedAsItWasCopied()
    {
        const Ref<SoText2> text;
        const char *lines[] = {"two\nlines", "a\t\"tab\"", "5"};
        text->string.setValues(0, 3, lines);
        m_panel->setNode(text);
        const QByteArray before = saved(text);
        table()->selectAll();
        QTest::keyClick(table(), Qt::Key_C, Qt::ControlModifier);
        table()->clearSelection();
        table()->setCurrentCell(0, 0);
        QTest::keyClick(table(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(saved(text), before);
        QCOMPARE(m_stack->count(), 0); // nothing was changed
        QApplication::clipboard()->setText("hello");
        table()->setCurrentCell(2, 0);
        QTest::keyClick(table(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(text->string[2].getString(), "hello");
    }

    void matricesAreCopiedAndPasted()
    {
        const Ref<SoMultipleCopy> copies;
        for (int i = 0; i < 3; ++i) {
            SbMatrix scaling;
            scaling.setScale(float(i) + 1 / 3.0f);
            copies->matrix.set1Value(i, scaling);
        }
        m_panel->setNode(copies);
        const QByteArray before = saved(copies);
        const auto press = [this](Qt::Key key) { QTest::keyClick(table(), key, Qt::ControlModifier); };
        Listener listener(copies->matrix);
        table()->setCurrentCell(0, 0);
        QTest::keyClick(table(), Qt::Key_Down, Qt::ShiftModifier); // selects two rows
        press(Qt::Key_C);
        const QStringList lines = QApplication::clipboard()->text().split('\n');
        QVERIFY(lines.size() == 2 && lines[0].split('\t').size() == 16);
        table()->setCurrentCell(0, 0);
        press(Qt::Key_V); // the same once more, which changes no bit
        QVERIFY(m_stack->count() == 0 && listener.take() == 0);
        table()->setCurrentCell(2, 0);
        press(Qt::Key_V); // one row in the place of the last, one behind it
        QCOMPARE(copies->matrix.getNum(), 4);
        QVERIFY(copies->matrix[2] == copies->matrix[0] && copies->matrix[3] == copies->matrix[1]);
        QVERIFY(m_stack->count() == 1 && listener.take() == 1 && m_messages.isEmpty());
        m_stack->undo();
        QCOMPARE(saved(copies), before);
        table()->setCurrentCell(0, 0);
        QTest::keyClick(table(), Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(table(), Qt::Key_Delete);
        QVERIFY(copies->matrix.getNum() == 1 && m_stack->count() == 1);
        m_stack->undo();
        for (const char *const refused : {"1 2 3", "x"}) {
            QApplication::clipboard()->setText(refused);
            press(Qt::Key_V);
        }
        QVERIFY(m_messages.size() == 2 && saved(copies) == before);
    }

    void aMillionValuesCostWhatIsChanged()
    {
        const Ref<SoCoordinate3> points;
        points->point.setNum(1000000);
        float *const numbers = reinterpret_cast<float *>(points->point.startEditing());
        for (int i = 0; i < 3000000; ++i)
            numbers[i] = float(i);
        points->point.finishEditing();
        m_panel->setNode(points);
        const size_t before = mallinfo2().uordblks;
        for (int i = 0; i < 10; ++i)
            type(table(), 500000 + i, 1, QString::number(i));
        QCOMPARE(m_stack->count(), 10);
        QVERIFY2(mallinfo2().uordblks - before < 1000000, qPrintable(QString::number(mallinfo2().uordblks - before)));
        m_stack->setIndex(0);
        QCOMPARE(points->point[500005][1], 1500016.0f);
        QTest::keyClick(table(), Qt::Key_A, Qt::ControlModifier);
        table()->viewport()->grab();
        QTest::keyClick(table(), Qt::Key_Delete);
        QCOMPARE(points->point.getNum(), 0);
        m_stack->undo();
        QCOMPARE(points->point[999999][2], 2999999.0f);
    }

    /// What is selected, to the bit; empty cells of the rectangle around it change nothing.
    void copiesAreExact()
    {
        const Ref<SoCoordinate3> points;
        const float third = 1 / 3.0f;
        const float values[4][3] = {{third, 0.1f, 1}, {2, 0.75f, third}, {3, 4, 5}, {6, 7, 8}};
        points->point.setValues(0, 4, values);
        m_panel->setNode(points);
        table()->clearSelection();
        table()->setRangeSelected({0, 0, 0, 0}, true);
        table()->setRangeSelected({1, 1, 1, 2}, true);
        QTest::keyClick(table(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), "0.33333334\t\t\n\t0.75\t0.33333334");
        table()->setCurrentCell(2, 0);
        QTest::keyClick(table(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(written(points->point), "0.33333334 0.1 1, 2 0.75 0.33333334, 0.33333334 4 5, 6 0.75 0.33333334");
        QVERIFY(m_stack->count() == 1 && m_messages.isEmpty());
    }

    /// Their numbers are those of a rotation that is normalised once more whenever one of them is set.
    void wholeRowsAreCopiedToTheBit()
    {
        show("MFRotation value [ 0.1 0.2 0.3 1.1, 0 0 1 0 ]");
        auto &rotations = *field<SoMFRotation>();
        table()->selectRow(0);
        QTest::keyClick(table(), Qt::Key_C, Qt::ControlModifier);
        table()->setCurrentCell(1, 0);
        QTest::keyClick(table(), Qt::Key_V, Qt::ControlModifier);
        QVERIFY(rotations[0] == rotations[1]);
        m_stack->undo();
        QApplication::clipboard()->setText(QApplication::clipboard()->text()); // as another program has it
        QTest::keyClick(table(), Qt::Key_V, Qt::ControlModifier);
        QVERIFY(rotations[0].equals(rotations[1], 1e-6f));
        QVERIFY(m_stack->undoText().startsWith("Odd.value, row 2: "));
    }

private:
    HbMFieldTable *table() { return m_panel->findChild<HbMFieldTable *>(); }

    void run(const QString &command)
    {
        const auto press = [this](const char *button) { m_panel->findChild<QPushButton *>(button)->click(); };
        table()->setCurrentCell(1, 0);
        if (command == "rows here and there") {
            for (const int row : {0, 2, 3})
                table()->setRangeSelected({row, 1, row, 1}, true);
            table()->setRangeSelected({1, 0, 1, 2}, false);
            QTest::keyClick(table(), Qt::Key_Delete);
        } else if (command == "typed") {
            QTest::keyClick(table(), Qt::Key_Minus);
            QLineEdit *const edit = table()->viewport()->findChild<QLineEdit *>();
            QTest::keyClicks(edit, "2.5");
            QTest::keyClick(edit, Qt::Key_Return);
            QCoreApplication::processEvents();
        } else if (command == "columns") {
            m_panel->findChild<HbFieldEditorCommandManager *>()->mfieldSwapColumns(0, 1);
        } else if (command == "paste values") {
            pasteText("point [ 4 5 6, # first\n 7 8 9 ]\n");
        } else if (command == "paste list") {
            pasteText("4,5,6, 7,8,9");
        } else if (command == "up by key") {
            QTest::keyClick(table(), Qt::Key_Up, Qt::AltModifier);
        } else if (command == "delete the last") {
            select(0, 0, 1, 1);
            QTest::keyClick(table(), Qt::Key_End, Qt::ControlModifier);
            QTest::keyClick(table(), Qt::Key_Delete);
        } else if (command == "paste into a block") {
            select(1, 1, 2, 2);
            pasteText("5");
        } else if (command == "paste a row into rows") {
            select(0, 0, 0, 2);
            QTest::keyClick(table(), Qt::Key_C, Qt::ControlModifier);
            select(1, 0, 2, 2);
            QTest::keyClick(table(), Qt::Key_V, Qt::ControlModifier);
        } else if (command.startsWith("paste")) {
            const bool beyond = command.endsWith("end");
            table()->setCurrentCell(beyond ? 3 : 1, beyond ? 0 : 1);
            pasteText("5\t6\n7\t8\n");
        } else {
            press(qPrintable("m_" + command + "Button"));
        }
    }

    void select(int top, int left, int bottom, int right)
    {
        QItemSelectionModel *const model = table()->selectionModel();
        const auto at = [this](int row, int column) { return table()->model()->index(row, column); };
        model->setCurrentIndex(at(top, left), QItemSelectionModel::NoUpdate);
        model->select(QItemSelection(at(top, left), at(bottom, right)), QItemSelectionModel::ClearAndSelect);
    }

    void pasteText(const QString &text)
    {
        QApplication::clipboard()->setText(text);
        QTest::keyClick(table(), Qt::Key_V, Qt::ControlModifier);
    }

    static void type(HbMFieldTable *table, int row, int column, const QString &text)
    {
        QLineEdit *const edit = openCell(table, row, column);
        retype(edit, text);
        QTest::keyClick(edit, Qt::Key_Return);
        QCoreApplication::processEvents(); // Qt closes the editor then
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    static QString written(const SoMFVec3f &field)
    {
        QStringList rows;
        for (int i = 0; i < field.getNum(); ++i)
            rows += QString("%1 %2 %3")
                        .arg(double(field[i][0]), 0, 'g', 8)
                        .arg(double(field[i][1]), 0, 'g', 8)
                        .arg(double(field[i][2]), 0, 'g', 8);
        return rows.join(", ");
    }
};

QTEST_MAIN(TestTables)
#include "tst_tables.moc"
