// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Expression.h"

#include <QCoreApplication>

#include <charconv>
#include <cmath>
#include <limits>

namespace
{
constexpr double pi = 3.14159265358979323846;
constexpr int mostNested = 100;
constexpr int longest = 1000;

bool isDigit(QChar character, int base)
{
    const ushort code = character.unicode();
    if (code >= '0' && code <= '9')
        return code - '0' < base;
    return base == 16 && ((code >= 'a' && code <= 'f') || (code >= 'A' && code <= 'F'));
}

bool isMark(QChar character)
{
    return character == QLatin1Char('.') || character == QLatin1Char(',');
}

/// Reads from left to right, one function for each level of precedence; after an error each returns at once.
class Reader
{
    Q_DECLARE_TR_FUNCTIONS(Expression)

public:
    Reader(const QString &text, const Expression::Syntax &syntax) : m_text(text), m_syntax(syntax) { }

    Expression::Result read()
    {
        if (m_text.size() > longest) {
            fail(tr("The text is too long for a number."));
            return m_result;
        }
        const double value = sum();
        if (!isAtEnd())
            fail(next() == QLatin1Char(')') ? tr("A parenthesis is closed that was not opened.")
                                            : tr("An operator is missing before “%1”.").arg(rest()),
                 beginsName(rest()) && rest() != QLatin1String("pi"));
        if (std::isnan(value))
            fail(tr("The result is not a real number."));
        else if (std::isinf(value))
            fail(tr("The result is too large."));
        m_result.value = value;
        m_result.single = singleOf(value);
        return m_result;
    }

private:
    void fail(const QString &error, bool isUnfinished = false)
    {
        if (!m_result.error.isEmpty())
            return;
        m_result.error = error;
        m_result.isUnfinished = isUnfinished;
        m_position = static_cast<int>(m_text.size());
    }

    void skipSpaces()
    {
        while (m_position < m_text.size() && m_text[m_position].isSpace())
            ++m_position;
    }
    bool isAtEnd()
    {
        skipSpaces();
        return m_position >= m_text.size();
    }
    QChar next() { return isAtEnd() ? QChar() : m_text[m_position]; }
    bool take(char16_t wanted)
    {
        if (next() != QChar(wanted))
            return false;
        ++m_position;
        return true;
    }
    bool takeOperator(char16_t wanted)
    {
        const bool isTaken = take(wanted);
        m_isPlain = m_isPlain && !isTaken;
        return isTaken;
    }
    bool takeMinus() { return take(u'-') || take(u'\u2212'); }

    /// What stands here, no longer than a message can show it.
    QString rest()
    {
        constexpr int few = 12;
        skipSpaces();
        const QString here = m_text.mid(m_position).section(QLatin1Char(' '), 0, 0);
        return here.size() <= few ? here : here.left(few - 1) + QChar(0x2026);
    }
    QString word()
    {
        skipSpaces();
        auto end = m_position;
        while (end < m_text.size() && m_text[end].isLetter())
            ++end;
        return m_text.mid(m_position, end - m_position);
    }

    double sum()
    {
        double value = product();
        for (;;) {
            if (takeOperator(u'+'))
                value += product();
            else if (!isAtEnd() && takeMinus())
                value -= productOfMore();
            else
                return value;
        }
    }
    double productOfMore()
    {
        m_isPlain = false;
        return product();
    }

    /// A unit stands behind all that was multiplied before it: 90/2 deg are 45 degrees.
    double product()
    {
        double value = signedNumber();
        bool hasUnit = false;
        for (;;) {
            if (takeOperator(u'*'))
                value *= signedNumber();
            else if (takeOperator(u'/'))
                value = quotient(value, signedNumber());
            else if (!hasUnit && takeUnit(value))
                hasUnit = true;
            else
                return value;
        }
    }

    double quotient(double dividend, double divisor)
    {
        if (divisor == 0)
            fail(tr("The number divides by zero."));
        return dividend / divisor;
    }

