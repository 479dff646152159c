// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef NODECOUNT_H
#define NODECOUNT_H

class SoNode;

/// What there is of a node and everything below it.
struct NodeCount {
    int nodes = 0; ///< each counted once
    double places = 0; ///< a shared node counts in each of its places; their number can grow beyond any integer
    double fieldBytes = 0; ///< an estimate: values by their type, texts and images by their length, each node once
    int unknownFields = 0; ///< whose type has no known size; not in fieldBytes

    static NodeCount of(SoNode &root);
};

#endif
