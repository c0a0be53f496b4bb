// Files that are missing, damaged, read-only or gone: told once in plain words, never worse.
#include "DbTest.h"

#include "db/engine/File.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

using namespace norvane::engine;
using schema::Table;

namespace
{

class Damage : public DbTest
{
protected:
    void overwrite(const QString &name, const QByteArray &bytes)
    {
        QFile file(db.file(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray contents(const QString &name) const
    {
        QFile file(db.file(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    void cut(const QString &name, qint64 size) { ASSERT_TRUE(QFile::resize(db.file(name), size)); }
    // What was said while something was tried that may fail in more than one place.
    QStringList told(const std::function<void()> &attempt)
    {
        QStringList texts;
        const auto before =
            std::exchange(prompts::backend().message, [&](const prompts::Message &message) {
                texts.append(message.text);
                return message.preset;
            });
        attempt();
        prompts::backend().message = before;
        return texts;
    }

    qint32 id = db.addCustomer({{"company", u"Acme"_s}, {"notes", u"note"_s}});
};

// The system's files, but none of them can be written.
class ReadOnlyFiles : public FileSystem
{
public:
    Result<std::unique_ptr<File>> open(const std::string &path, OpenMode mode) override
    {
        if (mode != OpenMode::ReadOnly)
            return Error{ErrorKind::ReadOnly, path, "refused"};
        return systemFiles().open(path, mode);
    }
    Result<std::string> findIgnoringCase(const std::string &path) override
    {
        return systemFiles().findIgnoringCase(path);
    }
    Status rename(const std::string &from, const std::string &) override
    {
        return Error{ErrorKind::ReadOnly, from, "refused"};
    }
    Status remove(const std::string &path) override
    {
        return Error{ErrorKind::ReadOnly, path, "refused"};
    }
};

} // namespace

TEST_F(Damage, ATableThatMakesNoSenseNamesItselfAndOpensNothing)
{
    overwrite(u"nvncust.dbf"_s, QByteArray(5000, 'x'));
    RecColl row = record(u"_customer"_s, id);
    const QStringList texts = told([&] { EXPECT_FALSE(gDB.ReadRecord(row)); });
    ASSERT_EQ(2, texts.size()) << qPrintable(texts.join(u'\n'));
    EXPECT_TRUE(texts[0].contains(u"nvncust.dbf' is damaged")) << qPrintable(texts[0]);
    EXPECT_TRUE(texts[0].contains(u"open for reading only"));
    EXPECT_EQ(u"Unable to open: "_s + gDB.CustomerTable(), texts[1]);
    // Other tables can still be looked at.
    EXPECT_EQ(1, gDB.GetRecCount(gDB.UserTable(), u"login"_s));
}

TEST_F(Damage, AFolderWithADamagedTableOpensForReadingOnlyAndSaysSoOnce)
{
    const QString name = u"nvnrep.dbf"_s;
    const QByteArray whole = contents(name);
    const QByteArray wrecks[] = {QByteArray(5000, 'x'), whole.left(20), QByteArray()};
    for (const QByteArray &wreck : wrecks) {
        gDB.CloseDB();
        overwrite(name, wreck);
        person.expect(db.file(name) + u"' is damaged"_s).kind(prompts::Kind::Critical);
        db.loginAs(u"SYSOP"_s, u"sysop"_s);
        ASSERT_TRUE(gDB.IsReadOnly());
        RecColl row = record(u"_customer"_s, id);
        EXPECT_TRUE(gDB.ReadRecord(row));
        const QByteArray customers = contents(u"nvncust.dbf"_s);
        person.expect(u"because the file '"_s + db.file(name) + u"' is damaged"_s);
        EXPECT_FALSE(gDB.SaveRecord(row));
        EXPECT_EQ(customers, contents(u"nvncust.dbf"_s));
        EXPECT_EQ(wreck, contents(name));

        overwrite(name, whole); // from a backup
        db.loginAs(u"SYSOP"_s, u"sysop"_s);
        EXPECT_FALSE(gDB.IsReadOnly());
        EXPECT_TRUE(gDB.SaveRecord(row));
    }
}

TEST_F(Damage, AMissingIndexOrMemoFileIsNamedBeforeItsTable)
{
    ASSERT_TRUE(QFile::remove(db.file(u"nvncust.fpt"_s)));
    RecColl row = record(u"_customer"_s, id);
    person.expect(u"The file '%1' is missing."_s.arg(db.file(u"nvncust.fpt"_s)));
    person.expect(u"Unable to open: "_s + gDB.CustomerTable());
    EXPECT_FALSE(gDB.ReadRecord(row));
}

TEST_F(Damage, ATruncatedTableIsToldAndTakesNoNewRow)
{
    const QString names[] = {u"nvncust.dbf"_s, u"nvncust.cdx"_s, u"nvncust.fpt"_s};
    const QByteArray whole[] = {contents(names[0]), contents(names[1]), contents(names[2])};
    for (const QString &name : {names[0], names[2]}) {
        for (const qint64 size : {0, 1, 31, 33, 511, 700, 1100}) {
            cut(name, std::min(size, QFile(db.file(name)).size() - 200));
            const QByteArray left = contents(name);
            const QStringList texts = told([&] {
                RecColl row = record(u"_customer"_s, id);
                gDB.ReadRecord(row);
                RecColl fresh = gDB.NewCustomerRecColl();
                fresh.setExisting(u"notes"_s, u"new"_s);
                EXPECT_FALSE(gDB.SaveRecord(fresh)) << qPrintable(name) << ' ' << size;
                gDB.GetRecCount(gDB.CustomerTable(), u"company"_s);
            });
            EXPECT_FALSE(texts.filter(name).isEmpty()) << qPrintable(name) << ' ' << size;
            EXPECT_EQ(left, contents(name)) << qPrintable(name) << ' ' << size;
            if (name != names[0]) {
                EXPECT_EQ(whole[0], contents(names[0])) << qPrintable(name) << ' ' << size;
            }
            for (int i = 0; i < 3; ++i)
                overwrite(names[i], whole[i]);
        }
    }
}

TEST_F(Damage, ADamagedIndexIsBuiltAnewWithoutAWord)
{
    const QString name = u"nvncust.cdx"_s;
    for (const qint64 size : {0, 1, 33, 511, 1100, 5000}) {
        cut(name, size);
        const QByteArray left = contents(name);
        RecColl row = record(u"_customer"_s, id);
        EXPECT_TRUE(gDB.ReadRecord(row)) << size;
        RecColl fresh = gDB.NewCustomerRecColl();
        EXPECT_TRUE(gDB.SaveRecord(fresh)) << size;
        QFile kept(db.file(name + u".bad"));
        ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
        EXPECT_EQ(left, kept.readAll()) << size;
        ASSERT_TRUE(kept.remove());
    }
}

TEST_F(Damage, AReadOnlyFolderIsReadAndRefusesEverySave)
{
    ReadOnlyFiles files;
    clsDB reader;
    reader.useFiles(&files);
    ASSERT_TRUE(reader.OpenUnattended(db.path(), u"SYSOP"_s, u"sysop"_s));
    RecColl row = record(u"_customer"_s, id);
    ASSERT_TRUE(reader.ReadRecord(row));
    EXPECT_EQ(u"Acme"_s, row.text(u"company"_s));

    person.expect(u"is read-only for you"_s).kind(prompts::Kind::Critical);
    EXPECT_FALSE(reader.SaveRecord(row));
    person.expect(u"is read-only for you"_s);
    EXPECT_FALSE(reader.DeleteRecord(id, reader.CustomerTable()));
    person.expect(u"is read-only for you"_s);
    EXPECT_EQ(-1, reader.GetNextID(u"nvncust.dbf"_s));
    person.expect(u"is read-only for you"_s);
    EXPECT_FALSE(reader.SetParamValue(u"x"_s, u"y"_s));
}

TEST_F(Damage, AFolderThatVanishesAndComesBackNeedsNoRestart)
{
    const QString away = db.path() + u"-away";
    ASSERT_TRUE(QDir().rename(db.path(), away));
    RecColl row = record(u"_customer"_s, id);
    person.expect(u"Unable to open: "_s + gDB.CustomerTable());
    EXPECT_FALSE(gDB.ReadRecord(row));
    RecColl fresh = gDB.NewCustomerRecColl();
    person.expect(u"Unable to open: "_s + gDB.CustomerTable());
    EXPECT_FALSE(gDB.SaveRecord(fresh));

    ASSERT_TRUE(QDir().rename(away, db.path()));
    EXPECT_TRUE(gDB.ReadRecord(row));
    EXPECT_TRUE(gDB.SaveRecord(fresh));
}

// Of the whole folder, or of one file in it. An administrator may do everything, so the test
// becomes nobody for that long.
TEST_F(Damage, WithoutTheRightToChangeItsFilesADatabaseIsForReading)
{
    const bool administrator = ::getuid() == 0;
    const auto allow = [this](const QString &name, mode_t rights) {
        ASSERT_EQ(::chmod(QFile::encodeName(db.file(name)).constData(), rights), 0);
    };
    for (const QString &only : {QString(), u"nvncust.cdx"_s, u"nvncust.fpt"_s, u"nvncust.nvj"_s}) {
        SCOPED_TRACE(only.toStdString());
        gDB.CloseDB();
        for (const QString &name : QDir(db.path()).entryList(QDir::Files))
            allow(name, only.isEmpty() || name == only ? 0444 : 0666);
        allow(u"."_s, only.isEmpty() ? 0555 : 0777);
        const QStringList names = QDir(db.path()).entryList(QDir::Files);
        if (administrator) {
            ASSERT_EQ(::setresuid(65534, 65534, 0), 0);
        }
        const QStringList opening =
            told([this] { EXPECT_TRUE(gDB.OpenUnattended(db.path(), u"SYSOP"_s, u"sysop"_s)); });
        RecColl row = record(u"_customer"_s, id);
        EXPECT_TRUE(gDB.ReadRecord(row));
        const QStringList writing = told([] { EXPECT_FALSE(gDB.MayWrite()); });
        gDB.CloseDB();
        if (administrator) {
            ASSERT_EQ(::setresuid(0, 0, 0), 0);
        }
        allow(u"."_s, 0755);
        ASSERT_EQ(opening.size(), 1) << qPrintable(opening.join(u'\n'));
        EXPECT_TRUE(opening[0].startsWith(u"You have no right to change the file '"_s +
                                          (only.isEmpty() ? QString() : db.file(only) + u"'")));
        ASSERT_EQ(writing.size(), 1);
        EXPECT_TRUE(writing[0].contains(u"because you have no right to change the file"));
        QFile::remove(db.file(u"nvnstations.nvs"_s));
        EXPECT_EQ(QDir(db.path()).entryList(QDir::Files).size(),
                  names.size() - names.count(u"nvnstations.nvs"_s));
    }
}

TEST_F(Damage, AFailureSaysWhatIsWrongAndWhatToDo)
{
    const auto words = [](ErrorKind kind, const char *file) {
        return engineFailureText({kind, file, "detail", 512});
    };
    const QString index = words(ErrorKind::Damaged, "/data/nvncust.cdx");
    EXPECT_TRUE(index.contains(u"'/data/nvncust.cdx' is damaged (at 512)"));
    EXPECT_TRUE(index.contains(u"re-index"));
    EXPECT_TRUE(words(ErrorKind::Damaged, "/data/nvncust.dbf").contains(u"backup"));
    EXPECT_TRUE(words(ErrorKind::NoSpace, "f").contains(u"full"));
    EXPECT_TRUE(words(ErrorKind::Gone, "f").contains(u"up and running"));
}
