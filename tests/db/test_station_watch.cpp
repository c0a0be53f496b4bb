// Locks that do not reach the other stations, or that the folder refuses: told, and nothing more
// is written.
#include "DbTest.h"

#include "db/Screens.h"
#include "db/StationWatch.h"
#include "support/MemoryFile.h"

#include <QFile>

#include <atomic>
#include <functional>
#include <thread>

using namespace norvane::engine;
using Finding = StationWatch::Finding;

namespace
{

// The files of another file system as one host has them whose locks stay there: they hold between
// the files opened through one object and reach no other one. Or every lock is refused.
class HostFiles : public FileSystem
{
public:
    explicit HostFiles(FileSystem &below = systemFiles(), Status refusal = {})
        : m_below(below), m_refusal(std::move(refusal))
    {
    }
    void takeAway(bool away) { m_away = away; }

    Result<std::unique_ptr<File>> open(const std::string &path, OpenMode mode) override
    {
        if (m_away)
            return Error{ErrorKind::Gone, path, "away"};
        Result<std::unique_ptr<File>> file = m_below.open(path, mode);
        if (!file.ok())
            return file;
        m_locks.content(path);
        return std::unique_ptr<File>(std::make_unique<HostFile>(
            std::move(*file), std::move(*m_locks.open(path, OpenMode::ReadWrite)), m_refusal));
    }
    Result<std::string> findIgnoringCase(const std::string &path) override
    {
        return m_below.findIgnoringCase(path);
    }
    Status rename(const std::string &from, const std::string &to) override
    {
        return m_below.rename(from, to);
    }
    Status remove(const std::string &path) override { return m_below.remove(path); }

private:
    class HostFile : public File
    {
    public:
        HostFile(std::unique_ptr<File> bytes, std::unique_ptr<File> locks, const Status &refusal)
            : m_bytes(std::move(bytes)), m_locks(std::move(locks)), m_refusal(refusal)
        {
        }
        Result<std::size_t> read(std::uint64_t offset, ByteSpan into) override
        {
            return m_bytes->read(offset, into);
        }
        Status write(std::uint64_t offset, ByteView bytes) override
        {
            return m_bytes->write(offset, bytes);
        }
        Result<std::uint64_t> size() override { return m_bytes->size(); }
        Status resize(std::uint64_t size) override { return m_bytes->resize(size); }
        Status sync() override { return m_bytes->sync(); }
        Status tryLock(std::uint64_t offset, std::uint64_t length, LockMode mode) override
        {
            return m_refusal.ok() ? m_locks->tryLock(offset, length, mode) : m_refusal;
        }
        Status unlock(std::uint64_t offset, std::uint64_t length) override
        {
            return m_locks->unlock(offset, length);
        }
        const std::string &path() const override { return m_bytes->path(); }
        bool readOnly() const override { return m_bytes->readOnly(); }

    private:
        std::unique_ptr<File> m_bytes;
        std::unique_ptr<File> m_locks;
        Status m_refusal;
    };

    FileSystem &m_below;
    norvane::test::MemoryFileSystem m_locks;
    Status m_refusal;
    bool m_away = false;
};

const std::string Path = "/stations";

class Watch : public ::testing::Test
{
protected:
    // Everybody beats in turn, so often; the findings of the last round.
    static std::vector<Finding> rounds(int count, std::initializer_list<StationWatch *> stations)
    {
        std::vector<Finding> last;
        for (int i = 0; i < count; ++i) {
            last.clear();
            for (StationWatch *station : stations)
                last.push_back(station->beat());
        }
        return last;
    }
    // What it wrote last stays, and its lock goes.
    void die(StationWatch &station)
    {
        disk.content(Path).beforeWrite = [](auto...) { return Error{ErrorKind::Io, Path, "dead"}; };
        station.stop();
        disk.content(Path).beforeWrite = {};
    }

    norvane::test::MemoryFileSystem disk;
    HostFiles left{disk};
    HostFiles right{disk};
    StationWatch a, b, c, d;
};

class StationsDb : public DbTest
{
protected:
    StationsDb()
    {
        gDB.CloseDB();
        screens().promptLogin = [this](const LoginRequest &) {
            ++logins;
            return LoginOutcome{true, u"sysop"_s, u"sysop"_s, 1, true, {}};
        };
    }
    ~StationsDb() override
    {
        gDB.CloseDB();
        gDB.useFiles(nullptr);
        screens() = {};
    }

