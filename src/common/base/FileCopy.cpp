#include "common/base/FileCopy.h"

#include "common/base/clsSystem.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSaveFile>
#include <QUuid>

#include <cerrno>
#include <filesystem>
#include <system_error>

#ifdef Q_OS_WIN
#include <QDir>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(FileCopy)
};

using End = FileCopyOutcome::End;

bool isSameFile(const QString &a, const QString &b)
{
    const QString first = QFileInfo(a).canonicalFilePath();
    return !first.isEmpty() && first == QFileInfo(b).canonicalFilePath();
}

FileCopyOutcome failed(const QString &cause)
{
    return {End::Failed, cause};
}

FileCopyOutcome copyContents(QFile &from, QSaveFile &to, const FileCopyWatch &watch)
{
    constexpr qint64 blockSize = 1 << 20;
    const qint64 all = from.size();
    qint64 done = 0;
    while (!from.atEnd()) {
        if (watch && !watch(done, all))
            return {End::Cancelled, {}};
        const QByteArray block = from.read(blockSize);
        if (block.isEmpty())
            break;
        if (to.write(block) != block.size())
            return failed(to.errorString());
        done += block.size();
    }
    if (from.error() != QFileDevice::NoError)
        return failed(from.errorString());
    // Committing would write out what is buffered too, but not say that the disk was full.
    return to.flush() && to.commit() ? FileCopyOutcome{End::Done, {}} : failed(to.errorString());
}

FileCopyOutcome moved(const QString &from, const std::error_code &error)
{
    if (!error)
        return {End::Done, {}};
    QFile::remove(from);
    return failed(QString::fromStdString(error.message()));
}

// Takes the place of whatever has the name; a link is replaced, not followed.
FileCopyOutcome moveOver(const QString &from, const QString &to)
{
    std::error_code error;
    std::filesystem::rename(QFileInfo(from).filesystemFilePath(),
                            QFileInfo(to).filesystemFilePath(), error);
    return moved(from, error);
}

} // namespace

FileCopyOutcome moveIntoFolder(const QString &written, const QString &folder, const QString &name)
{
#ifdef Q_OS_WIN
    if (QFileInfo(folder).isSymLink())
        return moved(written, std::make_error_code(std::errc::not_a_directory));
    return moveOver(written, QDir(folder).filePath(name));
#else
    // Held open: whatever takes the folder's place from here on does not matter.
    constexpr int how = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    const int place = ::open(QFile::encodeName(folder).constData(), how);
    const bool done = place >= 0 && ::renameat(AT_FDCWD, QFile::encodeName(written).constData(),
                                               place, QFile::encodeName(name).constData()) == 0;
    const std::error_code error(done ? 0 : errno, std::generic_category());
    if (place >= 0)
        ::close(place);
    return moved(written, error);
#endif
}

FileCopyOutcome copyFile(const QString &source, const QString &target, const QString &workFolder,
                         const FileCopyWatch &watch, const FileCopyPlacing &place)
{
    QFile from(clsSystem::LocalPath(source));
    const QString targetPath = clsSystem::LocalPath(target);
    if (source.isEmpty() || target.isEmpty() || !QFileInfo(from.fileName()).isFile())
        return failed(Words::tr("There is no such file"));
    if (isSameFile(from.fileName(), targetPath))
        return failed(Words::tr("Source and target are the same file"));
    if (!from.open(QIODevice::ReadOnly))
        return failed(from.errorString());
    // A name of its own there, and a short one: the target's may be as long as names can be.
    const QString written =
        workFolder.isEmpty()
            ? targetPath
            : clsSystem::MakePath(clsSystem::LocalPath(workFolder),
                                  u".copy-" + QUuid::createUuid().toString(QUuid::Id128));
    QSaveFile to(written);
    if (!to.open(QIODevice::WriteOnly))
        return failed(to.errorString());
    const FileCopyOutcome outcome = copyContents(from, to, watch);
    if (!outcome.done() || written == targetPath)
        return outcome;
    return place ? place(written) : moveOver(written, targetPath);
}
