// The 8-bit character set of everything stored or exported: code page 1252. The five codes that
// it leaves open stand for themselves, so that any byte survives the way in and out.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <string_view>

// A character without an 8-bit form becomes "?".
QByteArray toAnsi(const QString &text);
QString fromAnsi(QByteArrayView bytes);

// Upper case inside the 8-bit set, byte for byte into `out`, which has room for all of them. A
// character whose upper case has no place in the set stands for itself.
void foldAnsi(std::string_view bytes, char *out);
