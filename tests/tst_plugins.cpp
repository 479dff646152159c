// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TestSupport.h"

#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoCube.h>
#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoMaterial.h>

#include <thread>

/// The registry, and who owns what in the plug-in framework.
class TestPlugins : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Complaints::listen(); }
    void cleanup() { QCOMPARE(Complaints::take(), QByteArray()); }

    void editorIsBornHiddenUnderItsParent()
    {
        QWidget parent;
        auto *const editor = new RecordingEditor;
        editor->setParent(&parent);
        parent.show();
        QVERIFY(!editor->isVisible());
    }

    void firstKeyCountsUntilUnregistered()
    {
        const Ref<SoCone> cone;
        const Ref<SoCube> cube;
        RecordingEditor editor;
        editor.registerEditor(SoCone::getClassTypeId());
        editor.registerEditor(SoCube::getClassTypeId());
        QCOMPARE(find(cone), &editor);
        QCOMPARE(find(cube), nullptr);
        editor.unregisterEditor();
        editor.unregisterEditor();
        QCOMPARE(find(cone), nullptr);
        editor.registerEditor(static_cast<SoNode *>(cube));
        QCOMPARE(find(cube), &editor);
    }

    void nodeKeyEndsTheSearchAndALaterFieldReplaces()
    {
        const Ref<SoCone> cone;
        cone->setName("spire");
        RecordingEditor byField, byFieldType, byName;
        byField.registerEditor(&cone->height);
        QCOMPARE(find(cone), &byField);
        QCOMPARE(byField.currentField, &cone->height);
        QCOMPARE(byField.takeLog(), QStringList({"update", "setField", "refresh"}));
        QCOMPARE(byField.lastField, &cone->height);

        byFieldType.registerEditor(SoSFFloat::getClassTypeId());
        QCOMPARE(find(cone), &byFieldType);
        QCOMPARE(byFieldType.currentField, &cone->bottomRadius); // the first of that type
        QCOMPARE(byFieldType.takeLog(), QStringList({"update", "setField null", "refresh"}));

        byName.registerEditor(SbName("spire"));
        QCOMPARE(find(cone), &byName);
        QCOMPARE(byName.currentNode, cone);
    }

    void oddSearches()
    {
        const Ref<SoCube> cube;
        cube->setName("NoNodeName"); // as the name of a key without one: it matches any
        const Ref<SoGroup> noFields;
        RecordingEditor byType, byNode;
        byType.registerEditor(SoCone::getClassTypeId());
        byNode.registerEditor(static_cast<SoNode *>(noFields)); // found past the first: no fields, but a record
        QCOMPARE(find(cube), &byType);
        QCOMPARE(find(noFields), &byNode);
        QCOMPARE(find(nullptr), nullptr);
    }

    void keyThatDiesLeavesTheRegistry()
    {
        RecordingEditor byNode, byField;
        {
            const Ref<SoCone> cone;
            const Ref<SoCube> cube;
            byNode.registerEditor(static_cast<SoNode *>(cone));
            byField.registerEditor(&cube->width);
        }
        byField.updateEditor();
        QCOMPARE(byField.lastField, nullptr);
        const Ref<SoCube> later;
        {
            const Ref<SoCone> former;
            byField.registerEditor(&former->height);
            byField.unregisterEditor();
            byField.registerEditor(static_cast<SoNode *>(later));
        }
        QCOMPARE(find(later), &byField); // although its former key died
        const Ref<SoCone> other; // may well be where the old one was
        QCOMPARE(find(other), nullptr);
        byNode.registerEditor(SoCone::getClassTypeId());
        QCOMPARE(find(other), &byNode);
    }

    void activationMayRegisterAndDelete()
    {
        struct Suicidal : RecordingEditor {
            void updateEditor() override
            {
                other->registerEditor(SoCube::getClassTypeId());
                delete this;
            }
            RecordingEditor *other = nullptr;
        };
        const Ref<SoCone> cone;
        const Ref<SoCube> cube;
        RecordingEditor other;
        auto *const editor = new Suicidal;
        editor->other = &other;
        editor->registerEditor(SoCone::getClassTypeId());
        HbEditors *found = nullptr;
        QVERIFY(HbEditors::getRegisteredEditor(cone, found));
        QCOMPARE(find(cone), nullptr);
        QCOMPARE(find(cube), &other);
    }

    void registeringInManyThreads()
    {
        const Ref<SoMaterial> material;
        std::vector<std::unique_ptr<RecordingEditor>> editors(64);
        for (auto &editor : editors)
            editor = std::make_unique<RecordingEditor>();
        std::vector<std::thread> threads;
        for (size_t t = 0; t < 4; ++t) {
            threads.emplace_back([&editors, t] {
                for (int round = 0; round < 200; ++round) {
                    for (size_t i = t; i < editors.size(); i += 4)
                        editors[i]->registerEditor(SoCone::getClassTypeId());
                    for (size_t i = t; i < editors.size(); i += 4)
                        editors[i]->unregisterEditor();
                }
                editors[t]->registerEditor(SoMaterial::getClassTypeId());
            });
        }
        for (int round = 0; round < 1000; ++round)
            find(material);
        for (std::thread &thread : threads)
            thread.join();
        QVERIFY(find(material));
    }

private:
    static HbEditors *find(SoNode *node)
    {
        HbEditors *editor = nullptr;
        const bool found = HbEditors::getRegisteredEditor(node, editor);
        return found ? editor : nullptr;
    }
};

QTEST_MAIN(TestPlugins)
#include "tst_plugins.moc"
