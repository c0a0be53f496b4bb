// What tells a file from an earlier state of it.
#pragma once

#include "common/base/clsSystem.h"

#include <QDateTime>
#include <QFileInfo>

struct FileStamp {
    qint64 size = 0;
    QDateTime changed; // nothing when the file is not there

    static FileStamp of(const QString &path)
    {
        const QFileInfo file(clsSystem::LocalPath(path));
        return {file.size(), file.lastModified()};
    }
    bool operator==(const FileStamp &) const = default;
};
