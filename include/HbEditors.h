// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBEDITORS_H
#define HBEDITORS_H

#include <HbNscPlugins.h>

#include <QFrame>

#include <Inventor/SbName.h>
#include <Inventor/SoType.h>

#include <memory>
#include <vector>

class SbThreadMutex;
class SoField;
class SoNode;

/**
 * A frame that edits a node or a field, and the registry in which a tool finds it.
 *
 * An editor registers under one key: a node name, a node, a field, or a type of node or field. The frame
 * is born hidden; whoever wants it seen calls show() on it. An editor leaves the registry when it is
 * destroyed, and also when the node or field that it is registered for dies.
 *
 * The first base is no QObject, so QObject::findChildren<T>() must not be asked for HbEditors or a class
 * derived from it; ask for QFrame and dynamic_cast the result.
 */
class HARBORAPI_EXPORT HbEditors : public HbNscPlugins, public QFrame
{
public:
    /// The plug-in base is given @p parent in place of the main window; nothing reads it there as one.
    HbEditors(QWidget *parent, Qt::WindowFlags flags);

    /// "Editor for Nodescope".
    SbString getDescription() const override;
    /// "No help available".
    SbString getHelp() const override;
    /// "HbEditors based Editor".
    SbString getName() const override;
    /// "1.0".
    SbString getVersion() const override;

    ~HbEditors() override;

    /// Serves nodes of this name. Like its siblings: ignored while the editor is registered already.
    virtual void registerEditor(const SbName &name);
    /// Serves the node that has this field.
    virtual void registerEditor(SoField *field);
    /// Serves this node.
    virtual void registerEditor(SoNode *node);
    /// Serves nodes of this type, and nodes with a field of this type.
    virtual void registerEditor(const SoType &type);
    /// Leaves the registry and forgets the key; nothing happens to an editor that is not registered.
    virtual void unregisterEditor();

    /// Shows what the editor was found for; getRegisteredEditor() calls this on the editor it chose.
    virtual void updateEditor() = 0;

    /**
     * Finds the editor for @p node, activates it with updateEditor() and returns true.
     *
     * The first editor registered for the node's name, the node itself or its type ends the search;
     * one registered for a field or a field type is a candidate that a later one replaces.
     * @p editor is written only on a match: set it to null before the call. Where it was not null and
     * nothing matches, the editor it names is activated all the same. A null node matches nothing.
     *
     * The search may run beside registrations in other threads; the activation runs after the registry's
     * lock is released and may delete the editor. Registering under a node or a field is for the thread that
     * owns the scene: its end is watched from then on.
     */
    static bool getRegisteredEditor(SoNode *node, HbEditors *&editor);

protected:
    bool registered = false;
    SbName nodeName;
    SoField *currentField = nullptr; ///< the field that matched in the last search; not watched
    SoField *field = nullptr;
    SoNode *currentNode = nullptr; ///< the node that matched in the last search; not watched
    SoNode *node = nullptr;
    SoType type;

private:
    static std::vector<HbEditors *> &s_editors();
    static SbThreadMutex &s_editorsListMutex();

    template <class Key> bool enlist(Key HbEditors::*slot, const Key &key);
    void leaveRegistry();
    bool servesNode(SoNode *candidate, const SbName &candidateName) const;

    class KeyWatch;
    std::unique_ptr<KeyWatch> m_keyWatch;
};

#endif
