// Several workstations on one folder: in this process and in processes of their own.
#include "DbTest.h"

#include "support/Station.h"

#include <QElapsedTimer>

#include <set>

using namespace norvane::engine;
using schema::Table;

namespace
{

class Stations : public DbTest
{
protected:
    bool save(clsDB &station, qint32 rowid, const QString &field, const QString &value)
    {
        RecColl row = record(u"_customer"_s, rowid);
        EXPECT_TRUE(station.ReadRecord(row));
        row.setExisting(field, value);
        return station.SaveRecord(row);
    }
    QString company(qint32 rowid) { return db.stored(Table::Customer, rowid, u"company"_s); }

    const QString name = u"nvncust.dbf"_s;
    qint32 id = db.addCustomer({{"company", u"Acme"_s}});
};

// A customer's row locked by a station as long as the object lives.
class HeldRow
{
public:
    HeldRow(clsDB &station, qint32 rowid)
        : m_station(station), m_table(station.OpenTable(station.CustomerTable()))
    {
        d4tagSelect(m_table, d4tag(m_table, "rowid"));
        EXPECT_EQ(0, d4seekDouble(m_table, rowid));
        EXPECT_EQ(0, d4lock(m_table, d4recNo(m_table)));
    }
    ~HeldRow() { m_station.CloseTable(m_table); }
    HeldRow(const HeldRow &) = delete;
    HeldRow &operator=(const HeldRow &) = delete;

private:
    clsDB &m_station;
    clsDB::Handle m_table;
};

} // namespace

TEST_F(Stations, ALockedRowIsToldAndNothingIsWritten)
{
    hurry(gDB);
    auto other = db.otherStation();
    {
        const HeldRow held(*other, id);
        person.expect(u"RECORD LOCKED: Unable to update record!"_s).title(u"Norvane"_s);
        EXPECT_FALSE(save(gDB, id, u"company"_s, u"Mine"_s));
        person.expect(
            u"RECORD LOCKED: Unable to Delete from %1(id=%2) !"_s.arg(gDB.CustomerTable()).arg(id));
        EXPECT_FALSE(gDB.DeleteRecord(id, gDB.CustomerTable()));
    }
    EXPECT_EQ(u"Acme"_s, company(id));
    EXPECT_TRUE(save(gDB, id, u"company"_s, u"Mine"_s));
}

TEST_F(Stations, DeletingAllAsksAgainUntilALockedRowIsFree)
{
    hurry(gDB);
    auto other = db.otherStation();
    auto held = std::make_unique<HeldRow>(*other, id);
    const QString message = u"RECORD LOCKED: Unable to Delete from "_s;
    person.expect(message);
    person.expect(message).meanwhile([&] { held.reset(); });
    gDB.DeleteAllRecords(id, gDB.CustomerTable(), u"rowid"_s);
    EXPECT_EQ(0, gDB.GetRecCount(gDB.CustomerTable(), u"rowid"_s));
}

TEST_F(Stations, TheLastSaveWins)
{
    auto other = db.otherStation();
    RecColl mine = record(u"_customer"_s, id);
    RecColl theirs = record(u"_customer"_s, id);
    ASSERT_TRUE(gDB.ReadRecord(mine));
    ASSERT_TRUE(other->ReadRecord(theirs));
    mine.setExisting(u"company"_s, u"Mine"_s);
    theirs.setExisting(u"notes"_s, u"theirs"_s);
    ASSERT_TRUE(gDB.SaveRecord(mine));
    ASSERT_TRUE(other->SaveRecord(theirs));
    EXPECT_EQ(u"Acme"_s, company(id));
    EXPECT_EQ(u"theirs"_s, db.stored(Table::Customer, id, u"notes"_s));
}

TEST_F(Stations, AnotherStationsRowsAreThereAtOnce)
{
    auto other = db.otherStation();
    for (int round = 0; round < 50; ++round) {
        RecColl fresh = other->NewCustomerRecColl();
        fresh.setExisting(u"company"_s, u"Row %1"_s.arg(round));
        ASSERT_TRUE(other->SaveRecord(fresh));
        const qint32 rowid = fresh.number(u"_rowid"_s);
        ASSERT_EQ(rowid, gDB.RecordExists(1, u"ROW %1"_s.arg(round), gDB.CustomerTable(),
                                          u"company"_s, u"rowid"_s));
        ASSERT_TRUE(gDB.DeleteRecord(rowid, gDB.CustomerTable()));
        ASSERT_FALSE(other->CheckIfRecExists(other->CustomerTable(), name, rowid, true));
    }
}

