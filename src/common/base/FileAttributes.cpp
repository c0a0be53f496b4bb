#include "common/base/FileAttributes.h"

#include <QFileInfo>

#ifdef Q_OS_WIN
#include <QDir>

#include <qt_windows.h>
#endif

bool isPlainReadOnly(const QString &path)
{
#ifdef Q_OS_WIN
    const std::wstring native = QDir::toNativeSeparators(path).toStdWString();
    return GetFileAttributesW(native.c_str()) == FILE_ATTRIBUTE_READONLY;
#else
    const QFileInfo info(path);
    constexpr auto anyWrite = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    return info.isFile() && !info.isHidden() && !(info.permissions() & anyWrite);
#endif
}
