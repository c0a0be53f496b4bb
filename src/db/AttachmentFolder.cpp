#include "db/AttachmentFolder.h"

#include "common/base/clsSystem.h"
#include "common/base/Host.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(AttachmentFolder)
};

namespace fs = std::filesystem;

// A work file of this age was left behind by a station that died in the middle of a copy.
constexpr int kOldWorkDays = 2;

bool isRealFolder(const QString &path)
{
    const QFileInfo info(clsSystem::LocalPath(path));
    return !path.isEmpty() && info.isDir() && !info.isSymLink();
}

bool isThere(const QFileInfo &entry)
{
    return entry.exists() || entry.isSymLink();
}

// What the system may have named an entry of the folder, and no way out of it.
bool isOneStep(const QString &name)
{
    return !name.isEmpty() && name != u"." && name != u".." && !name.contains(u'/') &&
           !name.contains(QChar(QDir::separator()));
}

// Other people at other stations have to get in as well, whatever this one's habits are.
void takeRightsOf(const QString &above, const QString &path, fs::perms among)
{
    std::error_code error;
    const fs::perms rights = fs::status(QFileInfo(above).filesystemFilePath(), error).permissions();
    if (!error)
        fs::permissions(QFileInfo(path).filesystemFilePath(), rights & among, error);
}

bool makeFolder(const QString &path, const QString &above)
{
    if (isRealFolder(path))
        return true;
    if (!clsSystem::CreateDir(path))
        return isRealFolder(path); // another station may have been faster
    takeRightsOf(clsSystem::LocalPath(above), clsSystem::LocalPath(path), fs::perms::mask);
    return true;
}

} // namespace

AttachmentFolder::AttachmentFolder(const QString &path, const QString &workFolder)
    : m_path(path), m_workFolder(workFolder)
{
}

bool AttachmentFolder::exists() const
{
    return isRealFolder(m_path);
}

bool AttachmentFolder::create() const
{
    const bool above = clsSystem::DirExists(m_workFolder) ||
                       makeFolder(m_workFolder, QFileInfo(m_workFolder).path());
    return above && makeFolder(m_path, m_workFolder);
}

bool AttachmentFolder::isPlainName(const QString &name)
{
    const auto unfit = [](QChar character) {
        return character == u'/' || character == u'\\' || character == u'*' ||
               character.category() == QChar::Other_Control;
    };
    return !name.isEmpty() && name != u"." && name != u".." &&
           std::none_of(name.begin(), name.end(), unfit);
}

// Never through a second reading of the separators: "\" may be part of a name on the disk.
QString AttachmentFolder::filePath(const QString &name) const
{
    return QDir(clsSystem::LocalPath(m_path)).filePath(name);
}

bool AttachmentFolder::contains(const QString &name) const
{
    return exists() && isPlainName(name) && isThere(QFileInfo(filePath(name)));
}

bool AttachmentFolder::holds(const QString &path) const
{
    const QString folder = QFileInfo(clsSystem::LocalPath(path)).canonicalPath();
    return !folder.isEmpty() &&
           folder == QFileInfo(clsSystem::LocalPath(m_path)).canonicalFilePath();
}

FileCopyOutcome AttachmentFolder::add(const QString &source, const QString &name,
                                      const FileCopyWatch &watch) const
{
    if (!exists() || !isPlainName(name))
        return {FileCopyOutcome::End::Failed, Words::tr("No such folder or name")};
    dropOldWork();
    // During a long copy a link may have taken the folder's place.
    const auto place = [&](const QString &written) {
        const QString folder = clsSystem::LocalPath(m_path);
        takeRightsOf(folder, written,
                     fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read |
                         fs::perms::group_write | fs::perms::others_read | fs::perms::others_write);
        return moveIntoFolder(written, folder, name);
    };
    return copyFile(source, filePath(name), m_workFolder, watch, place);
}

bool AttachmentFolder::remove(const QString &name) const
{
    if (!exists() || !isOneStep(name))
        return false;
    const QFileInfo entry(filePath(name));
    if (!isThere(entry))
        return true;
    const bool isFolder = entry.isDir() && !entry.isSymLink();
    return !isFolder && QFile::remove(entry.filePath());
}

bool AttachmentFolder::rename(const QString &from, const QString &to) const
{
    return exists() && isOneStep(from) && isPlainName(to) &&
           QFile::rename(filePath(from), filePath(to));
}

void AttachmentFolder::dropOldWork() const
{
    const QDateTime old = host().now().addDays(-kOldWorkDays);
    const QDir folder(clsSystem::LocalPath(m_workFolder));
    for (const QFileInfo &file :
         folder.entryInfoList({QStringLiteral(".copy-*")}, QDir::Files | QDir::Hidden)) {
        if (file.lastModified() < old)
            QFile::remove(file.filePath());
    }
}
