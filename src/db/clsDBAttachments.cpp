// The folders that hold the attachments of records.
#include "db/clsDB.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Prompts.h"
#include "db/AttachmentFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(clsDB)
};

} // namespace

QString clsDB::AttachPath() const
{
    return MakePath(m_sDBPath, AttachDir());
}

QString clsDB::GetAttachmentSubDir(qint32 rowid, const QString &kind) const
{
    return MakePath(AttachPath(), kind % u'_' % QString::number(rowid));
}

AttachmentFolder clsDB::Attachments(qint32 rowid, const QString &kind) const
{
    return AttachmentFolder(GetAttachmentSubDir(rowid, kind), AttachPath());
}

void clsDB::CreateAttachDir()
{
    const QString path = AttachPath();
    if (!clsSystem::DirExists(path) && !clsSystem::CreateDir(path)) {
        prompts::warn(Words::tr("Unable to create subdirectory for attachments: '%1'").arg(path));
    }
}

// A link in the folder's place goes, what it leads to stays; so it is with links in the folder.
bool clsDB::DeleteAttachments(qint32 rowid, const QString &kind)
{
    return guarded("clsDB_DeleteAttachments", false, [&] {
        if (m_sDBPath.isEmpty() || rowid < 1)
            return false;
        const QString path = clsSystem::LocalPath(GetAttachmentSubDir(rowid, kind));
        if (QFileInfo(path).isSymLink())
            return QFile::remove(path);
        clsSystem::DirDelete(path);
        return !clsSystem::DirExists(path) || QDir().rmdir(path);
    });
}
