// Saving and reading whole records.
#include "DbTest.h"

#include "db/FieldText.h"

using schema::Table;

namespace
{

class Records : public DbTest
{
};

QString memoOf(qsizetype bytes)
{
    return QString(bytes, u'm');
}

} // namespace

TEST_F(Records, ANewRecordGetsItsIdentifierAndReadsBackWhole)
{
    RecColl saved = record(u"_customer"_s, -1);
    for (const schema::RecordField &field : schema::recordType(u"_customer"_s)->writes) {
        const bool isNumber = field.kind == schema::FieldKind::Integer;
        saved.add(QLatin1String(field.name),
                  isNumber ? QVariant(4711)
                           : QVariant(QString::fromLatin1(field.name) + u" \u00e4\u20ac"));
    }
    ASSERT_TRUE(gDB.SaveRecord(saved));
    EXPECT_EQ(1000, saved.number(u"_rowid"_s));

    RecColl read = record(u"_customer"_s, 1000);
    ASSERT_TRUE(gDB.ReadRecord(read));
    for (const QString &key : saved.keys()) {
        if (!key.startsWith(u'_')) {
            EXPECT_EQ(saved.text(key), read.text(key)) << qPrintable(key);
        }
    }
    RecColl stamp = record(u"_customer"_s, 1000);
    stamp.setExisting(u"_rectype"_s, u"_lastedit"_s);
    ASSERT_TRUE(gDB.ReadRecord(stamp));
    EXPECT_EQ(1, stamp.number(u"lastmodby"_s));
    EXPECT_EQ(u"20040314"_s, stamp.text(u"lastmoddt"_s));
    EXPECT_EQ(u"15:05:09"_s, stamp.text(u"lastmodtm"_s));
}

TEST_F(Records, ValuesThatDoNotFitTheirFieldAreCutOrLeftAlone)
{
    const qint32 id = db.addIssue({{"shortdesc", QString(100, u'x')},
                                   {"custid", u"not a number"_s},
                                   {"status", u" 12 "_s},
                                   {"submitdt", u"3/14/2004"_s},
                                   {"resolvedt", u"no date"_s},
                                   {"desc", u"emoji \U0001F600 gone"_s}});
    EXPECT_EQ(QString(80, u'x'), db.stored(Table::Issues, id, u"shortdesc"_s));
    EXPECT_EQ(u""_s, db.stored(Table::Issues, id, u"custid"_s));
    EXPECT_EQ(u"12"_s, db.stored(Table::Issues, id, u"status"_s));
    EXPECT_EQ(u"20040314"_s, db.stored(Table::Issues, id, u"submitdt"_s));
    EXPECT_EQ(u""_s, db.stored(Table::Issues, id, u"resolvedt"_s));
    EXPECT_TRUE(db.stored(Table::Issues, id, u"desc"_s).startsWith(u"emoji ?"_s));

    RecColl change = record(u"_issue"_s, id);
    ASSERT_TRUE(gDB.ReadRecord(change));
    change.setExisting(u"status"_s, u"twelve"_s);
    change.setExisting(u"submitdt"_s, u""_s);
    ASSERT_TRUE(gDB.SaveRecord(change));
    EXPECT_EQ(u"12"_s, db.stored(Table::Issues, id, u"status"_s));
    EXPECT_EQ(u""_s, db.stored(Table::Issues, id, u"submitdt"_s));
}

TEST_F(Records, AMemoReadsBackUpToItsLimit)
{
    const qint32 fits = db.addCustomer({{"company", u"A"_s}, {"notes", memoOf(32767)}});
    RecColl read = record(u"_customer"_s, fits);
    ASSERT_TRUE(gDB.ReadRecord(read));
    EXPECT_EQ(memoOf(32767), read.text(u"notes"_s));

    const qint32 tooLong = db.addCustomer({{"company", u"B"_s}, {"notes", memoOf(32768)}});
    RecColl cut = record(u"_customer"_s, tooLong);
    person
        .expect(u"Error #: -910\nUnexpected Information\nMemo entry too long to return in String "
                u"function. Try calling 'f4memoStrB'.\nField Name:\nNOTES"_s)
        .title(u"CodeBasic Error"_s)
        .kind(prompts::Kind::Critical);
    ASSERT_TRUE(gDB.ReadRecord(cut));
    EXPECT_EQ(QString(), cut.text(u"notes"_s));
}

