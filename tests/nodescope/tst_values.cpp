// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "PanelFixture.h"

#include "tools/nodescope/FieldRow.h"
#include "tools/nodescope/fields/FieldClipboard.h"

#include <HbMFieldTable.h>

#include <QClipboard>

#include <Inventor/VRMLnodes/SoVRMLGroup.h>
#include <Inventor/fields/SoFields.h>
#include <Inventor/nodes/SoCube.h>
#include <Inventor/nodes/SoCylinder.h>
#include <Inventor/nodes/SoDirectionalLight.h>
#include <Inventor/nodes/SoDrawStyle.h>
#include <Inventor/nodes/SoMatrixTransform.h>
#include <Inventor/nodes/SoSceneTexture2.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoTexture2.h>
#include <Inventor/nodes/SoTransform.h>

#include <cmath>

/// Values of all kinds through the panel: what an edit records, and that it is taken back to the bit.
class TestValues : public PanelFixture
{
    Q_OBJECT

private Q_SLOTS:
    void enumerationWithoutNamesIsEditedAsText()
    {
        show("SFEnum value");
        auto *const line = m_panel->findChild<QLineEdit *>("lineEdit");
        enter(line, "5");
        QCOMPARE(field<SoSFEnum>()->getValue(), 5);
        QCOMPARE(m_stack->count(), 1);
    }

    void untouchedNumbersKeepEveryBit()
    {
        const Ref<SoTransform> node;
        const SbVec3f value(0.1f, 1 / 3.0f, 2 / 3.0f);
        node->translation = value;
        node->rotation.setValue(SbVec3f(1, 2, 3), 1.2345678f);
        const SbRotation turned = node->rotation.getValue();
        m_panel->setNode(node);
        enter(edits("translation").at(1), "7");
        QVERIFY(node->translation.getValue() == SbVec3f(value[0], 7, value[2]));
        enter(edits("rotation").at(0), edits("rotation").at(0)->text()); // typed again as it was
        QVERIFY(node->rotation.getValue() == turned && m_stack->count() == 1);
        enter(edits("rotation").at(3), "2");
        SbVec3f axis;
        float radians;
        node->rotation.getValue(axis, radians);
        QVERIFY(axis.equals(SbVec3f(1, 2, 3) / std::sqrt(14.0f), 1e-12f) && std::abs(radians - 2) < 1e-6f);
        m_stack->setIndex(0);
        QVERIFY(node->rotation.getValue() == turned && node->translation.getValue() == value);
    }

    void matrixGridKeepsTheOtherElements()
    {
        const Ref<SoMatrixTransform> node;
        SbMatrix value = SbMatrix::identity();
        value[3][0] = 1 / 3.0f;
        node->matrix = value;
        m_panel->setNode(node);
        const QLineEdit *const line = edits("matrix").at(0);
        QVERIFY(line->text().contains("0.33333334 0 0 1") && line->cursorPosition() == 0);
        Complaints::expect("This plugin does not support");
        m_panel->findChild<QPushButton *>("m_editButton")->click();
        QApplication::processEvents();
        QCOMPARE(edits("matrix").at(1)->selectedText(), QString("1"));
        QLineEdit *const element = edits("matrix").at(1 + 2); // behind the line of the whole value
        retype(element, "9");
        QTest::keyClick(element, Qt::Key_Escape);
        QVERIFY(!element->isVisible() && m_stack->count() == 0);
        m_panel->findChild<QPushButton *>("m_editButton")->click();
        enter(element, "5");
        SbMatrix edited = value;
        edited[0][2] = 5;
        QVERIFY(node->matrix.getValue() == edited);
        m_stack->undo();
        QVERIFY(node->matrix.getValue() == value);
    }

    void rotationIsCommittedWhenItsEditorIsLeft()
    {
        const Ref<SoTransform> node;
        m_panel->setNode(node);
        retype(edits("rotation").at(3), QStringLiteral("1.5"));
        edits("rotation").at(0)->setFocus();
        QCoreApplication::processEvents();
        QCOMPARE(m_stack->count(), 0);
        edits("center").at(0)->setFocus();
        QCoreApplication::processEvents();
        QCOMPARE(m_stack->count(), 1);
        retype(edits("rotation").at(3), QStringLiteral("0.5"));
        m_panel->setNode(*m_cone); // before it is left
        QCOMPARE(m_stack->count(), 2);
    }

    void maskIsRecordedAndFollows()
    {
        const Ref<SoCylinder> node;
        const Ref<SoCylinder> master;
        m_panel->setNode(node);
        const auto box = [&](const char *name) { return m_panel->findChild<QCheckBox *>(name); };
        box("TOP")->click();
        QCOMPARE(node->parts.getValue(), int(SoCylinder::SIDES | SoCylinder::BOTTOM));
        node->parts = SoCylinder::TOP | 64; // a bit without a name
        QCoreApplication::processEvents();
        QVERIFY(box("TOP")->isChecked() && !box("SIDES")->isChecked() && !box("ALL")->isChecked());
        box("TOP")->click();
        QCOMPARE(node->parts.getValue(), 64);
        node->parts = SoCylinder::ALL;
        node->parts.connectFrom(&master->parts);
        QCoreApplication::processEvents();
        box("TOP")->click();
        QCOMPARE(m_stack->count(), 2); // refused: the value comes from elsewhere
        QVERIFY(box("TOP")->isChecked() && m_messages.isEmpty());
        node->parts.disconnect();
        m_stack->setIndex(0);
        QVERIFY(node->parts.getValue() == SoCylinder::ALL && node->parts.isDefault());
    }

