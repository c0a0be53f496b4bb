// Files that a person saves: whole or not at all.
#pragma once

#include <QByteArray>
#include <QString>

// What stood there before stays until the new bytes are on the disk. False when that failed, which
// is told with its cause.
bool writeWhole(const QString &path, const QByteArray &bytes);
