#include "db/maintenance/Reindex.h"

#include "common/base/clsSystem.h"
#include "db/TableUse.h"

#include <QFile>

using namespace norvane::engine;

namespace maintenance
{

namespace
{

class SoleUse
{
public:
    explicit SoleUse(Handle session) : m_session(session) { code4accessMode(m_session, 1); }
    ~SoleUse() { code4accessMode(m_session, 0); }
    SoleUse(const SoleUse &) = delete;
    SoleUse &operator=(const SoleUse &) = delete;

private:
    Handle m_session;
};

// A name that is not taken yet: the path with a number behind.
QString asidePath(const QString &path)
{
    int number = 1;
    while (QFile::exists(path % u'.' % QString::number(number)))
        ++number;
    return path % u'.' % QString::number(number);
}

// A copy and no move: at no moment an empty or missing index stands under the live name.
bool keepAside(const QString &index)
{
    return !QFile::exists(index) || clsSystem::FileCopyFn(index, asidePath(index));
}

} // namespace

ReindexOutcome reindexTable(const clsDB &db, const clsDB::FileTriple &files)
{
    // The rows give the keys and the tags are known here, but a program folder without its
    // templates is not to be trusted with anything.
    if (!QFile::exists(files.indexSource))
        return ReindexOutcome::Failed;
    const Handle session = db.CBEngine();
    const SoleUse alone(session);
    const std::string path = clsSystem::LocalPath(files.table).toStdString();
    const auto failure = [session](Code code) {
        const bool held = code == d4locked || lastError(session).kind == ErrorKind::Locked;
        code4errorCode(session, 0);
        return held ? ReindexOutcome::InUse : ReindexOutcome::Failed;
    };
    code4errorCode(session, 0);
    const Handle table = d4open(session, path);
    if (table < 1 && lastError(session).kind == ErrorKind::Locked)
        return failure(d4locked);
    if (table < 1) {
        // Most likely an index that cannot even be opened.
        std::vector<RepairLine> lines;
        code4accessMode(session, 0);
        const Code code = d4repair(session, path, lines);
        return code == r4success ? ReindexOutcome::Done : failure(code);
    }
    const bool kept = keepAside(clsSystem::LocalPath(files.index));
    const Code code = kept ? d4reindex(table) : r4failure;
    d4close(table);
    return code == r4success ? ReindexOutcome::Done : failure(code);
}

} // namespace maintenance