    void namesComeBackAfterAValueWithoutOne()
    {
        const Ref<SoDrawStyle> odd;
        const Ref<SoDrawStyle> plain;
        odd->style = 77;
        m_panel->setNode(odd);
        auto *const box = control<QComboBox>("DrawStyle.style");
        QCOMPARE(box->currentText(), QString());
        m_panel->setNode(plain);
        QCOMPARE(box, control<QComboBox>("DrawStyle.style"));
        QCOMPARE(box->itemText(0), QStringLiteral("FILLED"));
        QTest::keyClick(box, Qt::Key_Down);
        QCOMPARE(plain->style.getValue(), int(SoDrawStyle::LINES));
        QCOMPARE(m_stack->undoText().section(QLatin1Char(' '), 1, 1), QStringLiteral("FILLED"));
    }

    void refusedLineGivesTheWholeValueBack()
    {
        show("SFVec3d value");
        const SbVec3d value(1 / 3.0, 2, 3);
        *field<SoSFVec3d>() = value;
        QCoreApplication::processEvents();
        auto *const line = m_panel->findChild<QLineEdit *>("lineEdit");
        enter(line, line->text()); // its text tells less than the value
        QVERIFY(field<SoSFVec3d>()->getValue() == value && m_stack->count() == 0);
        Complaints::expect("Coin");
        enter(line, "4,5,6"); // the parser stores the 4 and gives up
        QVERIFY(field<SoSFVec3d>()->getValue() == value && m_stack->count() == 0);
        QCOMPARE(m_messages.size(), 1);
    }

    void pickedColourIsOneStep()
    {
        const Ref<SoDirectionalLight> light;
        light->color.setValue(0.1f, 1 / 3.0f, 1);
        const SbColor before = light->color.getValue();
        m_panel->setNode(light);
        onceOpen([](QColorDialog &dialog) { dialog.setCurrentColor(Qt::red), dialog.accept(); });
        m_panel->findChild<QPushButton *>("m_colorDisp")->click();
        QVERIFY(light->color.getValue() == SbColor(1, 0, 0) && m_stack->count() == 1);
        m_stack->undo();
        QVERIFY(light->color.getValue() == before);
    }

    void nodesThatWouldContainThemselvesAreRefused()
    {
        const Ref<SoSeparator> circle;
        auto *const texture = new SoSceneTexture2;
        auto *const group = new SoVRMLGroup;
        auto *const cube = new SoCube;
        circle->addChild(texture);
        circle->addChild(group);
        group->addChild(cube);
        const auto rowOf = [this](const SoField &field) {
            const auto rows = m_panel->findChildren<FieldRow *>();
            return *std::find_if(rows.begin(), rows.end(), [&](const FieldRow *row) { return row->field() == &field; });
        };
        SoSFNode copied;
        copied.setValue(circle);
        for (const char *const text :
             {"DEF Loop Separator { USE Loop }",
              "Group { DEF Loop Group { Cube { } IndexedFaceSet { vertexProperty USE Loop } } }"}) {
            m_panel->setNode(texture);
            enter(edits("scene").at(0), text);
            QApplication::clipboard()->setText(text);
            rowOf(texture->scene)->pasteValue();
            FieldClipboard::copy(copied);
            rowOf(texture->scene)->pasteValue();
            m_panel->setNode(group);
            auto *const table = m_panel->editorOf("children")->findChild<HbMFieldTable *>();
            enter(openCell(table, 0, 0), text);
            QCoreApplication::processEvents();
            QApplication::clipboard()->setText(text);
            QTest::keyClick(table, Qt::Key_V, Qt::ControlModifier);
            QVERIFY2(m_messages.size() == 5 && m_messages.filter("itself").size() == 5,
                     qPrintable(m_messages.join('\n')));
            QVERIFY(!texture->scene.getValue() && group->children[0] == cube && m_stack->count() == 0);
            m_messages.clear();
        }
        m_panel->setNode(texture);
        enter(edits("scene").at(0), "DEF Own Separator { Cube { } }");
        QVERIFY(texture->scene.getValue() && m_stack->count() == 1 && m_messages.isEmpty());
    }

    void imageComesBackWithItsFileName()
    {
        const Ref<SoTexture2> texture;
        const unsigned char pixels[] = {1, 2, 3, 4, 5, 6};
        texture->image.setValue(SbVec2s(2, 1), 3, pixels);
        const QByteArray before = saved(texture);
        m_panel->setNode(texture);
        m_panel->editorOf("filename")->findChild<QPushButton *>("m_ignoreButton")->click();
        QVERIFY(texture->filename.isIgnored() && saved(texture).contains("image 2 1 3"));
        m_stack->undo();
        QCOMPARE(saved(texture), before);
        Complaints::expect("SoTexture2|SbImage");
        enter(edits("filename").at(0), "nowhere.png");
        const QByteArray after = saved(texture);
        QVERIFY(after.contains("nowhere.png") && after.contains("image 2 1 3"));
        m_stack->undo();
        QCOMPARE(saved(texture), before);
        m_stack->redo();
        QCOMPARE(saved(texture), after);
    }
};

QTEST_MAIN(TestValues)
#include "tst_values.moc"
