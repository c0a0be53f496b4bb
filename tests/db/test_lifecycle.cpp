// Recognising, creating, opening and closing a database folder.
#include "DbTest.h"

#include "common/base/AppInfo.h"
#include "db/Screens.h"

#include <QDir>
#include <QFile>

namespace
{

// The login box of these tests; what it was asked, and the answer it gives.
class Lifecycle : public DbTest
{
protected:
    Lifecycle()
    {
        gDB.CloseDB();
        screens().promptLogin = [this](const LoginRequest &request) {
            asked.push_back(request);
            LoginOutcome outcome;
            outcome.ok = accept && gDB.VerifyLogin(request.login, request.password, outcome.id,
                                                   outcome.isAdmin, outcome.permissions);
            outcome.login = request.login;
            outcome.password = request.password;
            return outcome;
        };
    }
    ~Lifecycle() override { screens() = {}; }

    void remove(const QString &name) { ASSERT_TRUE(QFile::remove(db.file(name))); }

    std::vector<LoginRequest> asked;
    bool accept = true;
};

qsizetype filesIn(const QString &path)
{
    return QDir(path).entryList(QDir::Files).size();
}

} // namespace

TEST_F(Lifecycle, ANewDatabaseOpensWithTheInitialLogin)
{
    ASSERT_TRUE(gDB.OpenDB(db.path()));
    EXPECT_TRUE(gDB.IsOpen());
    ASSERT_EQ(1u, asked.size());
    EXPECT_EQ(u"sysop"_s, asked[0].login);
    EXPECT_EQ(u"sysop"_s, asked[0].password);
    EXPECT_EQ(db.path(), asked[0].folder);
    EXPECT_TRUE(gDB.IsAdminUser());
    EXPECT_EQ(1, gDB.LoginID());
    EXPECT_EQ(db.path(), gDB.GetLastDBDir());
    EXPECT_TRUE(QDir(db.file(u"nvnattach"_s)).exists());
    EXPECT_EQ(28, gDB.DBMSFiles().count(u".dbf"_s) + gDB.DBMSFiles().count(u".cdx"_s) +
                      gDB.DBMSFiles().count(u".fpt"_s));
    EXPECT_TRUE(gDB.DBMSFiles().contains(u"following 28 files."));

    EXPECT_TRUE(gDB.CloseDB());
    EXPECT_FALSE(gDB.IsOpen());
    EXPECT_EQ(QString(), gDB.DBPath());
    EXPECT_EQ(0, gDB.LoginID());
    EXPECT_EQ(QString(), gDB.password());
}

TEST_F(Lifecycle, ARefusedLoginLeavesNoDatabaseAndTheRememberedFolder)
{
    gDB.SetLastDBDir(u"/elsewhere"_s);
    accept = false;
    EXPECT_FALSE(gDB.OpenDB(db.path()));
    EXPECT_FALSE(gDB.IsOpen());
    EXPECT_EQ(0, gDB.CBEngine());
    EXPECT_EQ(u"/elsewhere"_s, gDB.GetLastDBDir());
}

TEST_F(Lifecycle, MissingNewerTablesComeFromTheTemplates)
{
    // shared by a group, whatever the habits of the person who opens it
    const QFile::Permissions shared = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                                      QFile::WriteGroup | QFile::ReadUser | QFile::WriteUser;
    for (const QFileInfo &file : QDir(db.path()).entryInfoList(QDir::Files))
        ASSERT_TRUE(QFile::setPermissions(file.filePath(), shared));
    for (const char *name :
         {"nvniactions.dbf", "nvniactions.cdx", "nvniactions.fpt", "nvnitempl.cdx"})
        remove(QString::fromLatin1(name));
    ASSERT_TRUE(gDB.OpenDB(db.path()));
    EXPECT_EQ(28, QDir(db.path()).entryList({u"*.dbf"_s, u"*.cdx"_s, u"*.fpt"_s}).size());
    for (const QFileInfo &file : QDir(db.path()).entryInfoList({u"nvni*"_s}, QDir::Files))
        EXPECT_EQ(file.permissions(), shared) << qPrintable(file.fileName());
    const qint32 action = db.add(u"_issueaction"_s, {{"issueid", 5}, {"desc", u"called"_s}});
    EXPECT_GT(action, 0);

    // An index alone comes from the rows, not from the empty template, also while somebody else
    // has the table open.
    gDB.CloseDB();
    const auto other = norvane::engine::d4init_v();
    const auto theirs = norvane::engine::d4open(other, db.file(u"nvniactions.dbf"_s).toStdString());
    EXPECT_GT(theirs, 0);
    remove(u"nvniactions.cdx"_s);
    const bool opened = gDB.OpenDB(db.path());
    norvane::engine::d4initUndo(other);
    ASSERT_TRUE(opened);
    EXPECT_EQ(action,
              gDB.RecordExists(2, u"5"_s, gDB.IssuesActionsTable(), u"issueid"_s, u"rowid"_s));
    EXPECT_EQ(u"called"_s, db.stored(schema::Table::IssuesActions, action, u"desc"_s));
}

