// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TestSupport.h"

#include "tools/nodescope/CoinRef.h"
#include "tools/nodescope/fields/FieldClipboard.h"
#include "tools/nodescope/tree/NodeQuery.h"
#include "tools/nodescope/tree/SceneSearch.h"

#include <QClipboard>

#include <Inventor/SoInteraction.h>
#include <Inventor/fields/SoFields.h>
#include <Inventor/nodes/SoNodes.h>

namespace
{
SceneSearch search(SoNode *root, const char *text)
{
    return {root, NodeQuery(text)};
}

/// Each place of a match leads to itself.
void checkOrder(const SceneSearch &found)
{
    for (qint64 i = 0; i < std::min<qint64>(found.count(), 50); ++i) {
        const ScenePath place = found.place(i);
        QVERIFY(found.isMatch(place));
        QCOMPARE(found.countBefore(place), i);
        if (i > 0)
            QVERIFY(found.place(i - 1) < place);
    }
}

QString text(SoField &field)
{
    SbString text;
    field.get(text);
    return QString::fromUtf8(text.getString());
}
} // namespace

/// Nodes found in scenes, and values of fields on the clipboard.
class TestSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Complaints::listen();
        SoInteraction::init();
    }
    void cleanup() { QCOMPARE(Complaints::take(), QByteArray()); }

    void findsByTypeAndName()
    {
        const auto root = coinRef(new SoSeparator);
        auto *const faces = new SoIndexedFaceSet;
        faces->vertexProperty = new SoVertexProperty;
        auto *const named = new SoInfo;
        named->setName("CubeLike");
        for (SoNode *const node : {static_cast<SoNode *>(new SoCube), static_cast<SoNode *>(faces),
                                   static_cast<SoNode *>(named), static_cast<SoNode *>(new SoShapeHints)})
            root->addChild(node);
        const std::pair<const char *, int> rows[]
            = {{"shape", 3}, {"CUBE", 2}, {"vertexprop", 1}, {"node", 5}, {"group", 0}, {"x", 2}, {"zz", 0}};
        for (const auto &[wanted, count] : rows) {
            const SceneSearch found = search(root.get(), wanted);
            QVERIFY2(found.count() == count, wanted);
            checkOrder(found);
        }
        QCOMPARE(search(root.get(), "VertexProperty").place(0), (ScenePath{1, 0}));
        QCOMPARE(search(nullptr, "Cube").count(), 0);
    }

    /// Shared branches within shared branches stand in more places than there is memory; a field may hold a node above.
    void sharedAndEndlessScenes()
    {
        const auto root = coinRef(new SoSeparator);
        SoGroup *level = root.get();
        for (int i = 0; i < 40; ++i) {
            auto *const next = new SoGroup;
            level->addChild(next);
            level->addChild(next);
            level = next;
        }
        level->addChild(new SoCube);
        const SceneSearch found = search(root.get(), "Cube");
        QCOMPARE(found.count(), qint64(1) << 40);
        QCOMPARE(found.countBefore(found.place(123456789012)), 123456789012);
        checkOrder(found);

        const auto texture = coinRef(new SoSceneTexture2);
        root->addChild(texture.get());
        texture->scene = root.get();
        const SceneSearch endless = search(root.get(), "Texture");
        QCOMPARE(endless.count(), 1);
        checkOrder(endless);
        texture->scene = nullptr;
    }

    void valuesFromTheClipboard()
    {
        SoSFFloat number;
        SoSFInt32 whole;
        SoSFVec3f vector;
        SoSFString words;
        SoSFRotation turn;
        SoMFVec3f vectors;
        SoSFBool flag;
        struct Row {
            SoField *field;
            const char *text;
            const char *value; ///< null: does not fit
        };
        const Row rows[] = {
            {&number, "0.125", "0.125"},
            {&number, "1/3", nullptr},
            {&number, "nan", nullptr},
            {&number, "", nullptr},
            {&whole, "0.5", nullptr},
            {&whole, "99999999999", nullptr},
            {&vector, "1 2 3", "1 2 3"},
            {&vector, "1 2", nullptr},
            {&vectors, "[ 1 2 3, 4 5 6 ]", "[ 1 2 3, 4 5 6 ]"},
            {&vectors, "[ 1 2 3, 4 5 ]", nullptr},
            {&words, "say \"ah\"", "\"say \\\"ah\\\"\""},
            {&turn, "0 2 0 1.5", "0 1 0  1.5"},
            {&flag, "TRUE", "TRUE"},
            {&flag, "maybe", nullptr},
        };
        for (const Row &row : rows) {
            QGuiApplication::clipboard()->setText(row.text);
            QString problem;
            const std::shared_ptr<SoField> value = FieldClipboard::valueFor(*row.field, &problem);
            QVERIFY2(bool(value) == bool(row.value) && problem.isEmpty() == bool(value), row.text);
            if (value)
                QCOMPARE(text(*value).simplified(), QString(row.value).simplified());
        }
    }

    void copiesAreExact()
    {
        SoSFFloat number;
        number.setValue(std::nextafter(0.1F, 1.0F));
        FieldClipboard::copy(number);
        QString problem;
        SoSFFloat other;
        const auto value = FieldClipboard::valueFor(other, &problem);
        QVERIFY(value && static_cast<SoSFFloat &>(*value).getValue() == number.getValue());

        const auto style = coinRef(new SoDrawStyle);
        const auto hints = coinRef(new SoShapeHints);
        style->style = SoDrawStyle::LINES;
        FieldClipboard::copy(style->style);
        QVERIFY(!FieldClipboard::valueFor(hints->vertexOrdering, &problem)); // the number would mean something else
        QVERIFY(problem.contains("DrawStyle.style") && problem.contains("ShapeHints.vertexOrdering"));
        const auto another = coinRef(new SoDrawStyle);
        const auto choice = FieldClipboard::valueFor(another->style, &problem);
        QVERIFY(choice && text(*choice) == "LINES");
        QGuiApplication::clipboard()->clear();
    }
};

QTEST_MAIN(TestSearch)

#include "tst_search.moc"
