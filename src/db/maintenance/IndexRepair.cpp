#include "db/maintenance/IndexRepair.h"

#include "common/base/clsSystem.h"

#include <QFile>

#include <algorithm>

using namespace norvane::engine;

namespace maintenance
{

namespace
{

bool isAboutIndex(const Error &error)
{
    const bool file = QString::fromStdString(error.file).endsWith(u".cdx", Qt::CaseInsensitive);
    return file && (error.kind == ErrorKind::NotFound || error.kind == ErrorKind::Damaged ||
                    error.kind == ErrorKind::Refused);
}

// The template may be installed read-only; the index is not.
bool putEmptyIndex(const clsDB::FileTriple &files)
{
    return clsSystem::FileCopyFn(files.indexSource, files.index) &&
           QFile::setPermissions(files.index, QFile::permissions(files.index) | QFile::WriteOwner);
}

} // namespace

QString asidePath(const QString &path)
{
    int number = 1;
    while (QFile::exists(path % u'.' % QString::number(number)))
        ++number;
    return path % u'.' % QString::number(number);
}

Code repairWithIndex(Handle session, const clsDB::FileTriple &files,
                     std::vector<RepairLine> &report)
{
    const std::string path = files.table.toStdString();
    const Code first = d4repair(session, path, report);
    if (first == r4success || first == d4locked || !report.empty() ||
        !isAboutIndex(lastError(session)))
        return first;
    const Error error = lastError(session);
    const bool hadIndex = QFile::exists(files.index);
    const QString aside = asidePath(files.index);
    if (hadIndex && !QFile::rename(files.index, aside))
        return first;
    const bool put = putEmptyIndex(files);
    const Code second = put ? d4repair(session, path, report) : r4failure;
    const auto isAboutIt = [](const RepairLine &line) {
        return !line.mended && line.file.ends_with("cdx");
    };
    const bool opened = second == r4success || (second == r4failure && !report.empty());
    if (opened && std::none_of(report.begin(), report.end(), isAboutIt)) {
        report.insert(report.begin(),
                      {error.file,
                       (hadIndex ? error.detail : std::string("the file was missing")) +
                           "; it was built anew from the rows",
                       true});
        return second;
    }
    QFile::remove(files.index);
    if (hadIndex)
        QFile::rename(aside, files.index);
    return second == r4success ? r4failure : second;
}

} // namespace maintenance
