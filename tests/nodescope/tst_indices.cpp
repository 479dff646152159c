// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TestSupport.h"

#include "tools/nodescope/CoinRef.h"
#include "tools/nodescope/CoinSetup.h"
#include "tools/nodescope/FieldPanel.h"
#include "tools/nodescope/SceneTree.h"
#include "tools/nodescope/SceneView.h"
#include "tools/nodescope/scene/ShapeGuard.h"

#include <HbMFieldTable.h>

#include <QUndoStack>

#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/fields/SoSFNode.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoSeparator.h>

namespace
{

constexpr char points[] = "Coordinate3 { point [ -1 -1 0, 1 -1 0, 1 1 0, -1 1 0 ] } ";
constexpr char normals[] = "Normal { vector [ 0 0 1, 0 0 1 ] } NormalBinding { value %1 } ";
constexpr char colours[] = "Material { diffuseColor [ 1 0 0, 0 1 0 ] } MaterialBinding { value %1 } ";
constexpr char texture[] = "Texture2 { image 1 1 3 0xff0000 } TextureCoordinate2 { point [ 0 0, 1 0 ] } ";
constexpr char held[] = "vertexProperty VertexProperty { vertex [ -1 -1 0, 1 -1 0, 1 1 0 ] normal [ 0 0 1, 0 0 1 ] "
                        "normalBinding PER_VERTEX_INDEXED } ";
constexpr char vrml[] = "VRMLShape { appearance VRMLAppearance { texture VRMLPixelTexture { image 1 1 3 0xff0000 } } "
                        "geometry %1 { coord VRMLCoordinate { point [ -1 -1 0, 1 -1 0, 1 1 0 ] } %2 } }";

/// The number in the place of # that still points to something is known, and the next one does not.
struct Case {
    QByteArray scene;
    int last;
};

QByteArray with(const char *text, const char *first, const char *second = "")
{
    return QByteArray(text).replace("%1", first).replace("%2", second);
}

std::vector<Case> cases()
{
    std::vector<Case> all;
    for (const QByteArray type : {"IndexedFaceSet", "IndexedLineSet", "IndexedTriangleStripSet"}) {
        const QByteArray face = type + " { coordIndex [ 0, 1, 2, -1 ] ";
        all.push_back({points + type + " { coordIndex [ 0, 1, #, -1 ] }", 3});
        all.push_back({type + " { " + held + "coordIndex [ 0, 1, # ] normalIndex [ 0, 0, 0 ] }", 2});
        all.push_back({type + " { " + held + "coordIndex [ 0, 1, 2 ] normalIndex [ 0, 1, # ] }", 1});
        for (const char *binding : {"PER_FACE_INDEXED", "PER_PART_INDEXED"}) {
            all.push_back({points + with(normals, binding) + face + "normalIndex [ #, # ] }", 1});
            all.push_back({points + with(colours, binding) + face + "materialIndex [ #, # ] }", 1});
        }
        all.push_back({points + with(normals, "PER_VERTEX_INDEXED") + face + "normalIndex [ 0, 1, # ] }", 1});
        all.push_back({points + with(colours, "PER_VERTEX_INDEXED") + face + "materialIndex [ 0, 1, # ] }", 1});
        all.push_back({QByteArray(points) + texture + face + "textureCoordIndex [ 0, 1, #, -1 ] }", 1});
    }
    for (const QByteArray type : {"FaceSet", "LineSet", "TriangleStripSet"}) {
        all.push_back({points + type + " { numVertices # }", 4});
        all.push_back({points + type + " { startIndex # numVertices 3 }", 1});
    }
    all.push_back({QByteArray(points) + "PointSet { numPoints # }", 4});
    all.push_back({QByteArray(points) + "IndexedPointSet { coordIndex [ # ] }", 3});
    all.push_back({QByteArray(points) + "QuadMesh { verticesPerRow # verticesPerColumn 2 }", 2});
    all.push_back({QByteArray(points) + "QuadMesh { verticesPerRow 2 verticesPerColumn # }", 2});
    for (const char *type : {"VRMLIndexedFaceSet", "VRMLIndexedLineSet"}) {
        const QByteArray colour = "coordIndex [ 0, 1, 2, -1 ] color VRMLColor { color [ 1 0 0, 0 1 0 ] } ";
        all.push_back({with(vrml, type, "coordIndex [ 0, 1, #, -1 ]"), 2});
        all.push_back({with(vrml, type, colour + "colorIndex [ 0, 1, #, -1 ]"), 1});
        all.push_back({with(vrml, type, colour + "colorPerVertex FALSE colorIndex [ # ]"), 1});
    }
    const QByteArray faces = "coordIndex [ 0, 1, 2, -1 ] ";
    all.push_back(
        {with(vrml, "VRMLIndexedFaceSet", faces + "normal VRMLNormal { vector [ 0 0 1 ] } normalIndex [ 0, 0, # ]"),
         0});
    all.push_back({with(vrml, "VRMLIndexedFaceSet",
                        faces + "texCoord VRMLTextureCoordinate { point [ 0 0, 1 0 ] } texCoordIndex [ 0, 1, # ]"),
                   1});
    return all;
}

std::shared_ptr<SoSeparator> read(const QByteArray &scene)
{
    const QByteArray text = "#Inventor V2.1 ascii\n" + scene;
    SoInput input;
    input.setBuffer(text.constData(), static_cast<std::size_t>(text.size()));
    return coinRef(SoDB::readAll(&input));
}

SoNode *shapeIn(SoSeparator *root)
{
    SoNode *last = root->getChild(root->getNumChildren() - 1);
    SoField *geometry = last->getField("geometry");
    return geometry ? static_cast<SoSFNode *>(geometry)->getValue() : last;
}

} // namespace