// A row whose text is gone with its file says so, and does not come to show another one's.
TEST_F(Lifecycle, TextsOfALostMemoFileComeBackAsNothingElse)
{
    ASSERT_TRUE(gDB.OpenDB(db.path()));
    const qint32 old = db.add(u"_issueaction"_s, {{"issueid", 5}, {"notes", u"the old text"_s}});
    gDB.CloseDB();
    remove(u"nvniactions.fpt"_s);
    ASSERT_TRUE(gDB.OpenDB(db.path()));
    const qint32 next = db.add(u"_issueaction"_s, {{"issueid", 5}, {"notes", u"a new text"_s}});
    EXPECT_EQ(u"a new text"_s, db.stored(schema::Table::IssuesActions, next, u"notes"_s));
    person.expect(u"nvniactions.fpt' is damaged"_s);
    EXPECT_EQ(u""_s, db.stored(schema::Table::IssuesActions, old, u"notes"_s));
}

TEST_F(Lifecycle, OtherMissingFilesAreListedAndNothingIsRepaired)
{
    remove(u"nvnuser.fpt"_s);
    remove(u"nvncat.cdx"_s);
    remove(u"nvniactions.dbf"_s);
    person.expectText(u"OPEN FAILED!\nThe following data files are missing from the directory '"_s +
                      db.path() + u"':\nnvncat.cdx\nnvnuser.fpt\n\nIf you have not"_s);
    EXPECT_FALSE(gDB.OpenDB(db.path()));
    EXPECT_FALSE(QFile::exists(db.file(u"nvniactions.dbf"_s)));
    EXPECT_TRUE(asked.empty());
}

TEST_F(Lifecycle, ANewDatabaseNeedsAFolderWithoutAnyOfItsFiles)
{
    QTemporaryDir used;
    QFile old(used.filePath(u"NVNPARAM.FPT"_s));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.close();
    person.expectText(
        u"NEW DATABASE CREATION FAILED!\nThe following data files already exist in the "
        u"directory '"_s +
        used.path() + u"':\nnvnparam.fpt\nPlease select"_s);
    EXPECT_FALSE(gDB.NewDB(used.path()));
    EXPECT_EQ(1, filesIn(used.path()));
}

TEST_F(Lifecycle, ANewDatabaseHasItsFilesAndWorks)
{
    const QTemporaryDir fresh;
    ASSERT_TRUE(gDB.NewDB(fresh.path()));
    EXPECT_EQ(28, filesIn(fresh.path()));
    ASSERT_TRUE(gDB.OpenDB(fresh.path()));
    EXPECT_EQ(1000, db.addCustomer({{"company", u"Acme"_s}}));
    EXPECT_EQ(0, gDB.GetRecCount(gDB.IssuesTable(), u"rowid"_s));
    EXPECT_GT(gDB.GetRecCount(gDB.CategoryTable(), u"desc"_s), 100);
}

TEST_F(Lifecycle, AFolderThatTakesNoFilesIsReportedTwice)
{
    person.expect(u"\rclsDB_NewDB"_s).kind(prompts::Kind::Critical).title(u"Error"_s);
    person.expect(u"Please try re-installing Norvane to resolve this issue."_s)
        .kind(prompts::Kind::Information);
    EXPECT_FALSE(gDB.NewDB(db.file(u"no/such/folder"_s)));
}

