#include "common/base/WholeFile.h"

#include "common/base/clsSystem.h"

#include <QCoreApplication>
#include <QSaveFile>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(WholeFile)
};

void tell(const QString &path, const QString &cause)
{
    prompts::warn(Words::tr("Unable to write to : %1. %2").arg(path, cause));
}

} // namespace

bool writeWhole(const QString &path, const QByteArray &bytes)
{
    const QString inUse = Words::tr("This file may already be open by another application.");
    const QString target = clsSystem::LocalPath(path);
    const bool replaces = clsSystem::FileExists(path);
    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly)) {
        tell(path, replaces ? inUse : file.errorString());
        return false;
    }
    if (file.write(bytes) != bytes.size() || !file.flush()) {
        tell(path, file.errorString());
        return false;
    }
    if (!file.commit()) {
        const bool held = replaces && file.error() == QFileDevice::RenameError;
        tell(path, held ? inUse : file.errorString());
        return false;
    }
    return true;
}
