// Dates and times as people type them. Invalid for a text that holds none.
#pragma once

#include <QDate>
#include <QString>
#include <QTime>

// The locale's forms with a year of two or four digits, month names, ISO, or eight digits. Two
// digits: 00 to 29 are the 2000s, 30 to 99 the 1900s.
QDate readDate(const QString &text);
// 12 or 24 hours; minutes may be left out behind AM or PM.
QTime readTime(const QString &text);

int fullYear(int twoDigits);
// The locale's short form, always with four digits in the year.
QString shortDateForm(const class QLocale &locale);
