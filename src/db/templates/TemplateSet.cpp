#include "db/templates/TemplateSet.h"

#include "common/base/Failure.h"
#include "common/base/Numbers.h"
#include "db/engine/TableCreate.h"
#include "db/FieldText.h"

#include <QDir>
#include <QFile>

using namespace norvane::engine;

namespace
{

constexpr int NotMade = 322;
constexpr int LastSeedRowid = 999;

[[noreturn]] void fail(const QString &place, const QString &what)
{
    throw Failure(NotMade, place, what);
}

// The only user of the files while they are made.
class Session
{
public:
    Session() : m_session(d4init_v()) { code4accessMode(m_session, 1); }
    ~Session() { d4initUndo(m_session); }
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    Handle open(const QString &path) const { return d4open(m_session, path.toStdString()); }
    QString problem() const { return QString::fromStdString(lastError(m_session).detail); }

private:
    Handle m_session;
};

} // namespace

TemplateSet::TemplateSet(const QString &workDir, const QString &baseName, const TableDef &def)
    : m_path(QDir(workDir).filePath(baseName + u".dbf"))
{
    const QDir dir(workDir);
    const TablePaths paths{m_path.toStdString(), dir.filePath(baseName + u".cdx").toStdString(),
                           dir.filePath(baseName + u".fpt").toStdString()};
    const Status made = createTable(systemFiles(), def, paths);
    if (!made.ok())
        fail(m_path, QString::fromStdString(made.error().detail));
}

void TemplateSet::fill(const SeedFile &seed)
{
    if (seed.rows.empty())
        return;
    const Session session;
    const Handle table = session.open(m_path);
    if (table < 1)
        fail(m_path, session.problem());
    for (const SeedRow &row : seed.rows) {
        append(table, seed.fields, row);
        if (d4append(table) != r4success)
            fail(row.place, session.problem());
    }
    if (d4close(table) != r4success)
        fail(m_path, session.problem());
}

void TemplateSet::append(Handle table, const QStringList &fields, const SeedRow &row)
{
    d4appendStartVB(table, 0);
    d4blank(table);
    for (qsizetype i = 0; i < fields.size(); ++i) {
        const Handle field = d4field(table, toStored(fields.at(i)).toStdString());
        if (field < 1)
            fail(row.place, QStringLiteral("there is no field '%1'").arg(fields.at(i)));
        if (fields.at(i) == u"rowid")
            checkRowid(row.values.at(i), row);
        assign(field, row.values.at(i), row);
    }
}

void TemplateSet::assign(Handle field, const QString &value, const SeedRow &row)
{
    const QByteArray stored = toStored(value);
    if (fromStored(stored.constData(), stored.size()) != value)
        fail(row.place, QStringLiteral("'%1' has characters that cannot be stored").arg(value));
    const std::string text = stored.toStdString();
    const auto length = static_cast<std::uint32_t>(text.size());
    switch (f4type(field)) {
    case 'N': {
        const std::optional<double> number = NumberInText(value);
        const std::optional<qint32> whole = number ? RoundToLong(*number) : std::nullopt;
        if (!whole)
            fail(row.place, QStringLiteral("'%1' is not a number").arg(value));
        f4assignLong(field, *whole);
        break;
    }
    case 'M':
        f4memoAssignN(field, text, length);
        break;
    default:
        if (length > f4len_v(field)) {
            fail(row.place, QStringLiteral("'%1' does not fit into '%2'")
                                .arg(value, FieldNameText(field).toLower()));
        }
        f4assignNVB(field, text, length);
    }
}

void TemplateSet::checkRowid(const QString &value, const SeedRow &row)
{
    const int rowid = value.toInt();
    if (rowid < 1 || rowid > LastSeedRowid || !m_rowids.insert(rowid).second)
        fail(row.place, QStringLiteral("the rowid '%1' is taken or not in 1 to 999").arg(value));
}

void TemplateSet::moveTo(const QString &outDir, const QStringList &names) const
{
    static const char *const extensions[] = {".dbf", ".cdx", ".fpt"};
    for (qsizetype i = 0; i < names.size(); ++i) {
        const QString from = m_path.chopped(4) + QLatin1String(extensions[i]);
        const QString to = QDir(outDir).filePath(names.at(i));
        QFile::remove(to);
        if (!QFile::rename(from, to))
            fail(to, QStringLiteral("cannot be written"));
    }
}
