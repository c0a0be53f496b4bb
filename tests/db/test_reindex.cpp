// The re-index of one table, whatever has become of its index.
#include "DbTest.h"

#include "db/maintenance/FolderCheck.h"
#include "db/maintenance/Reindex.h"
#include "support/Station.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

#include <optional>

using maintenance::ReindexOutcome;
using maintenance::ReindexResult;
using schema::Table;

namespace
{

class Reindexing : public DbTest
{
protected:
    Reindexing()
    {
        for (int i = 0; i < 300; ++i)
            db.addListItem(101, u"status %1"_s.arg(i));
        good = bytes(u"nvncat.cdx"_s);
    }
    QByteArray bytes(const QString &name) const
    {
        QFile file(db.file(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void put(const QString &name, const QByteArray &content) const
    {
        QFile file(db.file(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    static ReindexResult reindex(Table table = Table::Category)
    {
        return maintenance::reindexTable(gDB, gDB.DataFilePaths().at(static_cast<int>(table)));
    }
    QStringList found() const
    {
        QStringList lines;
        maintenance::FolderCheck check(db.path());
        for (const maintenance::Finding &finding : check.run(schema::table(Table::Category)))
            lines += finding.file + u": " + finding.text;
        return lines;
    }
    QStringList files() const { return QDir(db.path()).entryList(QDir::Files); }

    QByteArray good;
};

} // namespace

TEST_F(Reindexing, RestoresEveryTagFromTheRowsAloneAndKeepsTheOldIndex)
{
    const QByteArray rows = bytes(u"nvncat.dbf"_s);
    const QByteArray other = bytes(u"nvncust.cdx"_s);
    const struct {
        const char *what;
        std::optional<QByteArray> index; // nothing: missing
    } cases[] = {{"sound", good},
                 {"missing", std::nullopt},
                 {"empty", QByteArray()},
                 {"truncated", good.first(good.size() / 2)},
                 {"a piece of its header", good.first(100)},
                 {"garbage", QByteArray(good.size(), '\xA5')},
                 {"another table's", other}};
    for (const auto &[what, index] : cases) {
        SCOPED_TRACE(what);
        if (index)
            put(u"nvncat.cdx"_s, *index);
        else
            QFile::remove(db.file(u"nvncat.cdx"_s));
        const ReindexResult result = reindex();
        EXPECT_EQ(result.outcome, ReindexOutcome::Done) << qPrintable(result.reason);
        EXPECT_EQ(result.kept.isEmpty(), !index.has_value());
        if (index) {
            EXPECT_EQ(bytes(QFileInfo(result.kept).fileName()), *index);
        }
        EXPECT_EQ(found(), QStringList());
        EXPECT_EQ(gDB.GetRecCount(gDB.CategoryTable(), u"type"_s),
                  gDB.GetRecCount(gDB.CategoryTable(), u"rowid"_s));
        EXPECT_GT(gDB.CategoryExists(u"status 299"_s, 101), 0);
    }
    EXPECT_EQ(bytes(u"nvncat.dbf"_s), rows);
}

TEST_F(Reindexing, ARefusalChangesNothing)
{
    Station other(db.path());
    ASSERT_EQ(other.ask(u"lockrow nvncat.dbf 401"_s), "ok");
    const QStringList before = files();
    const ReindexResult result = reindex();
    EXPECT_EQ(result.outcome, ReindexOutcome::InUse);
    EXPECT_EQ(result.kept, QString());
    EXPECT_EQ(files(), before);
    EXPECT_EQ(bytes(u"nvncat.cdx"_s), good);
    ASSERT_EQ(other.ask(u"unlock"_s), "ok");
    EXPECT_EQ(reindex().outcome, ReindexOutcome::Done);
}

// An administrator may do everything, so the test becomes nobody for that long.
TEST_F(Reindexing, AFolderForReadingIsLeftAsItIs)
{
    const QStringList before = files();
    ASSERT_EQ(::chmod(QFile::encodeName(db.path()).constData(), 0555), 0);
    const bool administrator = ::getuid() == 0;
    if (administrator) {
        ASSERT_EQ(::setresuid(65534, 65534, 0), 0);
    }
    const ReindexResult result = reindex();
    if (administrator) {
        ASSERT_EQ(::setresuid(0, 0, 0), 0);
    }
    ::chmod(QFile::encodeName(db.path()).constData(), 0755);
    EXPECT_EQ(result.outcome, ReindexOutcome::Failed);
    EXPECT_TRUE(result.reason.contains(u"may be read-only")) << qPrintable(result.reason);
    EXPECT_EQ(files(), before);
    EXPECT_EQ(bytes(u"nvncat.cdx"_s), good);
}

TEST_F(Reindexing, AFailureNamesItsReasonAndWhereTheOldIndexIs)
{
    clsDBFile files = gDB.DataFilePaths().at(static_cast<int>(Table::Category));
    files.indexSource += u".gone";
    ReindexResult result = maintenance::reindexTable(gDB, files);
    EXPECT_EQ(result.outcome, ReindexOutcome::Failed);
    EXPECT_TRUE(result.reason.contains(u".gone' is missing")) << qPrintable(result.reason);
    EXPECT_FALSE(QFile::exists(db.file(u"nvncat.cdx.1"_s)));

    put(u"nvncat.dbf"_s, bytes(u"nvncat.dbf"_s).first(40));
    result = reindex();
    EXPECT_EQ(result.outcome, ReindexOutcome::Failed);
    EXPECT_FALSE(result.reason.isEmpty());
    EXPECT_EQ(result.kept, db.file(u"nvncat.cdx.1"_s));
    EXPECT_EQ(bytes(u"nvncat.cdx.1"_s), good);
    EXPECT_EQ(bytes(u"nvncat.cdx"_s), good);
}
