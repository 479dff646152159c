// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "SharedLibrary.h"

#include <QLoggingCategory>

#include <dlfcn.h>
#include <link.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>

namespace
{
Q_LOGGING_CATEGORY(plugins, "harbor.plugins", QtWarningMsg)

/// Never destroyed: libraries may still be closed while the process ends.
std::map<QByteArray, void *> &handles()
{
    static auto *const open = new std::map<QByteArray, void *>;
    return *open;
}

/// Whether the file holds all that its program headers promise: mapping one that was cut short would raise SIGBUS.
bool isWholeLibrary(const std::string &path)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) // opening a FIFO would wait for ever
        return false;
    const auto size = std::filesystem::file_size(path, error);
    std::ifstream file(path, std::ios::binary);
    ElfW(Ehdr) header;
    if (error || !file.read(reinterpret_cast<char *>(&header), sizeof header))
        return false;
    constexpr unsigned char nativeClass = sizeof(void *) == 8 ? ELFCLASS64 : ELFCLASS32;
    if (std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0 || header.e_ident[EI_CLASS] != nativeClass
        || header.e_phentsize != sizeof(ElfW(Phdr)))
        return false;
    file.seekg(static_cast<std::streamoff>(header.e_phoff));
    for (int i = 0; i < header.e_phnum; ++i) {
        ElfW(Phdr) segment;
        if (!file.read(reinterpret_cast<char *>(&segment), sizeof segment))
            return false;
        if (segment.p_type == PT_LOAD && (segment.p_filesz > size || segment.p_offset > size - segment.p_filesz))
            return false;
    }
    return true;
}

/// The dynamic linker's own record of an open library; null for null.
const link_map *mapOf(void *library)
{
    link_map *map = nullptr;
    if (library)
        dlinfo(library, RTLD_DI_LINKMAP, &map);
    return map;
}

/// A bare file name is one in the working directory and not one of the system's libraries.
QByteArray unmistakable(const QByteArray &path)
{
    return path.contains('/') ? path : "./" + path;
}
} // namespace

bool SharedLibrary::load(const QByteArray &path, bool resolveNow)
{
    if (handles().count(path))
        return true;
    if (!isWholeLibrary(path.toStdString())) {
        qCDebug(plugins, "%s cannot be read, is no library for this machine, or is cut short", path.constData());
        return false;
    }
    void *const handle = dlopen(unmistakable(path).constData(), (resolveNow ? RTLD_NOW : RTLD_LAZY) | RTLD_LOCAL);
    if (!handle) {
        qCDebug(plugins, "%s", dlerror());
        return false;
    }
    qCDebug(plugins, "%s is open", path.constData());
    handles().emplace(path, handle);
    return true;
}

void *SharedLibrary::symbol(const QByteArray &path, const QByteArray &name)
{
    const auto library = handles().find(path);
    return library != handles().end() ? dlsym(library->second, name.constData()) : nullptr;
}

void *SharedLibrary::take(const QByteArray &path)
{
    const auto library = handles().extract(path);
    return library ? library.mapped() : nullptr;
}

bool SharedLibrary::holds(void *library, const void *address)
{
    void *holder = nullptr;
    Dl_info info;
    return dladdr1(address, &info, &holder, RTLD_DL_LINKMAP) != 0 && holder && holder == mapOf(library);
}

void SharedLibrary::close(void *library)
{
    if (!library)
        return;
    qCDebug(plugins, "%s is closed", mapOf(library)->l_name);
    dlclose(library);
}