    bool takeUnit(double &value)
    {
        const bool isSign = next() == QChar(0x00b0);
        const QString name = isSign ? m_text.mid(m_position, 1) : word();
        const bool isDegrees = isSign || name == QLatin1String("deg") || name == QLatin1String("degrees");
        if (!isDegrees && name != QLatin1String("rad"))
            return false;
        if (!m_syntax.isAngle)
            fail(tr("“%1” is for angles only, and this is none.").arg(name));
        else
            m_position += static_cast<int>(name.size());
        m_isPlain = false;
        value = isDegrees ? value * pi / 180 : value;
        return true;
    }

    double signedNumber()
    {
        if (++m_nested > mostNested)
            fail(tr("The parentheses are too deep."));
        bool isNegative = false;
        while (!isAtEnd() && (next() == QLatin1Char('+') || next() == QLatin1Char('-') || next() == QChar(0x2212)))
            isNegative ^= takeMinus() || !take(u'+');
        double value = number();
        if (takeOperator(u'^'))
            value = std::pow(value, signedNumber());
        --m_nested;
        return isNegative ? -value : value;
    }

    double number()
    {
        if (isAtEnd()) {
            fail(m_text.trimmed().isEmpty() ? tr("A number is missing.")
                                            : tr("The text ends where a number is missing."),
                 true);
            return 0;
        }
        const bool hasFraction = m_syntax.base == 10 && isMark(next());
        if (hasFraction || isDigit(next(), m_syntax.base))
            return literal();
        m_isPlain = false;
        if (take(u'('))
            return inParentheses();
        return named();
    }

    double inParentheses()
    {
        const double value = sum();
        if (!take(u')'))
            fail(isAtEnd() ? tr("A parenthesis is not closed.") : tr("An operator is missing before “%1”.").arg(rest()),
                 isAtEnd());
        return value;
    }

    double named()
    {
        const QString name = word();
        const QString lower = name.toLower();
        if (lower == QLatin1String("pi") || name == QChar(0x03c0)) {
            m_position += static_cast<int>(name.size());
            return pi;
        }
        const bool isInfinite = lower == QLatin1String("inf") || lower == QLatin1String("infinity");
        if (isInfinite || lower == QLatin1String("nan"))
            fail(tr("“%1” is no number that a field should hold.").arg(name));
        else
            fail(tr("“%1” is not part of a number.").arg(rest()), lower == QLatin1String("p"));
        return 0;
    }

    double literal()
    {
        const bool hasPrefix = (m_syntax.isWhole || m_syntax.base == 16)
            && m_text.mid(m_position, 2).compare(QLatin1String("0x"), Qt::CaseInsensitive) == 0;
        if (hasPrefix)
            m_position += 2;
        return hasPrefix || m_syntax.base != 10 ? digits(hasPrefix ? 16 : m_syntax.base) : decimal();
    }

    double digits(int base)
    {
        m_isPlain = false;
        double value = 0;
        const auto start = m_position;
        for (; m_position < m_text.size() && isDigit(m_text[m_position], base); ++m_position)
            value = value * base + QString(m_text[m_position]).toInt(nullptr, base);
        if (m_position == start)
            fail(tr("Digits are missing after “0x”."), isAtEnd());
        refuseTail(start);
        return value;
    }

    void skipDigits()
    {
        while (m_position < m_text.size() && isDigit(m_text[m_position], 10))
            ++m_position;
    }

