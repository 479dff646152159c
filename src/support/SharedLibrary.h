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
 * the process when it is called. Only whole, regular files are opened. Why a library was refused is put in @p reason
 * and told on the logging category "harbor.plugins".
 */
bool load(const QByteArray &path, bool resolveNow, QByteArray *reason);

/// The address of a symbol; null where there is none, or where the library is not open.
void *symbol(const QByteArray &path, const QByteArray &name);

/// Forgets the library, which stays open, under this and any other path, and returns its handle.
void *take(const QByteArray &path);

/// Whether @p address lies in the library that take() returned.
bool holds(void *library, const void *address);

/// Whether a function of the library has called, by whatever way, the one that asks.
bool isRunning(void *library);

/// Closes a library that take() returned.
void close(void *library);
} // namespace SharedLibrary

#endif