    int logins = 0;
};

} // namespace

TEST_F(Watch, FindsNothingWhereLocksReachWhateverElseHappens)
{
    for (StationWatch *station : {&a, &b, &c})
        ASSERT_EQ(Finding::None, station->start(left, Path));
    const std::vector<Finding> nothing(3, Finding::None);
    EXPECT_EQ(nothing, rounds(5, {&a, &b, &c}));
    const std::vector<Byte> before = disk.content(Path).bytes;

    b.stop(); // its place goes to the next
    d.start(left, Path);
    EXPECT_EQ(nothing, rounds(5, {&a, &c, &d}));
    c.beat();
    die(c); // just after it counted
    EXPECT_EQ((std::vector<Finding>(2, Finding::None)), rounds(5, {&a, &d}));
    b.start(left, Path);
    EXPECT_EQ(nothing, rounds(5, {&a, &b, &d}));

    disk.content(Path).bytes = before; // from a backup
    EXPECT_EQ(nothing, rounds(5, {&a, &b, &d}));
    disk.content(Path).bytes.assign(5000, 0x5A);
    EXPECT_EQ(nothing, rounds(5, {&a, &b, &d}));
    ASSERT_TRUE(disk.remove(Path).ok());
    EXPECT_EQ(nothing, rounds(5, {&a, &b, &d}));
    left.takeAway(true);
    EXPECT_EQ(nothing, rounds(5, {&a, &b, &d}));
    left.takeAway(false);
    EXPECT_EQ(nothing, rounds(5, {&a, &b, &d}));
}

TEST_F(Watch, FindsLocksThatStayOnTheirHostWithinFourBeats)
{
    struct Case {
        const char *what;
        std::vector<StationWatch *> onLeft, onRight;
        bool firstOnRightGoes = false;
    };
    const Case cases[] = {
        {"both in the first place", {&a}, {&b}},
        {"a third one hears of it from its neighbour", {&a, &c}, {&b}},
        {"two on each side", {&a, &c}, {&b, &d}},
        {"in different places", {&a}, {&c, &b}, true},
    };
    for (const Case &each : cases) {
        SCOPED_TRACE(each.what);
        for (StationWatch *station : each.onLeft)
            ASSERT_EQ(Finding::None, station->start(left, Path));
        for (StationWatch *station : each.onRight)
            ASSERT_EQ(Finding::None, station->start(right, Path));
        std::vector<StationWatch *> all = each.onLeft;
        all.insert(all.end(), each.onRight.begin() + (each.firstOnRightGoes ? 1 : 0),
                   each.onRight.end());
        if (each.firstOnRightGoes)
            each.onRight.front()->stop();
        for (int i = 0; i < 4; ++i)
            for (StationWatch *station : all)
                station->beat();
        for (StationWatch *station : all)
            EXPECT_EQ(Finding::Deaf, station->beat());
        for (StationWatch *station : {&a, &b, &c, &d})
            station->stop();
    }
}

TEST_F(Watch, TellsAFolderWithoutLocksFromOneThatIsGoneOrTakesNoFile)
{
    const std::pair<Error, Finding> cases[] = {
        {{ErrorKind::Io, Path, "lock: No locks available"}, Finding::Refused},
        {{ErrorKind::Io, Path, "lock: Function not implemented"}, Finding::Refused},
        {{ErrorKind::Gone, Path, "lock: Stale file handle"}, Finding::None},
        {{ErrorKind::Locked, Path, "held"},
         Finding::None}, // by as many stations as there are places
    };
    for (const auto &[error, found] : cases) {
        HostFiles files(disk, error);
        EXPECT_EQ(found, a.start(files, Path)) << error.detail;
        EXPECT_EQ(found == Finding::Refused ? error.detail : "", a.refusal());
        EXPECT_EQ(found, a.beat());
    }
    disk.content(Path).readOnly = true;
    EXPECT_EQ(Finding::None, a.start(left, Path));
    EXPECT_EQ(Finding::None, a.probe());
}

