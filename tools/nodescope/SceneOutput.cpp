// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "SceneOutput.h"

#include "SceneFile.h"

#include <zlib.h>

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace
{

using Size = decltype(QByteArray().size()); // int in Qt 5

QByteArray gzipped(const QByteArray &plain)
{
    z_stream stream{};
    constexpr int gzipWindow = 15 + 16; // the largest window, with a gzip header
    if (deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, gzipWindow, 8, Z_DEFAULT_STRATEGY) != Z_OK)
        qBadAlloc();
    QByteArray packed(static_cast<Size>(deflateBound(&stream, static_cast<uLong>(plain.size()))), Qt::Uninitialized);
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(plain.constData()));
    stream.avail_in = static_cast<uInt>(plain.size());
    stream.next_out = reinterpret_cast<Bytef *>(packed.data());
    stream.avail_out = static_cast<uInt>(packed.size());
    deflate(&stream, Z_FINISH);
    packed.truncate(static_cast<Size>(stream.total_out));
    deflateEnd(&stream);
    return packed;
}

} // namespace

SceneOutput::SceneOutput(const SceneFormat &format) : m_gzip(format.gzip)
{
    constexpr std::size_t startSize = 64 * 1024;
    setBuffer(std::malloc(startSize), startSize, &std::realloc);
    setBinary(format.binary);
    if (!format.header.isEmpty())
        setHeaderString(format.header.constData());
}

SceneOutput::~SceneOutput()
{
    void *buffer = nullptr;
    std::size_t size = 0;
    getBuffer(buffer, size);
    std::free(buffer);
}

QByteArray SceneOutput::content() const
{
    void *buffer = nullptr;
    std::size_t size = 0;
    getBuffer(buffer, size);
    QByteArray plain(static_cast<const char *>(buffer), static_cast<Size>(size));
    if (plain.isEmpty()) // no node was written: Coin leaves a binary file without its header then
        plain = getDefaultBinaryHeader().getString() + QByteArray("\n");
    return m_gzip ? gzipped(plain) : plain;
}

void SceneOutput::write(float number)
{
    writeShortest(number);
}

void SceneOutput::write(double number)
{
    writeShortest(number);
}

// SoOutput::setFloatPrecision() stops at 8 digits, a float may need 9 to come back exactly.
template <class Real> void SceneOutput::writeShortest(Real number)
{
    if (isBinary()) {
        SoOutput::write(number);
        return;
    }
    if (!std::isfinite(number)) {
        m_unreadableNumbers = true;
        number = std::isnan(number) ? Real(0) : std::copysign(std::numeric_limits<Real>::max(), number);
    }
    char text[64];
    *std::to_chars(text, text + sizeof text - 1, number).ptr = '\0';
    SoOutput::write(static_cast<const char *>(text));
}