    double decimal()
    {
        const auto start = m_position;
        skipDigits();
        const auto mark = m_position;
        const bool hasMark = m_position < m_text.size() && isMark(m_text[m_position]);
        if (hasMark) {
            ++m_position;
            skipDigits();
        }
        const auto decimals = hasMark ? m_position - mark - 1 : 0;
        if (hasMark && m_position < m_text.size() && isMark(m_text[m_position])) {
            fail(tr("“%1” has two decimal marks.").arg(m_text.mid(start)));
            return 0;
        }
        if (mark == start && decimals == 0) {
            fail(tr("Digits are missing at “%1”.").arg(m_text.mid(start, 1)), m_position >= m_text.size());
            return 0;
        }
        QString plain = m_text.mid(start, m_position - start);
        if (hasMark && m_text[mark] == QLatin1Char(',') && decimals == 3) {
            const QString without = QString(plain).remove(QLatin1Char(','));
            fail(tr("“%1” could mean %2 or %3: type which.")
                     .arg(plain, QString(plain).replace(QLatin1Char(','), QLatin1Char('.')), without));
            return 0;
        }
        skipExponent();
        refuseTail(start);
        plain = m_text.mid(start, m_position - start);
        m_literal = plain.replace(QLatin1Char(','), QLatin1Char('.')).toLatin1();
        return valueOf<double>();
    }

    void skipExponent()
    {
        if (m_position >= m_text.size() || m_text[m_position].toLower() != QLatin1Char('e'))
            return;
        ++m_position;
        if (m_position < m_text.size()
            && (m_text[m_position] == QLatin1Char('-') || m_text[m_position] == QLatin1Char('+')))
            ++m_position;
        const auto start = m_position;
        skipDigits();
        if (m_position == start)
            fail(tr("Digits are missing after the “e” of the exponent."), m_position >= m_text.size());
    }

    /// Digits that go on as a word are no number: 12ab.
    void refuseTail(int start)
    {
        const QString tail = word();
        if (m_position < m_text.size() && m_text[m_position].isLetterOrNumber() && !beginsName(tail))
            fail(tr("“%1” is not a number.").arg(m_text.mid(start).section(QLatin1Char(' '), 0, 0)));
    }
    static bool beginsName(const QString &start)
    {
        return QStringLiteral("degrees").startsWith(start) || QStringLiteral("rad").startsWith(start)
            || QStringLiteral("pi").startsWith(start);
    }

    /// Digits of any length, in the nearest way, on every desktop alike.
    template <class Number> Number valueOf() const
    {
        Number value = 0;
        const auto [end, error] = std::from_chars(m_literal.begin(), m_literal.end(), value);
        if (error != std::errc::result_out_of_range)
            return value;
        return isTiny() ? Number(0) : std::numeric_limits<Number>::infinity();
    }

    /// Of a literal beyond what a number can hold, on one side or the other; in doubt it is too large.
    bool isTiny() const
    {
        constexpr int few = 30;
        const auto exponent = m_literal.toLower().indexOf('e');
        const QByteArray whole = m_literal.left(exponent).split('.').first();
        if (exponent >= 0)
            return m_literal[exponent + 1] == '-' && whole.size() < few;
        return whole.count('0') == whole.size();
    }

    /// The nearest to the digits, where rounding them to double first might lead to a neighbour.
    float singleOf(double value) const
    {
        return m_isPlain && !m_literal.isEmpty()
            ? std::copysign(valueOf<float>(), static_cast<float>(value > 0 ? 1 : -1))
            : Expression::toSingle(value);
    }

    const QString m_text;
    const Expression::Syntax m_syntax;
    Expression::Result m_result;
    int m_position = 0;
    int m_nested = 0;
    bool m_isPlain = true; ///< nothing but digits and signs so far
    QByteArray m_literal; ///< the last number, with a point
};
} // namespace

Expression::Result Expression::evaluate(const QString &text, const Syntax &syntax)
{
    return Reader(text, syntax).read();
}

float Expression::toSingle(double number)
{
    constexpr auto largest = std::numeric_limits<float>::max();
    if (std::abs(number) > static_cast<double>(largest))
        return std::copysign(std::numeric_limits<float>::infinity(), number > 0 ? 1.0F : -1.0F);
    return static_cast<float>(number);
}
