// What a new database starts with, and what its maker refuses to put into it.
#include "DbTest.h"

#include "db/TableUse.h"
#include "TestPlaces.h"

#include <QDir>
#include <QFile>
#include <QProcess>

using schema::Table;

namespace
{

class Templates : public DbTest
{
protected:
    // Runs the maker with one seed file replaced; its complaint, empty when it made everything.
    static QString complaintAbout(const QString &seed, const QByteArray &content)
    {
        const QTemporaryDir seeds;
        const QTemporaryDir out;
        const QDir own(QStringLiteral(NORVANE_SOURCE_DIR "/data/seed"));
        for (const QString &name : own.entryList(QDir::Files))
            EXPECT_TRUE(QFile::copy(own.filePath(name), seeds.filePath(name)));
        QFile file(seeds.filePath(seed));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();

        QProcess maker;
        maker.start(QStringLiteral(NORVANE_BINARY_DIR "/tools/norvane_mktemplates"),
                    {out.path(), seeds.path()});
        EXPECT_TRUE(maker.waitForFinished());
        const QString complaint = QString::fromUtf8(maker.readAllStandardError());
        EXPECT_EQ(complaint.isEmpty() ? 0 : 1, maker.exitCode());
        return complaint;
    }
};

} // namespace

TEST_F(Templates, OneAdministratorAndNoIdentifierThatIsGivenOutLater)
{
    EXPECT_EQ(1, gDB.GetRecCountFast(gDB.UserTable(), u"rowid"_s));
    EXPECT_EQ(u"SYSOP"_s, db.stored(Table::User, 1, u"login"_s));
    EXPECT_EQ(u"7379736F70"_s, db.stored(Table::User, 1, u"password"_s));
    EXPECT_EQ(u"1"_s, db.stored(Table::User, 1, u"usertype"_s));
    for (const Table which : {Table::Category, Table::Report, Table::User}) {
        TableUse rows(gDB, gDB.TablePath(which));
        rows.select(u"rowid"_s);
        qint32 last = 0;
        for (bool more = rows.top(); more; more = rows.next()) {
            EXPECT_GT(rows.number(u"rowid"_s), last);
            last = rows.number(u"rowid"_s);
        }
        EXPECT_LT(last, 1000);
    }
    for (const Table which : {Table::Customer, Table::Customer2PS, Table::LastID, Table::Issues,
                              Table::IssuesActions, Table::IssuesTemplates, Table::Param})
        EXPECT_EQ(0, gDB.GetRecCountFast(gDB.TablePath(which), {}))
            << qPrintable(schema::table(which).dataFile());
}

TEST_F(Templates, TablesAreSound)
{
    for (const schema::TableInfo &table : schema::tables()) {
        const clsDB::Handle handle = gDB.OpenTable(gDB.TablePath(table.table));
        EXPECT_TRUE(norvane::engine::d4check(handle).empty()) << qPrintable(table.baseName);
        gDB.CloseTable(handle);
    }
    const clsDB::Handle columns = gDB.OpenTable(gDB.ReportColumnsTable());
    EXPECT_TRUE(norvane::engine::d4check(columns).empty());
    gDB.CloseTable(columns);
}

TEST_F(Templates, BadSeedsAreNamedByFileAndLine)
{
    const QByteArray heading = "type,rowid,desc\n";
    const QString lists = u"lists.csv"_s;
    EXPECT_EQ(QString(), complaintAbout(lists, heading + "1,1,\"Say \"\"so\"\", please\"\n"));
    EXPECT_TRUE(complaintAbout(lists, heading + "1,1,Fine\n1,2," + QByteArray(41, 'x') + '\n')
                    .contains(u"lists.csv, line 3"));
    EXPECT_TRUE(complaintAbout(lists, heading + "1,1000,Late\n").contains(u"'1000'"));
    EXPECT_TRUE(complaintAbout(lists, heading + "1,5,One\n2,5,Two\n").contains(u"line 3"));
    EXPECT_TRUE(complaintAbout(lists, heading + "1,5\n").contains(u"line 2"));
    EXPECT_TRUE(complaintAbout(lists, heading + "x,5,One\n").contains(u"not a number"));
    EXPECT_TRUE(complaintAbout(lists, "type,rowid,text\n1,5,One\n").contains(u"no field 'text'"));
    EXPECT_TRUE(complaintAbout(u"columns.csv"_s, "rowid,name\n1,\xe4\xba\xba\n")
                    .contains(u"cannot be stored"));
}
