// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SOURCETEXT_H
#define SOURCETEXT_H

#include <QByteArray>
#include <QString>

/**
 * Counts in the text of a scene file what its nodes do not tell: comments, and what drives a field.
 *
 * The text comes in pieces of any size. The header line is no comment.
 */
class SourceText
{
public:
    /// Of a file, packed or not. Nothing is counted in a binary one.
    static SourceText ofFile(const QString &fileName);
    static SourceText of(const QByteArray &text);

    int comments() const { return m_comments; }
    /// Fields that the text connects: one for each "=", and for each ROUTE of a VRML file.
    int connections() const { return m_connections; }
    /// Nodes that turn, swing or blink by an engine of their own.
    int movingNodes() const { return m_movingNodes; }

private:
    enum class Place { Header, Plain, Comment, String, Escaped };

    void add(const char *text, std::size_t size);
    void addPlain(char character);
    void endWord();

    Place m_place = Place::Header;
    QByteArray m_word; ///< the start of the one that stands at the end of what was read
    int m_comments = 0;
    int m_connections = 0;
    int m_movingNodes = 0;
};

#endif
