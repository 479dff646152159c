// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef NODEORIGIN_H
#define NODEORIGIN_H

#include <QString>

class SoFieldContainer;
class SoNode;

/// Whether a node is saved with the scene that it stands in, or only drawn with it.
struct NodeOrigin {
    enum Kind {
        Scene, ///< saved with the scene
        File, ///< read from another file by a node that names it
        Prototype ///< made from a PROTO, of which only the call is saved
    };

    Kind kind = Scene;
    QString name; ///< of the other file, without its folder, or of the PROTO
    QString fileName; ///< the other file's path; empty where it is no local file

    /// The scene whose nodes of() knows; to be told again when nodes have come or gone. Null forgets.
    static void setScene(SoNode *root);
    /// A node that also stands outside of what another file gave is the scene's own.
    static NodeOrigin of(const SoFieldContainer *node);
    /// The file that @p node itself names, to read its children from it; Scene where it names none.
    static NodeOrigin namedBy(SoNode *node);

    /// Why the node cannot be edited, as the end of a sentence; empty for the scene's own.
    QString obstacle() const;
};

#endif
