// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "CoinMessages.h"

#include <Inventor/errors/SoErrors.h>

#include <QCoreApplication>
#include <QRegularExpression>

namespace
{

// Coin keeps one handler per kind of error.
struct Channel {
    SoErrorCB *(*handler)();
    void *(*data)();
    void (*set)(SoErrorCB *, void *);
};

template <class Error> constexpr Channel channel()
{
    return {&Error::getHandlerCallback, &Error::getHandlerData, &Error::setHandlerCallback};
}

constexpr std::array<Channel, 4> channels{channel<SoError>(), channel<SoReadError>(), channel<SoDebugError>(),
                                          channel<SoMemoryError>()};

} // namespace

CoinMessages::CoinMessages() : CoinMessages([this](const QString &text) { m_texts.append(text); }) { }

CoinMessages::CoinMessages(Receiver receiver) : m_receiver(std::move(receiver))
{
    for (std::size_t i = 0; i < channels.size(); ++i) {
        m_previous[i] = {channels[i].handler(), channels[i].data()};
        channels[i].set(&CoinMessages::receive, this);
    }
}

CoinMessages::~CoinMessages()
{
    for (std::size_t i = 0; i < channels.size(); ++i)
        channels[i].set(m_previous[i].function, m_previous[i].data);
}

QString CoinMessages::readable(const QString &coinText)
{
    static const QRegularExpression readError(
        QStringLiteral(
            "^Coin read error: (.*)\\n\\tOccurred at (line|position)\\s+(\\d+) in (?:binary file )?([^\\n]*)"),
        QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = readError.match(coinText);
    if (!match.hasMatch())
        return coinText.simplified();
    const QString place = match.captured(2) == QLatin1String("line")
        ? QCoreApplication::translate("CoinMessages", "%1, line %2: %3")
        : QCoreApplication::translate("CoinMessages", "%1, byte %2: %3");
    return place.arg(match.captured(4), match.captured(3), match.captured(1).simplified());
}

void CoinMessages::receive(const SoError *error, void *self)
{
    const QString text = QString::fromUtf8(error->getDebugString().getString());
    static_cast<CoinMessages *>(self)->m_receiver(readable(text));
}
