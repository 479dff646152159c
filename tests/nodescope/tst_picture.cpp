// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FalseColours.h"
#include "RayCaster.h"
#include "TestSupport.h"

#include "tools/nodescope/CoinEventLoop.h"
#include "tools/nodescope/CoinMessages.h"
#include "tools/nodescope/CoinRef.h"
#include "tools/nodescope/CoinSetup.h"
#include "tools/nodescope/SceneFile.h"
#include "tools/nodescope/SceneView.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QOpenGLFunctions>

#include <Inventor/SoInput.h>
#include <Inventor/elements/SoGLCacheContextElement.h>
#include <Inventor/nodes/SoCamera.h>
#include <Inventor/nodes/SoDirectionalLight.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoText2.h>

#include <random>

namespace
{
const QSize pictureSize(200, 160);
constexpr int samples = 4;

const std::pair<const char *, const char *> ownScenes[] = {
    {"textures", R"(Separator { Texture2 { image 2 2 3 0xff0000 0x00ff00 0x0000ff 0xffffff } Cube { }
        Translation { translation 2 1 -3 } Sphere { } })"},
    {"transparency", R"(Separator { Material { diffuseColor 1 0 0 } Cube { } }
        Separator { Translation { translation 1 0 2 } Material { diffuseColor 0 0 1 transparency 0.5 } Sphere { } }
        Separator { Translation { translation -1 0 4 } Material { transparency 0.7 } Cone { } })"},
    {"two cameras", R"(PerspectiveCamera { position 3 4 9 orientation -0.9 0.4 0.1 0.5 } Cube { }
        Separator { OrthographicCamera { height 20 } Translation { translation 2 0 0 } Cone { } })"},
    {"orthographic camera", R"(OrthographicCamera { position 5 5 5 orientation -0.59 0.77 0.24 1 height 7 } Cube { }
        Translation { translation 1 1 -3 } Sphere { })"},
    {"text", R"(Separator { Material { diffuseColor 0.8 0.2 0 } Text3 { string "Harbour" parts ALL } }
        Translation { translation 0 -12 -3 } Text2 { string "flat" } Translation { translation 0 -6 0 } Cube { width 9 })"},
    {"clip planes", R"(Separator { ClipPlane { plane 1 0.3 0 0 } Cube { }
        ClipPlane { plane 0 1 0 -0.4 } Translation { translation 1 0 -2 } Sphere { } } Translation { translation 2 0 -4 } Cone { })"},
    {"lines and points", R"(Separator { DrawStyle { lineWidth 6 pointSize 9 }
        LineSet { vertexProperty VertexProperty { vertex [ -2 0 1, 2 1 1, 1 -2 3 ] } }
        PointSet { vertexProperty VertexProperty { vertex [ 0 2 0, 1 2 0, -1 1 2 ] } } } Cube { })"},
    {"seen by nobody",
     R"(Separator { DrawStyle { style INVISIBLE } Sphere { radius 2 } } PickStyle { style UNPICKABLE } Cube { })"},
};

QStringList models()
{
    QStringList files{QStringLiteral(HARBOR_SOURCE_DIR "/examples/scenes/harbour.iv"),
                      QStringLiteral(HARBOR_SOURCE_DIR "/examples/scenes/windmill.iv")};
    QDirIterator folder(QStringLiteral("/usr/share/inventor/data/models"), {QStringLiteral("*.iv")}, QDir::Files,
                        QDirIterator::Subdirectories);
    while (folder.hasNext())
        files << folder.next();
    files.sort();
    return files;
}

/// The bounding box of the pixels that differ from the background.
QRect covered(const QImage &picture, QRgb background)
{
    QRect box;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (picture.pixel(x, y) != background)
                box |= QRect(x, y, 1, 1);
    return box;
}

/// In parts of the range, over the pixels that either picture covers.
double difference(const QImage &one, const QImage &other, QRgb background)
{
    double sum = 0;
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a(one.pixel(x, y));
            const QColor b(other.pixel(x, y));
            if (a.rgb() == background && b.rgb() == background)
                continue;
            ++count;
            sum += std::pow(a.redF() - b.redF(), 2) + std::pow(a.greenF() - b.greenF(), 2)
                + std::pow(a.blueF() - b.blueF(), 2);
        }
    }
    return std::sqrt(sum / (3 * std::max(count, 1)));
}
} // namespace

