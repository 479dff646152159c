// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SHAREDLIBRARY_H
#define SHAREDLIBRARY_H

#include <QByteArray>

/// The shared libraries that this process opened by path, each once. For the GUI thread.
namespace SharedLibrary
{
/// What the names of libraries end with.
constexpr const char *suffix = ".so";

/**
 * Opens the library, or finds it open; false where it cannot be opened.
 *
 * @p resolveNow looks every symbol up at once, so that one that is missing makes this fail; otherwise it would end
 * the process when it is called. Only whole, regular files are opened. Why a library was refused is told
 * on the logging category "harbor.plugins".
 */
bool load(const QByteArray &path, bool resolveNow);

/// The address of a symbol; null where there is none, or where the library is not open.
void *symbol(const QByteArray &path, const QByteArray &name);

/// Whether @p address lies in the open library.
bool holds(const QByteArray &path, const void *address);

/// Closes the library and forgets it.
void unload(const QByteArray &path);

/// Forgets the library and leaves its code where it is until the process ends.
void abandon(const QByteArray &path);
} // namespace SharedLibrary

#endif