TEST_F(Watch, AProbeWaitsForASignOfLifeAndClearsTheDeadAway)
{
    const QTemporaryDir folder;
    const std::string path = folder.filePath("stations").toStdString();
    HostFiles here, there;
    a.start(here, path);
    std::atomic<bool> enough = false;
    std::thread alive([&] {
        while (!enough) {
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            a.beat();
        }
    });
    EXPECT_EQ(Finding::None, b.start(there, path));
    EXPECT_EQ(Finding::Deaf, b.probe());
    enough = true;
    alive.join();
    b.stop();
    a.beat(); // and is never heard of again
    EXPECT_EQ(Finding::None, c.start(there, path));
    EXPECT_EQ(Finding::None, c.probe());
}

TEST_F(StationsDb, DeafLocksAreToldInTenSecondsAndNothingIsWrittenAnyMore)
{
    HostFiles here, there;
    gDB.useFiles(&here);
    clsDB other;
    other.useFiles(&there);
    ASSERT_TRUE(gDB.OpenDB(db.path()));
    const qint32 id = db.addCustomer({{"company", u"Acme"_s}});
    RecColl row = record(u"_customer"_s, id);
    ASSERT_TRUE(gDB.ReadRecord(row));
    ASSERT_TRUE(other.OpenDB(db.path()));

    const QString notice = u"The record locks of the workstations in '"_s + db.path();
    person.expect(notice).kind(prompts::Kind::Critical);
    person.expect(notice).kind(prompts::Kind::Critical);
    for (int seconds = 0; seconds < 10; ++seconds) {
        machine.advance(std::chrono::seconds(1));
        gDB.WatchStations();
        other.WatchStations();
    }
    ASSERT_TRUE(gDB.IsReadOnly() && other.IsReadOnly());

    const QString refused = u"Nothing was changed: this database is open for reading only"_s;
    const std::pair<const char *, std::function<bool()>> writes[] = {
        {"save", [&] { return gDB.SaveRecord(row); }},
        {"add",
         [&] {
             auto fresh = gDB.NewCustomerRecColl();
             return gDB.SaveRecord(fresh);
         }},
        {"delete", [&] { return gDB.DeleteRecord(id, gDB.CustomerTable()); }},
        {"number", [&] { return gDB.GetNextID(u"nvncust.dbf"_s) > 0; }},
        {"parameter", [&] { return gDB.SetParamValue(u"x"_s, u"y"_s); }},
    };
    for (const auto &[what, write] : writes) {
        person.expect(refused).kind(prompts::Kind::Critical);
        EXPECT_FALSE(write()) << what;
    }
    gDB.SetEditInfo(gDB.CustomerTable(), u"nvncust.dbf"_s, id, false); // nothing to be told
    EXPECT_EQ(u""_s, db.stored(schema::Table::Customer, id, u"underedit"_s));
    EXPECT_EQ(u"Acme"_s, gDB.GetCustomername(id)) << "reading goes on";
    // A new opening begins with a clean slate, once the other one has gone.
    other.CloseDB();
    ASSERT_TRUE(gDB.OpenDB(db.path()));
    EXPECT_TRUE(gDB.SetParamValue(u"x"_s, u"y"_s));
}

TEST_F(StationsDb, AFolderWithoutLocksIsRefusedBeforeTheLogin)
{
    HostFiles files(systemFiles(), Error{ErrorKind::Io, {}, "lock: No locks available"});
    gDB.useFiles(&files);
    person.expect(u"does not take record locks (lock: No locks available)"_s)
        .kind(prompts::Kind::Critical);
    EXPECT_FALSE(gDB.OpenDB(db.path()));
    EXPECT_EQ(0, logins);
}

TEST_F(StationsDb, TheStationFileIsNoPartOfTheDatabase)
{
    ASSERT_TRUE(gDB.OpenDB(db.path()));
    EXPECT_TRUE(QFile::exists(db.file(u"nvnstations.nvs"_s)));
    EXPECT_FALSE(gDB.DBMSFiles().contains(u"nvnstations"_s));
    gDB.CloseDB();
    const QTemporaryDir used;
    ASSERT_TRUE(QFile::copy(db.file(u"nvnstations.nvs"_s), used.filePath(u"nvnstations.nvs"_s)));
    EXPECT_TRUE(gDB.DirIsClean(used.path()));
    ASSERT_TRUE(QFile::remove(db.file(u"nvnstations.nvs"_s)));
    EXPECT_TRUE(gDB.OpenDB(db.path()));
}
