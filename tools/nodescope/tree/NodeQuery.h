// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef NODEQUERY_H
#define NODEQUERY_H

#include <QByteArray>
#include <QString>

#include <Inventor/SoType.h>

#include <unordered_map>

class SoNode;

/**
 * What a person looks for among nodes, in one text, whatever its case.
 *
 * It is part of the node's name, or of its type's, or the whole name of a type that the node's type derives from:
 * "Shape" finds cubes.
 */
class NodeQuery
{
public:
    explicit NodeQuery(const QString &text);

    bool isEmpty() const { return m_text.isEmpty(); }
    bool operator()(const SoNode &node) const;

private:
    bool isPartOf(const char *text) const;
    bool matchesType(SoType type) const;

    QByteArray m_text; ///< in small letters
    mutable std::unordered_map<short, bool> m_types; ///< asked for before
};

#endif
