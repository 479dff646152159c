// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef COINREF_H
#define COINREF_H

#include <memory>

/// Keeps a Coin object (a node, an engine, a path) alive while the result or a copy of it stands.
template <class T> std::shared_ptr<T> coinRef(T *object)
{
    if (!object)
        return nullptr;
    object->ref();
    return {object, [](T *kept) { kept->unref(); }};
}

#endif
