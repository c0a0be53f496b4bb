#include "common/base/DateText.h"

#include "common/base/Host.h"

#include <QList>
#include <QLocale>
#include <QRegularExpression>
#include <QStringList>

namespace
{

// A date cut into its numbers, with the month taken out when it stands as a word.
struct DateWords {
    QStringList numbers;
    int month = 0;
    bool sound = true;
};

bool sameName(const QString &word, QString name)
{
    if (name.endsWith(u'.'))
        name.chop(1);
    return word.compare(name, Qt::CaseInsensitive) == 0;
}

int monthNamed(const QString &word, const QLocale &locale)
{
    for (int month = 1; month <= 12; ++month) {
        for (const auto format : {QLocale::LongFormat, QLocale::ShortFormat}) {
            if (sameName(word, locale.monthName(month, format)) ||
                sameName(word, locale.standaloneMonthName(month, format)))
                return month;
        }
    }
    return 0;
}

bool namesWeekday(const QString &word, const QLocale &locale)
{
    for (int day = 1; day <= 7; ++day) {
        for (const auto format : {QLocale::LongFormat, QLocale::ShortFormat}) {
            if (sameName(word, locale.dayName(day, format)))
                return true;
        }
    }
    return false;
}

bool isDigitsOnly(const QString &text)
{
    for (const QChar c : text) {
        if (c < u'0' || c > u'9')
            return false;
    }
    return true;
}

DateWords cutDate(const QString &text, const QLocale &locale)
{
    static const QRegularExpression separators(QStringLiteral("\\s*[,/.\\-]\\s*|\\s+"));
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    DateWords words;
    const QString body = text.endsWith(u'.') ? text.chopped(1) : text;
    for (const QString &word : body.split(separators)) {
        if (!word.isEmpty() && isDigitsOnly(word)) {
            words.numbers += word;
            continue;
        }
        int month = monthNamed(word, locale);
        if (month == 0)
            month = monthNamed(word, english);
        if (month != 0 && words.month == 0)
            words.month = month;
        else if (month != 0 || !(namesWeekday(word, locale) || namesWeekday(word, english)))
            words.sound = false;
    }
    return words;
}

// The order of day, month and year, such as "Mdy".
QString partOrder(const QLocale &locale)
{
    QString order;
    for (const QChar c : locale.dateFormat(QLocale::ShortFormat)) {
        if ((c == u'd' || c == u'M' || c == u'y') && !order.contains(c))
            order += c;
    }
    return order.size() == 3 ? order : QStringLiteral("Mdy");
}

int yearFrom(const QString &digits)
{
    if (digits.size() == 2)
        return fullYear(digits.toInt());
    return digits.size() == 4 ? digits.toInt() : 0;
}

QDate dateFrom(const QString &year, const QString &month, const QString &day)
{
    constexpr int firstYear = 100;
    if (month.size() > 2 || day.size() > 2 || yearFrom(year) < firstYear)
        return {};
    return QDate(yearFrom(year), month.toInt(), day.toInt());
}

QDate dateFromWords(const DateWords &words, const QLocale &locale)
{
    const QStringList &n = words.numbers;
    if (!words.sound)
        return {};
    if (words.month != 0) {
        const QString month = QString::number(words.month);
        if (n.size() != 2)
            return {};
        return n[0].size() == 4 ? dateFrom(n[0], month, n[1]) : dateFrom(n[1], month, n[0]);
    }
    if (n.size() != 3)
        return {};
    const QString order = n[0].size() == 4 ? QStringLiteral("yMd") : partOrder(locale);
    return dateFrom(n[order.indexOf(u'y')], n[order.indexOf(u'M')], n[order.indexOf(u'd')]);
}

// 0 none, 1 before noon, 2 after noon, -1 a word that is neither.
int halfOfDay(const QString &word, const QLocale &locale)
{
    QString plain = word;
    plain.remove(u'.');
    if (plain.isEmpty())
        return word.isEmpty() ? 0 : -1;
    const auto is = [&](const QString &name) {
        return plain.compare(QString(name).remove(u'.'), Qt::CaseInsensitive) == 0;
    };
    if (is(QStringLiteral("AM")) || is(QStringLiteral("A")) || is(locale.amText()))
        return 1;
    if (is(QStringLiteral("PM")) || is(QStringLiteral("P")) || is(locale.pmText()))
        return 2;
    return -1;
}

} // namespace

int fullYear(int twoDigits)
{
    return twoDigits + (twoDigits < 30 ? 2000 : 1900);
}

QString shortDateForm(const QLocale &locale)
{
    QString form = locale.dateFormat(QLocale::ShortFormat);
    if (!form.contains(QLatin1String("yyyy")))
        form.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    return form;
}

QDate readDate(const QString &text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.size() == 8 && isDigitsOnly(trimmed))
        return dateFrom(trimmed.left(4), trimmed.mid(4, 2), trimmed.mid(6, 2));
    const QLocale locale = host().locale();
    const QDate date = dateFromWords(cutDate(trimmed, locale), locale);
    // Long forms with words of their own between the parts, as Spanish has them.
    return date.isValid() ? date : locale.toDate(trimmed, QLocale::LongFormat);
}

QTime readTime(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("^(\\d{1,2})(?:[:.](\\d{1,2}))?(?:[:.](\\d{1,2}))?\\s*(\\D*)$"));
    const auto match = form.match(text.trimmed());
    if (!match.hasMatch())
        return {};
    const int half = halfOfDay(match.captured(4).trimmed(), host().locale());
    int hour = match.captured(1).toInt();
    if (half < 0 || (half == 0 && match.captured(2).isEmpty()) || (half > 0 && hour > 12))
        return {};
    if (half == 1 && hour == 12)
        hour = 0;
    else if (half == 2 && hour < 12)
        hour += 12;
    return QTime(hour, match.captured(2).toInt(), match.captured(3).toInt());
}
