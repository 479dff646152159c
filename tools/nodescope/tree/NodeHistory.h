// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef NODEHISTORY_H
#define NODEHISTORY_H

#include "ScenePath.h"

#include <QObject>

#include <vector>

class QAction;
class QMenu;
class SceneTree;

/// The places that were selected before, to go back to and forward again. Places that are gone are passed over.
class NodeHistory : public QObject
{
    Q_OBJECT

public:
    /// The history's parent is @p tree.
    explicit NodeHistory(SceneTree *tree);

    void addTo(QMenu &menu);

private:
    struct Place {
        ScenePath path;
        const SoNode *node; ///< compared only
    };

    void note();
    void go(int direction);
    int next(int direction) const;
    bool isThere(const Place &place) const;
    void forget();
    void enable();

    SceneTree *m_tree;
    QAction *m_back;
    QAction *m_forward;
    std::vector<Place> m_places;
    int m_here = -1;
    bool m_isGoing = false;
};

#endif