TEST_F(Lifecycle, TheLastFolderIsTriedAgainOrExplained)
{
    gDB.OpenLastDB(); // nothing remembered, nothing said

    const QString gone = db.file(u"gone"_s);
    gDB.SetLastDBDir(gone);
    person.expectText(u"OPEN FAILED!\nDirectory '"_s + gone +
                      u"' does not exist OR is NOT accessible at this time."_s);
    gDB.OpenLastDB();
    EXPECT_EQ(gone, gDB.GetLastDBDir());

    gDB.SetLastDBDir(db.path());
    gDB.OpenLastDB();
    EXPECT_TRUE(gDB.IsOpen());
    gDB.ClearLastDBDir();
    EXPECT_EQ(QString(), gDB.GetLastDBDir());
}

TEST_F(Lifecycle, AWindowThatStaysKeepsTheDatabaseOpen)
{
    ASSERT_TRUE(gDB.OpenDB(db.path()));
    bool stays = true;
    screens().unloadAll = [&] { return !stays; };
    EXPECT_FALSE(gDB.CloseDB());
    EXPECT_TRUE(gDB.IsOpen());
    EXPECT_FALSE(gDB.OpenDB(db.path()));
    EXPECT_TRUE(gDB.IsOpen());
    EXPECT_GE(gDB.GetRecCount(gDB.UserTable(), u"login"_s), 1);
    stays = false;
    EXPECT_TRUE(gDB.CloseDB());
}

TEST_F(Lifecycle, FoldersAreUnderstoodHoweverTheyAreWritten)
{
    for (const char *name : {"nvncust.dbf", "nvncust.cdx", "nvncust.fpt", "nvnid.cdx"}) {
        const QString lower = QString::fromLatin1(name);
        ASSERT_TRUE(QFile::rename(db.file(lower), db.file(lower.toUpper())));
    }
    ASSERT_TRUE(gDB.OpenDB(db.path() + u'/'));
    EXPECT_EQ(db.file(u"nvncust.dbf"_s), gDB.CustomerTable());
    const qint32 id = db.addCustomer({{"company", u"Acme"_s}});
    EXPECT_EQ(u"Acme"_s, gDB.GetCustomername(id));
    EXPECT_FALSE(QFile::exists(db.file(u"nvncust.dbf"_s)));

    EXPECT_EQ(u"file"_s, clsDB::MakePath({}, u"file"_s));
    EXPECT_EQ(u"C:\\x\\file"_s, clsDB::MakePath(u"C:\\x\\"_s, u"file"_s));
    QString backslashed = db.path();
    backslashed.replace(u'/', u'\\');
    EXPECT_TRUE(gDB.OpenDB(backslashed));
}

TEST_F(Lifecycle, AnAttachmentsFolderThatCannotBeMadeIsOnlyAWarning)
{
    const QString path = db.file(u"nvnattach"_s);
    QDir(path).removeRecursively();
    QFile inTheWay(path);
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    person.expect(u"Unable to create subdirectory for attachments: '"_s + path + u"'"_s)
        .kind(prompts::Kind::Warning);
    EXPECT_TRUE(gDB.OpenDB(db.path()));
}

TEST_F(Lifecycle, MaintenanceIsGivenEveryTableWithItsIndexSource)
{
    ASSERT_TRUE(gDB.OpenDB(db.path()));
    const QList<clsDBFile> all = gDB.DataFilePaths();
    ASSERT_EQ(10, all.size());
    EXPECT_EQ(db.file(u"nvncust_ps.cdx"_s), all[2].index);
    EXPECT_EQ(clsDB::MakePath(app::programFolder(), u"nvncust_ps.cd_"_s), all[2].indexSource);
    for (const clsDBFile &files : all)
        EXPECT_TRUE(QFile::exists(files.indexSource)) << qPrintable(files.indexSource);
    EXPECT_TRUE(QFile::exists(gDB.MailMergeTable()));
    EXPECT_GT(gDB.GetRecCountFast(gDB.ReportColumnsTable(), u"order"_s), 40);
}
