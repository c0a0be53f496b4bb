// The files of a folder in a ListView.
#include "common/ui/ListView.h"

#include "common/base/clsSystem.h"
#include "common/base/Host.h"
#include "common/base/Hourglass.h"

#include <QCoreApplication>
#include <QDir>
#include <QMimeDatabase>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(ListViewFiles)
};

constexpr int RowsBetweenRepaints = 20;

// Whole kilobytes, and never less than one.
QString sizeText(qint64 bytes)
{
    const double kilobytes = static_cast<double>(bytes) / 1024;
    return (kilobytes >= 1 ? clsSystem::CommafyNoDec(kilobytes) : QStringLiteral("1")) +
           Words::tr(" KB");
}

QString modifiedText(const QFileInfo &file)
{
    const QDateTime at = file.lastModified().toLocalTime();
    if (!at.isValid())
        return {};
    return clsSystem::FormatDate(at.date(), clsSystem::FmtShortDate()) % u' ' %
           clsSystem::FormatTime(at.time(), false);
}

} // namespace

void LvGetFileList(ListView *lv, const QString &folder)
{
    const Hourglass busy;
    lv->clearItems();
    if (folder.isEmpty())
        return;
    const QMimeDatabase types;
    const QFileInfoList files =
        QDir(clsSystem::LocalPath(folder))
            .entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                           QDir::Name | QDir::IgnoreCase);
    for (const QFileInfo &file : files) {
        const QString type = types.mimeTypeForFile(file, QMimeDatabase::MatchExtension).comment();
        lv->addItem(file.fileName(),
                    {file.fileName(), sizeText(file.size()), type.toLower(), modifiedText(file)});
        if (lv->itemCount() % RowsBetweenRepaints == 0)
            host().repaint();
    }
}
