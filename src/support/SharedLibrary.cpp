// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "SharedLibrary.h"

#include <QLoggingCategory>

#include <dlfcn.h>
#include <execinfo.h>
#include <link.h>

#include <algorithm>
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

/// A path under which the library is known.
auto pathTo(void *handle)
{
    return std::find_if(handles().begin(), handles().end(),
                        [handle](const auto &open) { return open.second == handle; });
}

/// What the dynamic linker starts from, and does not check: a copy that was broken off may have nothing there.
bool namesItsSymbols(std::ifstream &file, const ElfW(Phdr) & segment)
{
    bool hasNames = false;
    bool hasSymbols = false;
    file.seekg(static_cast<std::streamoff>(segment.p_offset));
    for (auto left = segment.p_filesz; left >= sizeof(ElfW(Dyn)); left -= sizeof(ElfW(Dyn))) {
        ElfW(Dyn) entry;
        if (!file.read(reinterpret_cast<char *>(&entry), sizeof entry) || entry.d_tag == DT_NULL)
            break;
        hasNames |= entry.d_tag == DT_STRTAB && entry.d_un.d_ptr != 0;
        hasSymbols |= entry.d_tag == DT_SYMTAB && entry.d_un.d_ptr != 0;
    }
    return hasNames && hasSymbols;
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
    bool isDynamic = false;
    for (std::size_t i = 0; i < header.e_phnum; ++i) {
        ElfW(Phdr) segment;
        file.seekg(static_cast<std::streamoff>(header.e_phoff + i * sizeof segment));
        if (!file.read(reinterpret_cast<char *>(&segment), sizeof segment))
            return false;
        if (segment.p_type == PT_DYNAMIC && !(isDynamic = namesItsSymbols(file, segment)))
            return false;
        if (segment.p_type == PT_LOAD && (segment.p_filesz > size || segment.p_offset > size - segment.p_filesz))
            return false;
    }
    return isDynamic;
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

bool SharedLibrary::load(const QByteArray &path, bool resolveNow, QByteArray *reason)
{
    if (handles().count(path))
        return true;
    if (!isWholeLibrary(path.toStdString())) {
        *reason = path + " cannot be read, is no library for this machine, or is cut short";
        qCDebug(plugins, "%s", reason->constData());
        return false;
    }
    void *const handle = dlopen(unmistakable(path).constData(), (resolveNow ? RTLD_NOW : RTLD_LAZY) | RTLD_LOCAL);
    if (!handle) {
        *reason = dlerror();
        qCDebug(plugins, "%s", reason->constData());
        return false;
    }
    qCDebug(plugins, "%s is open", path.constData());
    if (pathTo(handle) != handles().end())
        dlclose(handle); // one count for the file, whatever paths lead to it
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
    const auto library = handles().find(path);
    if (library == handles().end())
        return nullptr;
    void *const handle = library->second;
    for (auto other = pathTo(handle); other != handles().end(); other = pathTo(handle))
        handles().erase(other);
    return handle;
}

bool SharedLibrary::holds(void *library, const void *address)
{
    void *holder = nullptr;
    Dl_info info;
    return dladdr1(address, &info, &holder, RTLD_DL_LINKMAP) != 0 && holder && holder == mapOf(library);
}

bool SharedLibrary::isRunning(void *library)
{
    void *frames[512];
    const int count = backtrace(frames, int(std::size(frames)));
    return std::any_of(frames, frames + count, [library](void *frame) { return holds(library, frame); });
}

void SharedLibrary::close(void *library)
{
    if (!library)
        return;
    qCDebug(plugins, "%s is closed", mapOf(library)->l_name);
    dlclose(library);
}
