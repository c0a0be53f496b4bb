// clsSystem: files and folders. Failures are answered, not shown, except where said.
#include "common/base/clsSystem.h"

#include "common/base/Ansi.h"
#include "common/base/AppInfo.h"
#include "common/base/Failure.h"
#include "common/base/FileAttributes.h"
#include "common/base/FileCopy.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(clsSystem)
};

bool isSeparator(QChar c)
{
    return c == u'/' || c == u'\\';
}

// One entry of a tree on its way out. A link goes, what it points to stays.
bool deleteTreeEntry(const QFileInfo &entry)
{
    const QString path = entry.filePath();
    if (entry.isSymLink())
        return QFile::remove(path);
    if (entry.isDir())
        return clsSystem::DirDelete(path);
    QFile::setPermissions(path, entry.permissions() | QFile::WriteOwner);
    return clsSystem::DeleteFile(path);
}

} // namespace

bool clsSystem::DirExists(const QString &path)
{
    return !path.isEmpty() && QFileInfo(LocalPath(path)).isDir();
}

bool clsSystem::CreateDir(const QString &path)
{
    return !path.isEmpty() && QDir().mkdir(LocalPath(path));
}

bool clsSystem::DirDelete(const QString &path)
{
    const QString folder = LocalPath(path);
    if (path.isEmpty() || !QFileInfo(folder).isDir() || !QFileInfo(folder).isReadable())
        return false;
    constexpr auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    for (const QFileInfo &entry : QDir(folder).entryInfoList(all)) {
        if (deleteTreeEntry(entry))
            continue;
        // A file that the system would not let go of ends the walk, but does not make it a
        // failure; a name that we do not delete does.
        return !entry.isDir() && !entry.filePath().contains(u'*');
    }
    return QDir().rmdir(folder);
}

bool clsSystem::FileExists(const QString &path)
{
    return !path.isEmpty() && QFileInfo(LocalPath(path)).isFile();
}

bool clsSystem::FileReadOnly(const QString &path)
{
    return isPlainReadOnly(LocalPath(path));
}

bool clsSystem::DeleteFile(const QString &path)
{
    if (path.contains(u'*'))
        return false;
    return !FileExists(path) || QFile::remove(LocalPath(path));
}

// The target gets ordinary permissions, so that a copy of an installed file can be written to.
bool clsSystem::FileCopyFn(const QString &source, const QString &target)
{
    return copyFile(source, target).done();
}

bool clsSystem::FileCopyFn_NonExist(const QString &source, const QString &target)
{
    return FileExists(target) || FileCopyFn(source, target);
}

bool clsSystem::FileRename(const QString &from, const QString &to)
{
    return !from.isEmpty() && !to.isEmpty() && QFile::rename(LocalPath(from), LocalPath(to));
}

QString clsSystem::MakePath(const QString &folder, const QString &name)
{
    if (folder.isEmpty() || isSeparator(folder.back()) || folder.back() == u':')
        return folder + name;
    return folder + QDir::separator() + name;
}

QString clsSystem::FileNameOnly(const QString &path)
{
    const qsizetype separator = std::max(path.lastIndexOf(u'\\'), path.lastIndexOf(u'/'));
    return path.mid((separator >= 0 ? separator : path.lastIndexOf(u':')) + 1);
}

QString clsSystem::LocalPath(const QString &path)
{
    // Elsewhere than on Windows "\" may be part of a name.
    if (QDir::separator() == u'/' && path.contains(u'\\') && !QFileInfo::exists(path))
        return QString(path).replace(u'\\', u'/');
    return QDir::toNativeSeparators(path);
}

bool clsSystem::WriteToFile(const QString &text, const QString &path, bool showError)
{
    QSaveFile file(LocalPath(path));
    if (path.contains(u'*') || (!file.open(QIODevice::WriteOnly) && FileExists(path))) {
        if (showError) {
            prompts::warn(Words::tr("Unable to write to : %1. This file may already be open by "
                                    "another application.")
                              .arg(path));
        }
        return false;
    }
    // The old file stays until the new one is whole.
    const QByteArray bytes = toAnsi(text);
    return file.isOpen() && file.write(bytes) == bytes.size() && file.commit();
}

bool clsSystem::FileRead(QString &text, const QString &path)
{
    return guarded("clsSystem_FileRead", false, [&] {
        constexpr int FileNotFound = 53;
        constexpr int DeviceError = 57;
        if (!FileExists(path))
            throw Failure(FileNotFound, app::title(), Words::tr("File not found"));
        QFile file(LocalPath(path));
        if (!file.open(QIODevice::ReadOnly))
            throw Failure(DeviceError, app::title(), file.errorString());
        text = fromAnsi(file.readAll());
        return true;
    });
}
