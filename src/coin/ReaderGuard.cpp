// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "ReaderGuard.h"

#include <Inventor/fields/SoMFName.h>
#include <Inventor/fields/SoSFName.h>

#include <cstring>

namespace
{
bool isBlank(char character)
{
    return std::strchr(" \t\n\r\v\f,", character) != nullptr; // a NUL among them
}

bool startsNumber(char character)
{
    return std::strchr("0123456789+-.", character) != nullptr;
}
} // namespace

ReaderGuard::Danger ReaderGuard::feed(const char *text, qint64 length)
{
    for (const char *const end = text + length; text != end && m_danger == Danger::None; ++text)
        read(*text);
    return m_danger;
}

void ReaderGuard::read(char character)
{
    switch (m_inside) {
    case Inside::Comment:
        if (character == '\n' || character == '\r')
            m_inside = Inside::Blank;
        return;
    case Inside::String:
        if (character == '"' && !m_afterBackslash)
            m_inside = Inside::Blank;
        m_afterBackslash = character == '\\' && !(m_afterBackslash && m_notation == Notation::Vrml2);
        return;
    case Inside::Number:
    case Inside::Word:
        if (ends(character))
            break;
        if (++m_length > (m_inside == Inside::Number ? longestNumber : longestWord))
            m_danger = m_inside == Inside::Number ? Danger::LongNumber : Danger::LongWord;
        return;
    case Inside::Blank:
        break;
    }
    begin(character);
}

/// A quote or hash within a word is part of it.
bool ReaderGuard::ends(char character) const
{
    return isBlank(character) || std::strchr("{}[]", character)
        || (m_inside == Inside::Number && (character == '#' || character == '"'));
}

void ReaderGuard::begin(char character)
{
    m_inside = Inside::Blank;
    m_length = 1;
    if (character == '{' && ++m_levels > mostLevels)
        m_danger = Danger::DeepNesting;
    else if (character == '}' && m_levels > 0)
        --m_levels;
    else if (character == '"')
        m_inside = Inside::String;
    else if (character == '#')
        m_inside = Inside::Comment;
    else if (startsNumber(character) && character != '\0')
        m_inside = Inside::Number;
    else if (!isBlank(character) && !std::strchr("{}[]", character))
        m_inside = Inside::Word;
}

ReaderGuard::Danger ReaderGuard::inFieldText(const SoField &field, const QByteArray &text)
{
    const bool isName = field.isOfType(SoSFName::getClassTypeId()) || field.isOfType(SoMFName::getClassTypeId());
    if (isName && text.size() > longestWord) // a name is kept in an array, with or without quotes
        return Danger::LongWord;
    return ReaderGuard().feed(text.constData(), text.size());
}
