// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "SourceText.h"

#include <QFile>

#include <zlib.h>

#include <algorithm>
#include <array>
#include <memory>

namespace
{

constexpr int longestWord = 32; // longer than any that counts

bool isLetter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') || character == '_';
}

bool isMovingNode(const QByteArray &word)
{
    constexpr std::array names{"Rotor", "Pendulum", "Shuttle", "Blinker"};
    return std::any_of(names.begin(), names.end(), [&](const char *name) { return word == name; });
}

bool isBinary(const QByteArray &start)
{
    const QByteArray header = start.left(start.indexOf('\n'));
    return !header.contains("ascii") && !header.contains("utf8");
}

} // namespace

SourceText SourceText::ofFile(const QString &fileName)
{
    SourceText source;
    const std::shared_ptr<gzFile_s> file(gzopen(QFile::encodeName(fileName).constData(), "rb"), [](gzFile opened) {
        if (opened)
            gzclose(opened);
    });
    if (!file)
        return source;
    QByteArray block(1 << 16, Qt::Uninitialized);
    bool isFirst = true;
    for (int size; (size = gzread(file.get(), block.data(), static_cast<unsigned>(block.size()))) > 0;) {
        if (isFirst && isBinary(block.left(size)))
            return source;
        isFirst = false;
        source.add(block.constData(), static_cast<std::size_t>(size));
    }
    source.endWord();
    return source;
}

SourceText SourceText::of(const QByteArray &text)
{
    SourceText source;
    source.add(text.constData(), static_cast<std::size_t>(text.size()));
    source.endWord();
    return source;
}

void SourceText::add(const char *text, std::size_t size)
{
    for (const char *at = text; at != text + size; ++at) {
        switch (m_place) {
        case Place::Header:
        case Place::Comment:
            if (*at == '\n' || *at == '\r')
                m_place = Place::Plain;
            break;
        case Place::Plain:
            addPlain(*at);
            break;
        case Place::String:
            if (*at == '\\')
                m_place = Place::Escaped;
            else if (*at == '"')
                m_place = Place::Plain;
            break;
        case Place::Escaped:
            m_place = Place::String;
            break;
        }
    }
}

void SourceText::addPlain(char character)
{
    if (isLetter(character)) {
        if (m_word.size() < longestWord)
            m_word.append(character);
        return;
    }
    const bool isInWord = !m_word.isEmpty(); // "a#b" may be an unquoted text
    endWord();
    if (character == '#' && !isInWord) {
        m_place = Place::Comment;
        ++m_comments;
    } else if (character == '"') {
        m_place = Place::String;
    } else if (character == '=') {
        ++m_connections;
    }
}

void SourceText::endWord()
{
    if (m_word == "ROUTE")
        ++m_connections;
    else if (isMovingNode(m_word))
        ++m_movingNodes;
    m_word.clear();
}