/// The view's picture against two truths that know nothing of the view, and its clicks against the first of them.
class TestPicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        setUpCoin(false);
        Complaints::listen();
        m_plain = makeView(0);
        m_smooth = makeView(samples);
        m_background = emptyPicture().pixel(0, 0);
    }

    /// Whatever moves by itself starts the clock, and stops it where it is switched off or gone.
    void theClockRunsForWhatMoves()
    {
        for (const QByteArray mover :
             {"Rotor { %1 }", "Pendulum { %1 }", "Shuttle { %1 }", "Blinker { %1 Cube { } Cone { } }",
              "Cone { height 1 = ElapsedTime { %1 } . timeOut }",
              "Switch { whichChild 0 = TimeCounter { %1 } . output }", "VRMLTimeSensor { %2 }",
              "Group { TransformSeparator { Rotor { %1 } } }"}) {
            const auto withSwitch = [&](const char *value) {
                const QByteArray on = QByteArray("on ") + value;
                return read("#Inventor V2.1 ascii\n"
                                + QByteArray(mover).replace("%1", on).replace("%2", QByteArray("enabled ") + value),
                            false);
            };
            {
                const SceneFile file = withSwitch("TRUE");
                CoinEventLoop::updateClock();
                QVERIFY2(CoinEventLoop::isClockRunning(), mover);
            }
            const SceneFile file = withSwitch("FALSE");
            CoinEventLoop::updateClock();
            QVERIFY2(!CoinEventLoop::isClockRunning(), mover);
        }
    }

    void cleanupTestCase()
    {
        m_plain.reset();
        m_smooth.reset();
        qInfo() << m_asked << "pixels," << m_unsure << "of them left out at edges," << m_wrong << "wrong," << m_clicks
                << "clicks";
        if (m_asked < 10000) // somebody runs a few scenes alone
            return;
        QVERIFY2(5 * m_unsure < m_asked, "too many pixels left out");
        QVERIFY(1000 * m_wrong < m_asked);
        QVERIFY(m_clicks > 0);
    }

    void showsTheFirstShapeOnEachLineOfSight_data() { scenes(); }
    void showsTheFirstShapeOnEachLineOfSight()
    {
        QFETCH(QByteArray, scene);
        QFETCH(bool, isFile);
        if (scene.endsWith("Barcelona.iv"))
            QSKIP("Coin draws its ground, but tells no triangle of it");
        const CoinMessages missingFiles;
        const SceneFile file = read(scene, isFile);
        compareWithRays(file.root.get());
    }

    void drawsWhatCoinDraws_data() { scenes(); }
    void drawsWhatCoinDraws()
    {
        QFETCH(QByteArray, scene);
        QFETCH(bool, isFile);
        if (scene.endsWith("indexedTriangleMesh.iv"))
            QSKIP("Its lines take 24 colours of 1: Coin reads past the end, and draws otherwise each time");
        const CoinMessages missingFiles;
        const SceneFile file = read(scene, isFile);
        const SceneFile other = read(scene, isFile);
        m_smooth->setScene(file.root.get());
        const QImage shown = m_smooth->grabFramebuffer();
        const QImage expected = drawnByCoin(other.root.get());
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x)
                QVERIFY2(qAlpha(shown.pixel(x, y)) == 255, "the window shines through");
        const QRect box = covered(shown, m_background);
        const QRect expectedBox = covered(expected, m_background);
        const double apart = difference(shown, expected, m_background);
        QVERIFY2(apart < 0.02, qPrintable(QStringLiteral("%1 % apart").arg(100 * apart)));
        QVERIFY(!box.isEmpty());
        QVERIFY(expectedBox.adjusted(-1, -1, 1, 1).contains(box) && box.adjusted(-1, -1, 1, 1).contains(expectedBox));
    }

    void aClickSelectsWhatIsSeen_data()
    {
        QTest::addColumn<QByteArray>("camera");
        QTest::newRow("perspective") << QByteArray("PerspectiveCamera { position 0 0 40 }");
        QTest::newRow("orthographic, from the side and above") << QByteArray(
            "OrthographicCamera { position 30 20 30 orientation -0.5054 0.8364 0.2122 0.9151 height 26 }");
        QTest::newRow("moved by a transform, narrow, far away")
            << QByteArray("TransformSeparator { Transform { translation 1 -2 0 rotation 0.3 1 0.5 0.6 } "
                          "PerspectiveCamera { position -1 2 300 heightAngle 0.09 } }");
    }
    /// A hundred of them.
    void aClickSelectsWhatIsSeen()
    {
        QFETCH(QByteArray, camera);
        static constexpr const char *kinds[]
            = {"Cube { width 1 height 1 depth 1 }", "Sphere { radius 0.6 }", "Cone { bottomRadius 0.6 height 1.2 }",
               "Cylinder { radius 0.5 height 1 }", "Cube { width 1.3 height 0.8 depth 0.4 }"};
        QByteArray scene = "#Inventor V2.1 ascii\n" + camera;
        for (int i = 0; i < 100; ++i)
            scene += QStringLiteral("Separator { Translation { translation %1 %2 %3 } %4 }\n")
                         .arg(2 * (i % 10) - 9)
                         .arg(2 * (i / 10) - 9)
                         .arg(0.1 * (i % 7) - 0.2 * (i / 10 % 3))
                         .arg(QLatin1String(kinds[i % 5]))
                         .toLatin1();
        const SceneFile file = read(scene, false);
        const FalseColours colours(file.root.get());
        m_plain->setScene(file.root.get());
        const QImage picture = m_plain->grabFramebuffer();
        std::map<const SoNode *, QPoint> places;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                if (const SoNode *shape = colours.shapeOf(picture.pixel(x, y)); shape && isAlike(picture, {x, y}))
                    places.emplace(shape, QPoint(x, y));
        QCOMPARE(places.size(), std::size_t(100));
        for (const auto &[shape, place] : places)
            QCOMPARE(clicked(file.root.get(), place), shape);
    }

