// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef READERGUARD_H
#define READERGUARD_H

#include <QByteArray>

class SoField;

/**
 * Looks for what would overrun Coin's text reader, which keeps words and numbers in arrays of fixed size and nested
 * nodes on the stack: read it, and the process ends or its memory is damaged.
 *
 * Text is fed in blocks, as it comes from a file.
 */
class ReaderGuard
{
public:
    enum class Danger { None, LongNumber, LongWord, DeepNesting };
    /// How a quote in a string is written.
    enum class Notation {
        Inventor, ///< a backslash before a quote, and nothing else, keeps the string open
        Vrml2 ///< a backslash takes its sense from any character
    };

    static constexpr int longestNumber = 500; ///< Coin holds 511 characters of an integer, 2047 of a real
    static constexpr int longestWord = 65000; ///< Coin holds some 65500 characters of a name
    static constexpr int mostLevels = 4000; ///< of braces; 8 MB of stack last for more than twice as many

    explicit ReaderGuard(Notation notation = Notation::Inventor) : m_notation(notation) { }

    /// What was found so far; after a danger nothing else is looked for.
    Danger feed(const char *text, qint64 length);

    /// Whether a field's own reader can be given a text.
    static Danger inFieldText(const SoField &field, const QByteArray &text);

private:
    enum class Inside { Blank, Number, Word, String, Comment };

    void read(char character);
    void begin(char character);
    bool ends(char character) const;

    Notation m_notation;
    Danger m_danger = Danger::None;
    Inside m_inside = Inside::Blank;
    int m_length = 0; ///< of the word or number
    int m_levels = 0;
    bool m_afterBackslash = false;
};

#endif
