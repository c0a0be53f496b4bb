// Single rows: uniqueness, existence, deletion, counts.
#include "DbTest.h"

using schema::Table;

namespace
{

class Rows : public DbTest
{
};

} // namespace

TEST_F(Rows, AValueIsUniqueWhenNoOtherRowHasAllOfIt)
{
    const qint32 anna = db.addUser(u"Anna"_s, {});
    const QString users = gDB.UserTable();
    EXPECT_TRUE(gDB.IsUniqueVal(anna, u"anna"_s, u"login"_s, users)); // its own
    EXPECT_FALSE(gDB.IsUniqueVal(-1, u"ANNA"_s, u"login"_s, users));
    EXPECT_TRUE(gDB.IsUniqueVal(-1, u"Ann"_s, u"login"_s, users)); // only a beginning
    EXPECT_TRUE(gDB.IsUniqueVal(-1, u"Annabel"_s, u"login"_s, users));
}

TEST_F(Rows, ARowIsFoundByNumberOrText)
{
    const qint32 id = db.addCustomer({{"company", u"M\u00fcller & S\u00f6hne"_s}});
    const QString path = gDB.CustomerTable();
    const QString idText = QString::number(id);
    EXPECT_EQ(id, gDB.RecordExists(2, idText, path, u"rowid"_s, u"rowid"_s));
    EXPECT_EQ(-1, gDB.RecordExists(2, u"999"_s, path, u"rowid"_s, u"rowid"_s));
    EXPECT_EQ(-1, gDB.RecordExists(2, u"none"_s, path, u"rowid"_s, u"rowid"_s));
    EXPECT_EQ(id,
              gDB.RecordExists(1, u"M\u00dcLLER & s\u00f6hne"_s, path, u"company"_s, u"rowid"_s));
    EXPECT_EQ(-1, gDB.RecordExists(2, idText, path, u"nosuchtag"_s, u"rowid"_s));

    EXPECT_TRUE(gDB.RecordExistsNoTag(2, idText, path, u"rowid"_s));
    EXPECT_TRUE(gDB.RecordExistsNoTag(1, u"M\u00fcller & S\u00f6hne"_s, path, u"company"_s));
    EXPECT_FALSE(gDB.RecordExistsNoTag(1, u"M\u00fcller"_s, path, u"company"_s));
    ASSERT_TRUE(gDB.DeleteRecord(id, path));
    EXPECT_FALSE(gDB.RecordExistsNoTag(2, idText, path, u"rowid"_s));
}

TEST_F(Rows, DeletedRowsLeaveTheTagsAndStayInTheFile)
{
    const QString path = gDB.IssuesActionsTable();
    for (int i = 0; i < 30; ++i)
        db.add(u"_issueaction"_s, {{"issueid", i % 3}});
    EXPECT_EQ(30, gDB.GetRecCount(path, u"issueid"_s));
    gDB.DeleteAllRecords(1, path, u"issueid"_s);
    EXPECT_EQ(20, gDB.GetRecCount(path, u"issueid"_s));
    EXPECT_EQ(20, gDB.GetRecCount(path, u"rowid"_s));
    EXPECT_EQ(30, gDB.GetRecCountFast(path, u"rowid"_s));
    gDB.DeleteAllRecords(1, path, u"issueid"_s);   // nothing left to delete
    gDB.DeleteAllRecords(2, path, u"nosuchtag"_s); // never by another tag
    EXPECT_EQ(20, gDB.GetRecCount(path, u"rowid"_s));

    EXPECT_TRUE(gDB.DeleteRecord(1000, path));
    EXPECT_TRUE(gDB.DeleteRecord(1000, path)); // gone counts as deleted
    EXPECT_EQ(1030, db.add(u"_issueaction"_s, {{"issueid", 1}})) << "identifiers are not reused";
}

TEST_F(Rows, ATableThatIsNotThereIsToldOncePerOperation)
{
    const QString path = db.file(u"nosuch.dbf"_s);
    for (int i = 0; i < 5; ++i) {
        person.expect(u"Unable to open: "_s + path)
            .kind(prompts::Kind::Critical)
            .title(u"Norvane"_s);
    }
    EXPECT_EQ(-1, gDB.GetRecCount(path, u"rowid"_s));
    EXPECT_EQ(-1, gDB.GetRecCountFast(path, u"rowid"_s));
    EXPECT_FALSE(gDB.DeleteRecord(1, path));
    EXPECT_FALSE(gDB.RecordExistsNoTag(2, u"1"_s, path, u"rowid"_s));
    EXPECT_FALSE(gDB.CanDeleteItem(1, path, u"psid"_s));
}

TEST_F(Rows, FlagsAreTrueForATOnly)
{
    EXPECT_TRUE(clsDB::TorF2Bool(u"t"_s));
    EXPECT_FALSE(clsDB::TorF2Bool(u"T "_s));
    EXPECT_EQ(u"Yes"_s, clsDB::TorF2Str(u"T"_s));
    EXPECT_EQ(u"No"_s, clsDB::TorF2Str(u""_s));
}
