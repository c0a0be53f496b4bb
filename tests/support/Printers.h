// How a failing comparison writes Qt's texts and dates.
#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

#include <ostream>

inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toUtf8().constData() << '"';
}

inline void PrintTo(QDate date, std::ostream *out)
{
    *out << date.toString(Qt::ISODate).toUtf8().constData();
}