TEST_F(Stations, AnotherProcessTakesTurnsWithThisOne)
{
    Station remote(db.path());
    EXPECT_EQ(u"ok"_s, remote.ask(u"save %1 company Theirs & more"_s.arg(id)));
    EXPECT_EQ(u"Theirs & more"_s, gDB.GetCustomername(id));
    EXPECT_TRUE(save(gDB, id, u"company"_s, u"Ours"_s));
    EXPECT_EQ(u"ok Ours"_s, remote.ask(u"read nvncust.dbf %1 company"_s.arg(id)));

    EXPECT_EQ(u"ok"_s, remote.ask(u"setmark nvncust.dbf %1"_s.arg(id)));
    qint32 user = 0;
    QString station;
    EXPECT_TRUE(gDB.GetUnderEditInfo(gDB.CustomerTable(), name, id, user, station));
    EXPECT_EQ(u"REMOTE"_s, station);

    hurry(gDB);
    EXPECT_EQ(u"ok"_s, remote.ask(u"lockrow nvncust.dbf %1"_s.arg(id)));
    person.expect(u"RECORD LOCKED: Unable to update record!"_s);
    EXPECT_FALSE(save(gDB, id, u"company"_s, u"Mine"_s));
    EXPECT_EQ(u"ok"_s, remote.ask(u"unlock"_s));
    EXPECT_TRUE(save(gDB, id, u"company"_s, u"Mine"_s));

    EXPECT_EQ(u"ok"_s, remote.ask(u"delete nvncust.dbf %1"_s.arg(id)));
    person.expect(u"ROWID NOT FOUND: Unable to update record!"_s);
    RecColl gone = gDB.NewCustomerRecColl();
    gone.setExisting(u"_rowid"_s, id);
    EXPECT_FALSE(gDB.SaveRecord(gone));
}

TEST_F(Stations, ALockIsWaitedForAboutTenSecondsWithTheWindowAlive)
{
    Station remote(db.path());
    int repaints = 0;
    host().repaint = [&] { ++repaints; };
    ASSERT_EQ(u"ok"_s, remote.ask(u"lockrow nvncust.dbf %1"_s.arg(id)));
    QElapsedTimer timer;
    timer.start();
    person.expect(u"RECORD LOCKED: Unable to update record!"_s);
    EXPECT_FALSE(save(gDB, id, u"company"_s, u"Mine"_s));
    EXPECT_GE(timer.elapsed(), 8000);
    EXPECT_LE(timer.elapsed(), 12000);
    EXPECT_GT(repaints, 3);
    host().repaint = nullptr;
}

TEST_F(Stations, ADeadStationLeavesNoLock)
{
    Station remote(db.path());
    ASSERT_EQ(u"ok"_s, remote.ask(u"lockrow nvncust.dbf %1"_s.arg(id)));
    remote.kill();
    QElapsedTimer timer;
    timer.start();
    EXPECT_TRUE(save(gDB, id, u"company"_s, u"Mine"_s));
    EXPECT_LT(timer.elapsed(), 1000);
}

TEST_F(Stations, CountersGiveEveryIdentifierOnce)
{
    // Four processes find no counter at first, and then count on together.
    constexpr int processes = 4;
    constexpr int each = 2000;
    std::vector<std::unique_ptr<Station>> remotes;
    for (int i = 0; i < processes; ++i)
        remotes.push_back(std::make_unique<Station>(db.path()));
    for (const auto &remote : remotes)
        remote->send(u"nextid nvnissues.dbf %1"_s.arg(each));
    std::set<int> ids;
    for (const auto &remote : remotes) {
        const QString answer = remote->answer(90000);
        ASSERT_TRUE(answer.startsWith(u"ok ")) << qPrintable(answer);
        for (const QString &one : answer.mid(3).split(u','))
            ids.insert(one.toInt());
    }
    ASSERT_EQ(static_cast<std::size_t>(processes * each), ids.size());
    EXPECT_EQ(1000, *ids.begin());
    EXPECT_EQ(1000 + processes * each - 1, *ids.rbegin());
    EXPECT_EQ(1000 + processes * each, gDB.GetNextID(u"nvnissues.dbf"_s));
}