TEST_F(Records, AMissingKeyEndsTheSaveAndChangesNothing)
{
    const qint32 id = db.addCustomer({{"company", u"Before"_s}, {"custom2", u"x"_s}});
    RecColl partial = record(u"_customer"_s, id);
    partial.add(u"custno"_s, u"77"_s);
    person.expect(u"\rclsDB_SaveRecord"_s).title(u"Error"_s);
    EXPECT_FALSE(gDB.SaveRecord(partial));
    EXPECT_EQ(u""_s, db.stored(Table::Customer, id, u"custno"_s));

    RecColl fresh = record(u"_customer"_s, -1);
    person.expect(u"'custno'"_s).title(u"Error"_s);
    EXPECT_FALSE(gDB.SaveRecord(fresh));
    EXPECT_EQ(1, gDB.GetRecCountFast(gDB.CustomerTable(), u"rowid"_s));
    // No lock is left: another station writes at once.
    auto other = db.otherStation();
    RecColl full = record(u"_customer"_s, id);
    ASSERT_TRUE(other->ReadRecord(full));
    EXPECT_TRUE(other->SaveRecord(full));
}

TEST_F(Records, ARowThatHasGoneIsTold)
{
    const qint32 id = db.addCustomer({{"company", u"A"_s}});
    RecColl open = record(u"_customer"_s, id);
    ASSERT_TRUE(gDB.ReadRecord(open));
    ASSERT_TRUE(gDB.DeleteRecord(id, gDB.CustomerTable()));

    person.expect(u"ROWID NOT FOUND: Unable to update record!"_s).kind(prompts::Kind::Critical);
    EXPECT_FALSE(gDB.SaveRecord(open));
    EXPECT_FALSE(gDB.SaveRecord(open, true)); // says nothing

    RecColl again = record(u"_customer"_s, id);
    person.expect(u"Unable to read row_id %1 from table %2"_s.arg(id).arg(gDB.CustomerTable()));
    EXPECT_FALSE(gDB.ReadRecord(again));
    EXPECT_FALSE(gDB.ReadRecord(again, true));
}

TEST_F(Records, AUserStartsWithTheLoginAsPassword)
{
    const qint32 id = db.addUser(u"Anna"_s, clsDB::GetDefaultPermissionsStr());
    EXPECT_EQ(u"616E6E61"_s, db.stored(Table::User, id, u"password"_s));

    RecColl change = record(u"_userinfo"_s, id);
    change.setExisting(u"_rectype"_s, u"_setpwd"_s);
    change.add(u"password"_s, u"SeCret"_s);
    ASSERT_TRUE(gDB.SaveRecord(change));
    EXPECT_EQ(u"secret"_s, gDB.GetUserPassword(u"ANNA"_s));

    RecColl edited = record(u"_userinfo"_s, id);
    ASSERT_TRUE(gDB.ReadRecord(edited));
    edited.setExisting(u"dept"_s, u"Sales"_s);
    ASSERT_TRUE(gDB.SaveRecord(edited)); // an update leaves the password
    EXPECT_EQ(u"secret"_s, gDB.GetUserPassword(u"anna"_s));

    change.setExisting(u"password"_s, QString());
    ASSERT_TRUE(gDB.SaveRecord(change)); // a reset
    EXPECT_EQ(u"anna"_s, gDB.GetUserPassword(u"anna"_s));
}

TEST_F(Records, ACollectionKeepsOrderIgnoresCaseAndRefusesDoubles)
{
    RecColl coll = gDB.NewCustomerRecColl();
    EXPECT_EQ(-1, coll.number(u"_ROWID"_s));
    EXPECT_TRUE(coll.setExisting(u"CustNo"_s, 12.5));
    EXPECT_FALSE(coll.setExisting(u"nosuch"_s, 1));
    EXPECT_EQ(u"12.5"_s, coll.text(u"custno"_s));
    EXPECT_EQ(u"CustNo"_s, coll.keys().last());
    coll.setExisting(u"company"_s, u"Acme"_s);
    ASSERT_TRUE(gDB.SaveRecord(coll));
    // Reading adds keys, so a collection that holds them cannot be read into.
    person.expect(u"\rclsDB_ReadRecord"_s).title(u"Error"_s);
    EXPECT_FALSE(gDB.ReadRecord(coll));
}

TEST_F(Records, AFolderThatRefusesTheCounterAddsNoRow)
{
    hurry(gDB);
    db.addCustomer({{"company", u"first"_s}});
    auto other = db.otherStation();
    const clsDB::Handle counters = other->OpenTable(other->LastIDTable());
    ASSERT_EQ(0, norvane::engine::d4seek(counters, "nvncust.dbf"));
    ASSERT_EQ(0, norvane::engine::d4lock(counters, norvane::engine::d4recNo(counters)));

    RecColl coll = gDB.NewCustomerRecColl();
    person.expect(u"RECORD LOCKED: Unable to get next id (locked)!"_s)
        .kind(prompts::Kind::Critical);
    EXPECT_FALSE(gDB.SaveRecord(coll));
    EXPECT_EQ(1, gDB.GetRecCountFast(gDB.CustomerTable(), u"rowid"_s));

    other->CloseTable(counters);
    coll.setExisting(u"_rowid"_s, -1);
    EXPECT_TRUE(gDB.SaveRecord(coll));
    EXPECT_EQ(1001, coll.number(u"_rowid"_s));
}
