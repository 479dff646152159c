// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef COINMESSAGES_H
#define COINMESSAGES_H

#include <QStringList>

#include <array>
#include <functional>

class SoError;
typedef void SoErrorCB(const SoError *error, void *data);

/**
 * Receives what Coin has to say while it stands: errors, read errors, warnings of its debug channel.
 *
 * Objects nest; the newest one hears, and the one before hears again once it is gone. Without any, Coin
 * prints to the terminal.
 */
class CoinMessages
{
public:
    using Receiver = std::function<void(const QString &text)>;

    /// Collects the messages for texts().
    CoinMessages();
    /// Passes every message on at once.
    explicit CoinMessages(Receiver receiver);
    ~CoinMessages();
    CoinMessages(const CoinMessages &) = delete;
    CoinMessages &operator=(const CoinMessages &) = delete;

    const QStringList &texts() const { return m_texts; }

    /// Coin's text as one line; a read error starts with its file and line.
    static QString readable(const QString &coinText);

private:
    struct Handler {
        SoErrorCB *function;
        void *data;
    };

    static void receive(const SoError *error, void *self);

    QStringList m_texts;
    Receiver m_receiver;
    std::array<Handler, 4> m_previous;
};

#endif
