// Edit marks: who is told about whom, and who may clear what.
#include "DbTest.h"

#include "db/Screens.h"

using schema::Table;

namespace
{

class EditMarks : public DbTest
{
protected:
    EditMarks()
    {
        screens().askUnderEdit = [this](const QString &user, const QString &station) {
            asked = user + u'@' + station;
            return goOn;
        };
    }
    ~EditMarks() override { screens() = {}; }

    bool notUnderEdit(clsDB &station, qint32 rowid)
    {
        asked.clear();
        return station.CheckIfRecNotUnderEdit(station.CustomerTable(), name, rowid);
    }
    void mark(clsDB &station, qint32 rowid, bool clear)
    {
        station.SetEditInfo(station.CustomerTable(), name, rowid, clear);
    }
    QString marked(qint32 rowid)
    {
        return db.stored(Table::Customer, rowid, u"underedit"_s) + u'@' +
               db.stored(Table::Customer, rowid, u"edtstation"_s);
    }

    const QString name = u"nvncust.dbf"_s;
    qint32 id = db.addCustomer({{"company", u"Acme"_s}});
    QString asked;
    bool goOn = false;
};

} // namespace

TEST_F(EditMarks, ARowNeverEditedIsFree)
{
    EXPECT_TRUE(notUnderEdit(gDB, id));
    EXPECT_TRUE(notUnderEdit(gDB, 999999)) << "a row that is not there is nobody's";
    EXPECT_EQ(QString(), asked);
    mark(gDB, 0, false); // a new form has no row yet
}

TEST_F(EditMarks, TheMarkNamesUserAndStationAndNotTheEditor)
{
    const QString before = db.stored(Table::Customer, id, u"lastmodtm"_s);
    machine.advance(std::chrono::hours(1));
    mark(gDB, id, false);
    EXPECT_EQ(u"1@STATION1"_s, marked(id));
    EXPECT_EQ(before, db.stored(Table::Customer, id, u"lastmodtm"_s));

    EXPECT_FALSE(notUnderEdit(gDB, id)) << "one's own old mark asks too";
    EXPECT_EQ(u"SYSOP@STATION1"_s, asked);
    goOn = true;
    EXPECT_TRUE(notUnderEdit(gDB, id));
    mark(gDB, id, true);
    EXPECT_EQ(u"0@"_s, marked(id));
}

TEST_F(EditMarks, OnlyTheOwnerOfAMarkClearsIt)
{
    const qint32 anna = db.addUser(u"anna"_s, {});
    auto other = db.otherStation(u"STATION2"_s, u"anna"_s, u"anna"_s);
    mark(gDB, id, false);
    mark(*other, id, true);
    EXPECT_EQ(u"1@STATION1"_s, marked(id));
    mark(*other, id, false); // taken over
    EXPECT_EQ(QString::number(anna) + u"@STATION2"_s, marked(id));
    mark(gDB, id, true);
    EXPECT_EQ(QString::number(anna) + u"@STATION2"_s, marked(id));
    mark(*other, id, true);
    EXPECT_EQ(u"0@"_s, marked(id));
}

TEST_F(EditMarks, AMarkOfAUserWhoHasGoneShowsNoName)
{
    const qint32 anna = db.addUser(u"anna"_s, {});
    {
        auto other = db.otherStation(u"STATION2"_s, u"anna"_s, u"anna"_s);
        mark(*other, id, false);
    }
    notUnderEdit(gDB, id);
    EXPECT_EQ(u"anna@STATION2"_s, asked);
    ASSERT_TRUE(gDB.DeleteRecord(anna, gDB.UserTable()));
    notUnderEdit(gDB, id);
    EXPECT_EQ(u"@STATION2"_s, asked);
}

TEST_F(EditMarks, ARowThatHasGoneIsToldWhenAskedFor)
{
    EXPECT_TRUE(gDB.CheckIfRecExists(gDB.CustomerTable(), name, id));
    ASSERT_TRUE(gDB.DeleteRecord(id, gDB.CustomerTable()));
    EXPECT_FALSE(gDB.CheckIfRecExists(gDB.CustomerTable(), name, id, true));
    person.expectText(
        u"Record cannot be accessed or no longer exists. It may have been deleted by another user."_s);
    EXPECT_FALSE(gDB.CheckIfRecExists(gDB.CustomerTable(), name, id));
    mark(gDB, id, false); // no error either
}
