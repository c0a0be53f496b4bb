#include "common/base/AppInfo.h"

#include <QCoreApplication>
#include <QDir>

namespace app
{

QString title()
{
    return QStringLiteral("Norvane");
}

QString company()
{
    return QStringLiteral("Dalvion");
}

QString website()
{
    return QStringLiteral("https://www.dalvion.example");
}

int versionMajor()
{
    return NORVANE_VERSION_MAJOR;
}

int versionMinor()
{
    return NORVANE_VERSION_MINOR;
}

int versionRevision()
{
    return NORVANE_VERSION_PATCH;
}

QString programFolder()
{
    const QString bin = QCoreApplication::applicationDirPath();
    return QDir::toNativeSeparators(QDir::cleanPath(bin + QStringLiteral("/../share/norvane")));
}

} // namespace app
