#include "common/base/Numbers.h"

#include "common/base/Host.h"

#include <cmath>
#include <limits>

namespace
{

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

// What stands at the beginning of a text: the number, and where it ends.
struct Leading {
    double value = 0;
    qsizetype end = 0;
};

class NumberReader
{
public:
    explicit NumberReader(QStringView text)
        : m_text(text),
          m_decimal(host().locale().decimalPoint()),
          m_group(host().locale().groupSeparator()),
          m_currency(host().locale().currencySymbol(QLocale::CurrencySymbol))
    {
    }

    std::optional<Leading> read()
    {
        skipBlanks();
        if (at(u'-') || at(u'+'))
            m_plain += m_text[m_pos++];
        if (!m_currency.isEmpty() && m_text.mid(m_pos).startsWith(m_currency)) {
            m_pos += m_currency.size();
            skipBlanks();
            if (m_plain.isEmpty() && at(u'-'))
                m_plain += m_text[m_pos++];
        }
        bool digits = takeDigits(true);
        if (!m_decimal.isEmpty() && m_text.mid(m_pos).startsWith(m_decimal)) {
            m_plain += u'.';
            m_pos += m_decimal.size();
            digits = takeDigits(false) || digits;
        }
        if (!digits)
            return std::nullopt;
        takeExponent();
        return Leading{m_plain.toDouble(), m_pos};
    }

private:
    bool at(QChar c, qsizetype ahead = 0) const
    {
        return m_pos + ahead < m_text.size() && m_text[m_pos + ahead] == c;
    }
    bool atDigit(qsizetype ahead = 0) const
    {
        return m_pos + ahead < m_text.size() && isDigit(m_text[m_pos + ahead]);
    }
    void skipBlanks()
    {
        while (m_pos < m_text.size() && m_text[m_pos].isSpace())
            ++m_pos;
    }
    // Keyboards have no no-break space, so a plain one separates thousands where that one does.
    bool atGroup() const
    {
        if (m_group.size() != 1 || !atDigit(1) || m_pos >= m_text.size())
            return false;
        return m_text[m_pos] == m_group[0] || (m_group[0].isSpace() && m_text[m_pos].isSpace());
    }
    bool takeDigits(bool groups)
    {
        bool any = false;
        while (true) {
            if (atDigit())
                m_plain += m_text[m_pos++];
            else if (groups && any && atGroup())
                ++m_pos;
            else
                return any;
            any = true;
        }
    }
    void takeExponent()
    {
        if (!at(u'e') && !at(u'E'))
            return;
        const qsizetype sign = at(u'-', 1) || at(u'+', 1) ? 1 : 0;
        if (!atDigit(1 + sign))
            return;
        m_plain += m_text.mid(m_pos, 1 + sign);
        m_pos += 1 + sign;
        takeDigits(false);
    }

    QStringView m_text;
    QString m_decimal;
    QString m_group;
    QString m_currency;
    QString m_plain;
    qsizetype m_pos = 0;
};

// Whole numbers as the program itself writes them need no regional settings.
std::optional<double> plainInteger(QStringView text)
{
    constexpr qsizetype safeDigits = 15;
    if (text.isEmpty() || text.size() > safeDigits)
        return std::nullopt;
    double value = 0;
    for (const QChar c : text) {
        if (!isDigit(c))
            return std::nullopt;
        value = value * 10 + (c.unicode() - u'0');
    }
    return value;
}

} // namespace

std::optional<double> NumberInText(const QString &text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    if (const auto whole = plainInteger(trimmed))
        return whole;
    const auto leading = NumberReader(trimmed).read();
    if (!leading || leading->end != trimmed.size() || !std::isfinite(leading->value))
        return std::nullopt;
    return leading->value;
}

bool IsNumeric(const QString &text)
{
    return NumberInText(text).has_value();
}

double Val(const QString &text)
{
    const auto leading = NumberReader(text).read();
    return leading && std::isfinite(leading->value) ? leading->value : 0;
}

std::optional<qint32> RoundToLong(double value)
{
    const double rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<qint32>::min() &&
          rounded <= std::numeric_limits<qint32>::max()))
        return std::nullopt;
    return static_cast<qint32>(rounded);
}
