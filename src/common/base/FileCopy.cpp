#include "common/base/FileCopy.h"

#include "common/base/clsSystem.h"

#include <QFileInfo>
#include <QSaveFile>
#include <QUuid>

#include <filesystem>

namespace
{

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

// Takes the place of whatever has the name; a link is replaced, not followed.
FileCopyOutcome moveOver(const QString &from, const QString &to)
{
    std::error_code error;
    std::filesystem::rename(QFileInfo(from).filesystemFilePath(),
                            QFileInfo(to).filesystemFilePath(), error);
    if (!error)
        return {End::Done, {}};
    QFile::remove(from);
    return failed(QString::fromStdString(error.message()));
}

} // namespace

FileCopyOutcome copyFile(const QString &source, const QString &target, const QString &workFolder,
                         const FileCopyWatch &watch)
{
    QFile from(clsSystem::LocalPath(source));
    const QString targetPath = clsSystem::LocalPath(target);
    if (source.isEmpty() || target.isEmpty() || !QFileInfo(from.fileName()).isFile())
        return failed(QStringLiteral("There is no such file"));
    if (isSameFile(from.fileName(), targetPath))
        return failed(QStringLiteral("Source and target are the same file"));
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
    return outcome.done() && written != targetPath ? moveOver(written, targetPath) : outcome;
}