private:
    static std::unique_ptr<SceneView> makeView(int perPixel)
    {
        auto view = std::make_unique<SceneView>();
        QSurfaceFormat format = view->format();
        format.setSamples(perPixel);
        view->setFormat(format);
        view->resize(pictureSize);
        view->show();
        if (!QTest::qWaitForWindowExposed(view.get()))
            return nullptr;
        return view;
    }

    QImage emptyPicture() const
    {
        const Ref<SoSeparator> nothing;
        m_smooth->setScene(nothing);
        return m_smooth->grabFramebuffer();
    }

    static void scenes()
    {
        QTest::addColumn<QByteArray>("scene");
        QTest::addColumn<bool>("isFile");
        for (const auto &[name, scene] : ownScenes)
            QTest::newRow(name) << QByteArray("#Inventor V2.1 ascii\n") + scene << false;
        for (const QString &file : models())
            QTest::newRow(qPrintable(QFileInfo(file).fileName())) << file.toLocal8Bit() << true;
    }

    static SceneFile read(const QByteArray &scene, bool isFile)
    {
        if (isFile)
            return readScene(QFile::decodeName(scene));
        const QTemporaryDir directory;
        QFile file(directory.filePath(QStringLiteral("scene.iv")));
        file.open(QIODevice::WriteOnly);
        file.write(scene);
        file.close();
        return readScene(file.fileName());
    }

    void compareWithRays(SoSeparator *scene)
    {
        const FalseColours colours(scene);
        m_plain->setScene(scene);
        const QImage picture = m_plain->grabFramebuffer();

        const QRect box = covered(picture, m_background).adjusted(-3, -3, 3, 3) & picture.rect();
        std::vector<QPoint> pixels;
        for (int y = box.top(); y <= box.bottom(); ++y)
            for (int x = box.left(); x <= box.right(); ++x)
                pixels.emplace_back(x, y);
        std::shuffle(pixels.begin(), pixels.end(), std::mt19937(7));
        pixels.resize(std::min<std::size_t>(pixels.size(), 1000));
        RayCaster rays(m_plain->camera().node(), picture.size(), pixels);
        rays.cast(scene);

        int wrong = 0;
        int clicks = 0;
        for (std::size_t i = 0; i < pixels.size(); ++i) {
            const RayCaster::Answer answer = rays.answer(i);
            const QRgb shown = picture.pixel(pixels[i]);
            const SoNode *shape = colours.shapeOf(shown);
            const bool isText = shape ? shape->isOfType(SoText2::getClassTypeId()) : shown != m_background;
            const bool isSilent = shape && rays.isSilent(shape);
            const bool isSure = answer.isSure && !isText && !isSilent;
            ++m_asked;
            m_unsure += isSure ? 0 : 1;
            wrong += isSure && shape != answer.shape.node ? 1 : 0;
            const bool isClickable = isSilent ? isAlike(picture, pixels[i]) : isSure && shape == answer.shape.node;
            if (isClickable && (shape || !rays.hasThinShapes()) && ++clicks <= 8) // those are met nearby, too
                QCOMPARE(clicked(scene, pixels[i]), shape);
        }
        m_clicks += std::min(clicks, 8);
        // Coin makes round shapes and letters a little finer or coarser for drawing.
        QVERIFY2(50 * wrong <= static_cast<int>(pixels.size()), qPrintable(QString::number(wrong)));
        m_wrong += wrong;
    }

    /// Whether the pixels around show the same.
    static bool isAlike(const QImage &picture, const QPoint &pixel)
    {
        for (int y = -1; y <= 1; ++y)
            for (int x = -1; x <= 1; ++x)
                if (const QPoint other = pixel + QPoint(x, y);
                    picture.rect().contains(other) && picture.pixel(other) != picture.pixel(pixel))
                    return false;
        return true;
    }

    /// The node that a click there selects.
    const SoNode *clicked(const SoNode *scene, const QPoint &pixel)
    {
        const SoNode *node = nullptr;
        int answers = 0;
        const auto connection = connect(m_plain.get(), &SceneView::picked, this, [&](const ScenePath &path) {
            ++answers;
            node = path.isEmpty() ? nullptr : scene;
            for (const int index : path)
                node = childrenOf(node)[static_cast<std::size_t>(index)];
        });
        QTest::mouseClick(m_plain.get(), Qt::LeftButton, {}, pixel);
        disconnect(connection);
        return answers == 1 ? node : scene;
    }

    /// With the view's camera and its light, in a context that it knows nothing of.
    QImage drawnByCoin(SoSeparator *scene) const
    {
        forEach(scene, SoCamera::getClassTypeId(), [](const SoFullPath &path) {
            static_cast<SoGroup *>(path.getNodeFromTail(1))->replaceChild(path.getIndexFromTail(0), new SoGroup);
        });
        const Ref<SoSeparator> root;
        if (m_smooth->hasHeadlight()) {
            auto *light = new SoDirectionalLight;
            light->direction.setValue(0, 0, -1);
            root->addChild(light);
        }
        root->addChild(m_smooth->camera().node());
        root->addChild(scene);

        QOffscreenSurface surface;
        surface.setFormat(m_smooth->format());
        surface.create();
        QOpenGLContext context;
        context.setFormat(m_smooth->format());
        if (!context.create() || !context.makeCurrent(&surface))
            return QImage();
        QOpenGLFramebufferObjectFormat format;
        format.setAttachment(QOpenGLFramebufferObject::CombinedDepthStencil);
        format.setSamples(samples);
        QOpenGLFramebufferObject buffer(pictureSize, format);
        buffer.bind();
        const QColor background(m_background);
        QOpenGLFunctions *gl = context.functions();
        gl->glClearColor(static_cast<float>(background.redF()), static_cast<float>(background.greenF()),
                         static_cast<float>(background.blueF()), 1);
        gl->glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        gl->glEnable(GL_DEPTH_TEST);
        SoGLRenderAction action(
            SbViewportRegion(static_cast<short>(pictureSize.width()), static_cast<short>(pictureSize.height())));
        action.setCacheContext(SoGLCacheContextElement::getUniqueCacheContext());
        action.setTransparencyType(SoGLRenderAction::SORTED_OBJECT_BLEND);
        action.apply(root);
        gl->glColorMask(GL_FALSE, GL_FALSE, GL_FALSE, GL_TRUE);
        gl->glClear(GL_COLOR_BUFFER_BIT); // the colours alone count
        return buffer.toImage();
    }

    std::unique_ptr<SceneView> m_plain; ///< each pixel is one ray
    std::unique_ptr<SceneView> m_smooth; ///< as people see it
    QRgb m_background = 0;
    int m_asked = 0;
    int m_unsure = 0;
    int m_wrong = 0;
    int m_clicks = 0;
};

QTEST_MAIN(TestPicture)

#include "tst_picture.moc"
