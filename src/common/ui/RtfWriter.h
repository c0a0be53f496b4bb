// Plain text as a rich text file.
#pragma once

#include <QByteArray>
#include <QFont>
#include <QString>

// One paragraph a line, in "Courier New" at the size of the font. Characters of Windows-1252 are
// written in that code page, all others by their Unicode number.
QByteArray rtfOf(const QString &text, const QFont &font);