/// Indices and counts that point to something and that do not: drawn, clicked at, measured and typed.
class TestIndices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        setUpCoin(false);
        m_view = std::make_unique<SceneView>();
        m_view->resize(120, 120);
        m_view->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    }
    void cleanupTestCase() { m_view.reset(); }

    void drawsWhatPointsToSomething_data()
    {
        QTest::addColumn<QByteArray>("scene");
        QTest::addColumn<bool>("isDrawn");
        const auto add = [](const Case &one, int number, bool isDrawn) {
            const QByteArray scene = QByteArray(one.scene).replace("#", QByteArray::number(number));
            QTest::newRow(scene) << scene << isDrawn;
        };
        for (const Case &one : cases()) {
            add(one, one.last, true);
            add(one, one.last + 1, false);
            add(one, 50000000, false);
        }
        const QByteArray face = QByteArray(points) + with(normals, "PER_VERTEX_INDEXED");
        const std::pair<QByteArray, bool> others[] = {
            {face + "IndexedFaceSet { coordIndex [ 0, 1, 2 ] normalIndex [ 0, 1 ] }", false}, // a short list
            {face + "IndexedFaceSet { coordIndex [ 0, 1, 2 ] normalIndex [ 0, -7, 0 ] }", false},
            {QByteArray(points) + with(colours, "PER_FACE_INDEXED") + "IndexedLineSet { coordIndex [ 0, 1 ] }", false},
            {QByteArray(points) + with(colours, "PER_FACE") + "LineSet { numVertices [ 2, 2 ] }", true},
            {QByteArray(points) + with(colours, "PER_VERTEX") + "LineSet { numVertices [ 2, 2 ] }", false},
            {QByteArray(points) + "TriangleStripSet { numVertices 2 }", false}, // draws for hours
            {QByteArray(points) + "FaceSet { numVertices [ 3, -1 ] }", false}, // the rest is one corner
            {QByteArray(points) + "FaceSet { numVertices -1 }", true}};
        for (const auto &[scene, isDrawn] : others)
            QTest::newRow(scene) << scene << isDrawn;
    }
    void drawsWhatPointsToSomething()
    {
        QFETCH(QByteArray, scene);
        QFETCH(bool, isDrawn);
        const std::shared_ptr<SoSeparator> root = read(scene);
        QVERIFY(root);
        SceneTree tree;
        tree.setScene(root.get());
        m_view->setScene(root.get());
        const QImage picture = m_view->grabFramebuffer();
        QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, m_view->rect().center());
        m_view->viewAll();
        QCOMPARE(ShapeGuard::obstacle(shapeIn(root.get())).isEmpty(), isDrawn);
        QCOMPARE(isBlank(picture), !isDrawn);
        if (!scene.startsWith("VRML"))
            QCOMPARE(tree.topLevelItem(tree.topLevelItemCount() - 1)->toolTip(0).contains("Not drawn"), !isDrawn);
    }

    void followsTheValuesThatThereAre()
    {
        const std::shared_ptr<SoSeparator> root
            = read(with(colours, "PER_VERTEX_INDEXED") + points
                   + "Separator { IndexedFaceSet { coordIndex [ 0, 1, 2, -1 ] materialIndex [ 0, 1, 1 ] } }");
        auto *given = static_cast<SoMaterial *>(root->getChild(0));
        m_view->setScene(root.get());
        for (int round = 0; round < 4; ++round) // Coin begins to keep what it has drawn
            QVERIFY(!isBlank(m_view->grabFramebuffer()));
        given->diffuseColor.setNum(1);
        for (int round = 0; round < 4; ++round)
            QVERIFY(isBlank(m_view->grabFramebuffer()));
        given->diffuseColor.set1Value(1, 0, 0, 1);
        QVERIFY(!isBlank(m_view->grabFramebuffer()));
    }

    void thePanelRefusesWhatPointsToNothing_data()
    {
        QTest::addColumn<QByteArray>("scene");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("refusal"); // none
        const QByteArray face = QByteArray(points) + "IndexedFaceSet { coordIndex [ 0, 1, 2, -1 ] }";
        const QByteArray own
            = QByteArray("IndexedFaceSet { ") + held + "coordIndex [ 0, 1, 2 ] normalIndex [ 0, 1, 0 ] }";
        const QByteArray twice = QByteArray("Separator { ") + points
            + "DEF it IndexedFaceSet { coordIndex [ 0, 1, 2, -1 ] } } "
              "Coordinate3 { point [ 0 0 0, 1 0 0, 1 1 0 ] } USE it";
        QTest::newRow("the last") << face << "coordIndex"
                                  << "3"
                                  << "";
        QTest::newRow("beyond") << face << "coordIndex"
                                << "4"
                                << "the index 4 in coordIndex is not one of the 4 coordinates";
        QTest::newRow("in one of two places") << twice << "coordIndex"
                                              << "3"
                                              << "one of the 3 coordinates";
        QTest::newRow("own normals") << own << "normalIndex"
                                     << "2"
                                     << "one of the 2 normals";
        QTest::newRow("a row fewer") << own << "normalIndex"
                                     << "delete"
                                     << "normalIndex has 2 values, and at least 3";
        QTest::newRow("a row more") << face << "coordIndex"
                                    << "add"
                                    << "";
        QTest::newRow("too many") << QByteArray(points) + "FaceSet { numVertices [ 3 ] }"
                                  << "numVertices"
                                  << "5"
                                  << "it takes 5 coordinates, and there are 4";
        QTest::newRow("it was no better") << QByteArray(points) + "IndexedFaceSet { coordIndex [ 9, 9, 9, -1 ] }"
                                          << "coordIndex"
                                          << "8"
                                          << "";
    }
    void thePanelRefusesWhatPointsToNothing()
    {
        QFETCH(QByteArray, scene);
        QFETCH(QString, field);
        QFETCH(QString, entry);
        QFETCH(QString, refusal);
        const std::shared_ptr<SoSeparator> root = read(scene);
        QVERIFY(root);
        SceneTree tree;
        tree.setScene(root.get());
        QUndoStack stack;
        FieldPanel panel(&stack);
        QStringList messages;
        connect(&panel, &FieldPanel::message, this, [&](const QString &text) { messages << text; });
        panel.resize(500, 500);
        panel.show();
        panel.setNode(shapeIn(root.get()));
        const SbName name(field.toLatin1().constData());
        SbString before;
        shapeIn(root.get())->getField(name)->get(before);
        auto *editor = panel.editorOf(field);
        QVERIFY(editor);
        auto *table = editor->findChild<HbMFieldTable *>();
        if (entry == "delete" || entry == "add") {
            table->setCurrentCell(0, 0);
            QTest::keyClick(table, entry == "add" ? Qt::Key_Insert : Qt::Key_Delete);
        } else {
            enter(openCell(table, 0, 0), entry);
        }
        SbString after;
        shapeIn(root.get())->getField(name)->get(after);
        QCOMPARE(after == before, !refusal.isEmpty());
        QCOMPARE(stack.count(), refusal.isEmpty() ? 1 : 0);
        QVERIFY2(messages.join(' ').contains(refusal), qPrintable(messages.join(' ')));
        QVERIFY2(messages.size() == (refusal.isEmpty() ? 0 : 1), qPrintable(messages.join("|")));
    }

private:
    static bool isBlank(const QImage &picture)
    {
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                if (picture.pixel(x, y) != picture.pixel(0, 0))
                    return false;
        return true;
    }

    std::unique_ptr<SceneView> m_view;
};

int main(int argc, char **argv)
{
    static const auto *const application = new QApplication(argc, argv); // stays, and so does the driver of OpenGL:
    Q_UNUSED(application) // what it forgets could not be told from what the test forgets
    TestIndices test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_indices.moc"
