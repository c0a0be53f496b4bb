// clsSystem: numbers, flags and the comparisons of grid cells.
#include "common/base/clsSystem.h"

#include "common/base/AppInfo.h"
#include "common/base/Failure.h"
#include "common/base/Host.h"

#include <QCollator>
#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(clsSystem)
};

[[noreturn]] void failWithOverflow()
{
    constexpr int Overflow = 6;
    throw Failure(Overflow, app::title(), Words::tr("Overflow"));
}

QString withSeparators(const QString &digits)
{
    constexpr qsizetype group = 3;
    QString grouped = digits;
    const qsizetype first = digits.startsWith(u'-') ? 1 : 0;
    const QString separator = host().locale().groupSeparator();
    for (qsizetype at = digits.size() - group; at > first; at -= group)
        grouped.insert(at, separator);
    return grouped;
}

std::optional<double> numberIn(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::LongLong:
    case QMetaType::Double:
    case QMetaType::Bool:
        return value.toDouble();
    case QMetaType::QString:
        return NumberInText(value.toString());
    default:
        return std::nullopt;
    }
}

template <class T>
int order(const T &a, const T &b)
{
    if (a == b)
        return 0;
    return a < b ? -1 : 1;
}

// Making a collator costs far more than asking it, and sorting asks it for every pair.
QCollator &collator()
{
    static QCollator instance;
    static bool made = false;
    const QLocale locale = host().locale();
    if (!made || instance.locale() != locale) {
        instance = QCollator(locale);
        instance.setCaseSensitivity(Qt::CaseInsensitive);
        made = true;
    }
    return instance;
}

} // namespace

QString clsSystem::NumCleanStr(const QString &text)
{
    const QLocale locale = host().locale();
    QString clean = text;
    if (const QString sign = locale.currencySymbol(QLocale::CurrencySymbol); !sign.isEmpty())
        clean.remove(sign);
    if (const QString separator = locale.groupSeparator(); !separator.isEmpty())
        clean.remove(separator);
    return clean;
}

QString clsSystem::CommafyNoDec(const QVariant &value)
{
    const double number = numberIn(value).value_or(0);
    if (number == 0)
        return QStringLiteral("0");
    // The picture "#,###" has no place for a zero that comes of rounding.
    const double rounded = std::round(number);
    if (rounded == 0)
        return {};
    return withSeparators(QString::number(rounded, 'f', 0));
}

QString clsSystem::FormatLongWithCommas(qint32 value)
{
    return withSeparators(QString::number(value));
}

// The fourth decimal is the last that counts, so that a half is one as it was written, not as it
// is kept.
QString clsSystem::FormatTwoDecimals(double value)
{
    const double hundredths = std::round(std::round(value * 10000) / 100);
    return host().locale().toString(hundredths / 100 + 0.0, 'f', 2);
}

QString clsSystem::ZeroToNullStr(const QString &text)
{
    const auto number = NumberInText(text);
    return number && *number != 0 ? text : QString();
}

qint32 clsSystem::Minus1ToZero(qint32 value)
{
    return value == -1 ? 0 : value;
}

int clsSystem::NotBelowZeroInt(int value)
{
    return std::max(value, 0);
}

qint32 clsSystem::NotBelowZeroLong(qint32 value)
{
    return std::max(value, 0);
}

qint32 clsSystem::NotBelowMinVal(qint32 value, qint32 bound)
{
    return std::max(value, bound);
}

qint32 clsSystem::NotAboveMaxVal(qint32 value, qint32 bound)
{
    return std::min(value, bound);
}

void clsSystem::IncL(qint32 &value)
{
    if (value == std::numeric_limits<qint32>::max())
        failWithOverflow();
    ++value;
}

qint16 clsSystem::Str2Int(const QString &text)
{
    const auto number = NumberInText(text);
    if (!number)
        return 0;
    const double rounded = std::nearbyint(*number);
    if (rounded < std::numeric_limits<qint16>::min() ||
        rounded > std::numeric_limits<qint16>::max())
        failWithOverflow();
    return static_cast<qint16>(rounded);
}

bool clsSystem::Str2Bool(const QString &text)
{
    return text == QLatin1String("True");
}

QString clsSystem::Bool2TorF(bool value)
{
    return value ? QStringLiteral("T") : QStringLiteral("F");
}

bool clsSystem::DBTF2TrueFalse(const QString &text)
{
    return text.toUpper() == QLatin1String("T");
}

int clsSystem::TrueFalse2ZeroOne(bool value)
{
    return value ? 1 : 0;
}

int clsSystem::CompareInt(const QString &a, const QString &b)
{
    return order(Str2Int(a), Str2Int(b));
}

int clsSystem::CompareDate(const QString &a, const QString &b)
{
    return order(Str2Date(a), Str2Date(b));
}

int clsSystem::CompareStrNoCase(const QString &a, const QString &b)
{
    return order(collator().compare(a, b), 0);
}

qint32 clsSystem::NextDocNum()
{
    IncL(m_docNum);
    return m_docNum;
}
