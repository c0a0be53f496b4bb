// clsSystem: dates and times, shown and read.
#include "common/base/clsSystem.h"

#include "common/base/DateText.h"
#include "common/base/Host.h"

#include <QLocale>

namespace
{

QString engineDate(QDate date)
{
    return date.toString(QStringLiteral("yyyyMMdd"));
}

QString today(const QString &format)
{
    return clsSystem::FormatDate(host().now().date(), format);
}

// The short form of a date given by its parts, by way of its stored form.
QString shown(int year, int month, int day)
{
    const QString stored = QString::number(year) + clsSystem::PrePad2Zeros(QString::number(month)) +
                           clsSystem::PrePad2Zeros(QString::number(day));
    return clsSystem::DBDateToDislayDate(stored);
}

} // namespace

QString clsSystem::FmtLongDate()
{
    return QStringLiteral("Long Date");
}

QString clsSystem::FmtShortDate()
{
    return QStringLiteral("Short Date");
}

QString clsSystem::FmtNeutralDate()
{
    return QStringLiteral("MMM-DD-YY");
}

QString clsSystem::LongDate()
{
    return today(FmtLongDate());
}

QString clsSystem::ShortDate()
{
    return today(FmtShortDate());
}

QString clsSystem::NeutralShortDate()
{
    return today(FmtNeutralDate());
}

QString clsSystem::CurrTimeAMPM()
{
    return FormatTime(host().now().time(), true);
}

QString clsSystem::CurrDateTimeShort()
{
    return CurrDateShort() + QLatin1String(" @ ") + CurrTimeAMPM();
}

QString clsSystem::CurrDateTimeLong()
{
    return CurrDateLong() + QLatin1String(" @ ") + FormatTime(host().now().time(), false);
}

QString clsSystem::FormatDate(QDate date, const QString &format)
{
    if (!date.isValid())
        return {};
    const QLocale locale = host().locale();
    if (format == FmtLongDate())
        return locale.toString(date, QLocale::LongFormat);
    if (format == FmtShortDate())
        return locale.toString(date, shortDateForm(locale));
    // The other forms read the same everywhere, so their month names do not follow the locale.
    QString form = format;
    form.replace(u'D', u'd').replace(u'Y', u'y');
    return QLocale(QLocale::English, QLocale::UnitedStates).toString(date, form);
}

QString clsSystem::FormatTime(QTime time, bool seconds)
{
    constexpr int noon = 12;
    const QLocale locale = host().locale();
    const bool afternoon = time.hour() >= noon;
    QString half = afternoon ? locale.pmText() : locale.amText();
    if (half.isEmpty())
        half = afternoon ? QStringLiteral("PM") : QStringLiteral("AM");
    const int hour = time.hour() % noon == 0 ? noon : time.hour() % noon;
    return QString::number(hour) +
           time.toString(seconds ? QStringLiteral(":mm:ss ") : QStringLiteral(":mm ")) + half;
}

QString clsSystem::DBDateToDislayDate(const QString &date, const QString &format)
{
    if (date.trimmed().isEmpty())
        return {};
    const auto year = NumberInText(date.mid(2, 2));
    const auto month = NumberInText(date.mid(4, 2));
    const auto day = NumberInText(date.mid(6, 2));
    if (!year || !month || !day)
        return {};
    const QDate first(fullYear(static_cast<int>(*year)), 1, 1);
    // A month or day beyond the end runs on into the next one.
    return FormatDate(
        first.addMonths(static_cast<int>(*month) - 1).addDays(static_cast<qint64>(*day) - 1),
        format);
}

QString clsSystem::DBTimeToDislayTime(const QString &time)
{
    const QTime read = readTime(time);
    return read.isValid() ? FormatTime(read, true) : QString();
}

QString clsSystem::CBDateFormat(const QString &text)
{
    const QDate date = readDate(text);
    return date.isValid() ? engineDate(date) : QString();
}

QString clsSystem::CBTimeFormat(const QString &text)
{
    const QTime time = readTime(text);
    return time.isValid() ? time.toString(QStringLiteral("hh:mm:ss")) : QString();
}

bool clsSystem::IsDate(const QString &text)
{
    return readDate(text).isValid();
}

QDate clsSystem::Str2Date(const QString &text)
{
    const QDate date = readDate(text);
    return date.isValid() ? date : SentinelDate();
}

QDate clsSystem::SentinelDate()
{
    return QDate(1800, 1, 1);
}

int clsSystem::GetNumDaysInMonth(int month, int year)
{
    switch (month) {
    case 1:
    case 3:
    case 5:
    case 7:
    case 8:
    case 10:
    case 12:
        return 31;
    case 2:
        return IsLeapYear(year) ? 29 : 28;
    default:
        return 30;
    }
}

bool clsSystem::IsLeapYear(int year)
{
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

QString clsSystem::PrePad2Zeros(const QString &text)
{
    return PadZeros(text, 2, Side::Front);
}

bool clsSystem::MakeDateRange(int range, QString &start, QString &end)
{
    start = CurrDateTimeShort();
    end = start;
    const QDate now = host().now().date();
    switch (range) {
    case 1:
        start = shown(now.year(), now.month(), 1);
        end = shown(now.year(), now.month(), GetNumDaysInMonth(now.month(), now.year()));
        break;
    case 2:
        start = shown(now.year(), 1, 1);
        end = shown(now.year(), 12, 31);
        break;
    case 11: {
        const QDate last = now.addMonths(-1);
        start = shown(last.year(), last.month(), 1);
        end = shown(last.year(), last.month(), GetNumDaysInMonth(last.month(), last.year()));
        break;
    }
    case 12:
        start = shown(now.year() - 1, 1, 1);
        end = shown(now.year() - 1, 12, 31);
        break;
    default:
        break;
    }
    return range >= 1 && range <= 12;
}
