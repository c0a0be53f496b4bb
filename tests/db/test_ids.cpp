// Identifiers and named parameters, and the labels made of them.
#include "DbTest.h"

#include "db/clsCustomLabels.h"
#include "db/TableUse.h"

#include <functional>
#include <limits>

namespace
{

class Ids : public DbTest
{
protected:
    static void setCounter(const QString &name, qint32 value)
    {
        TableUse rows(gDB, gDB.LastIDTable());
        ASSERT_TRUE(rows.seekText(name, u"tblname"_s));
        const RowLock lock(rows.handle());
        norvane::engine::f4assignLong(rows.field(u"lastid"_s), value);
        norvane::engine::d4flush(rows.handle());
    }
};

} // namespace

TEST_F(Ids, CountersStartAt1000EachForItself)
{
    EXPECT_EQ(1000, gDB.GetNextID(u"nvncust.dbf"_s));
    EXPECT_EQ(1001, gDB.GetNextID(u"nvncust.dbf"_s));
    EXPECT_EQ(1000, gDB.GetNextID(u"nvncust"_s)) << "a beginning of another counter's name";
    EXPECT_EQ(1000, gDB.GetNextID(u"nvncust_ps.dbf"_s));
    EXPECT_EQ(1002, gDB.GetNextID(u"NVNCUST.DBF"_s));
    TableUse rows(gDB, gDB.LastIDTable());
    ASSERT_TRUE(rows.seekText(u"nvncust.dbf"_s, u"tblname"_s));
    EXPECT_EQ(1003, rows.number(u"lastid"_s));
}

TEST_F(Ids, ACounterAtItsEndIsAnError)
{
    gDB.GetNextID(u"x.dbf"_s);
    setCounter(u"x.dbf"_s, std::numeric_limits<qint32>::max());
    person.expect(u"\rclsDB_GetNextID"_s).title(u"Error"_s);
    EXPECT_EQ(-1, gDB.GetNextID(u"x.dbf"_s));
    // No lock and no change is left behind.
    auto other = db.otherStation();
    person.expect(u"\rclsDB_GetNextID"_s).title(u"Error"_s);
    EXPECT_EQ(-1, other->GetNextID(u"x.dbf"_s));
}

TEST_F(Ids, AGarbledCounterGivesNoIdentifierThatMayBeInUse)
{
    gDB.GetNextID(u"x.dbf"_s);
    setCounter(u"x.dbf"_s, 7);
    person.expect(u"nvnid.dbf' is damaged"_s).kind(prompts::Kind::Critical);
    EXPECT_EQ(-1, gDB.GetNextID(u"x.dbf"_s));
}

TEST_F(Ids, ALostOrRestoredCounterNeverGivesANumberTwice)
{
    const QString customers = u"nvncust.dbf"_s;
    const qint32 first = db.addCustomer({{"company", u"One"_s}});
    const qint32 second = db.addCustomer({{"company", u"Two"_s}});
    const std::pair<const char *, std::function<void()>> losses[] = {
        {"restored", [&] { setCounter(customers, first); }},
        {"restored while the latest row was deleted",
         [&] {
             ASSERT_TRUE(gDB.DeleteRecord(second, gDB.CustomerTable()));
             setCounter(customers, second);
         }},
        {"garbled", [&] { setCounter(customers, 0); }},
        {"gone",
         [&] {
             TableUse rows(gDB, gDB.LastIDTable());
             ASSERT_TRUE(rows.seekText(customers, u"tblname"_s));
             const RowLock lock(rows.handle());
             norvane::engine::d4delete(rows.handle());
             norvane::engine::d4flush(rows.handle());
         }},
    };
    qint32 highest = second;
    for (const auto &[what, lose] : losses) {
        lose();
        // The number counts on from there, also where no row was stored with it.
        EXPECT_EQ(highest + 1, gDB.GetNextID(customers)) << what;
        EXPECT_EQ(highest + 2, db.addCustomer({{"company", u"More"_s}})) << what;
        highest += 2;
    }
    EXPECT_EQ(highest + 1, db.otherStation()->GetNextID(customers));
    setCounter(customers, highest + 50); // one that is ahead stays so
    EXPECT_EQ(highest + 50, gDB.GetNextID(customers));
}

TEST_F(Ids, ABlockIsNobodyElsesAndWhatIsLeftGoesBack)
{
    const QString customers = u"nvncust.dbf"_s;
    const auto other = db.otherStation();
    {
        const clsDB::IdBlock block(gDB, customers, 3);
        EXPECT_EQ(1000, gDB.GetNextID(customers));
        EXPECT_EQ(1000, gDB.GetNextID(u"nvncust_ps.dbf"_s)) << "another table's";
        EXPECT_EQ(1003, other->GetNextID(customers));
        EXPECT_EQ(1001, gDB.GetNextID(customers));
        EXPECT_EQ(1002, gDB.GetNextID(customers));
        EXPECT_EQ(1004, gDB.GetNextID(customers)) << "the next block";
    }
    EXPECT_EQ(1005, gDB.GetNextID(customers)) << "1005 and 1006 were not used";
    {
        const clsDB::IdBlock block(gDB, customers, 3);
        EXPECT_EQ(1006, gDB.GetNextID(customers));
        EXPECT_EQ(1009, other->GetNextID(customers));
    }
    EXPECT_EQ(1010, gDB.GetNextID(customers)) << "others have numbers behind those left over";
    {
        setCounter(customers, std::numeric_limits<qint32>::max() - 1);
        const clsDB::IdBlock block(gDB, customers, 3);
        person.expect(u"\rclsDB_GetNextID"_s).title(u"Error"_s);
        EXPECT_EQ(-1, gDB.GetNextID(customers));
    }
    EXPECT_EQ(std::numeric_limits<qint32>::max() - 1, gDB.GetNextID(customers));
}

TEST_F(Ids, ParametersIgnoreCaseAndKeepOneRow)
{
    EXPECT_EQ(QString(), gDB.GetParamValue(u"ENABLE_ISSUE_TEMPLATES"_s));
    EXPECT_TRUE(gDB.SetParamValue(u"Enable_Issue_Templates"_s, u"1"_s));
    EXPECT_TRUE(gDB.SetParamValue(u"ENABLE_ISSUE_TEMPLATES"_s, u" two \u20ac "_s));
    EXPECT_EQ(u"two \u20ac"_s, gDB.GetParamValue(u"enable_issue_templates"_s));
    EXPECT_EQ(1, gDB.GetRecCountFast(gDB.ParamTable(), u"sid"_s));
    EXPECT_TRUE(gDB.SetParamValue(u"ENABLE_ISSUE_TEMPLATES"_s, {}));
    EXPECT_EQ(QString(), gDB.GetParamValue(u"ENABLE_ISSUE_TEMPLATES"_s));
}

TEST_F(Ids, AParameterIsNotTakenForOneWhoseNameBeginsAlike)
{
    const QString shorter = clsDB::MakeCustomFieldParamName(u"nvncust.dbf"_s, u"emailname"_s);
    ASSERT_TRUE(gDB.SetParamValue(shorter + u'2', u"Other address"_s));
    EXPECT_EQ(QString(), gDB.GetParamValue(shorter));
    ASSERT_TRUE(gDB.SetParamValue(shorter, u"Address"_s));
    EXPECT_EQ(u"Other address"_s, gDB.GetParamValue(shorter + u'2'));
}

TEST_F(Ids, LabelsAreTheUsersElseTheirOwnWithOneColon)
{
    EXPECT_EQ(u"Tracking Number:"_s, CustomLabels.GetPSLabelName(u"trackno"_s, true));
    EXPECT_EQ(u"Category:"_s, CustomLabels.GetIssueLabelName(u"issuecat"_s, true));
    EXPECT_EQ(u"Category"_s, CustomLabels.GetCustomerLabelName(u"custcat"_s));
    EXPECT_EQ(QString(), CustomLabels.GetCustomerLabelName(u"notes"_s, true));
    EXPECT_EQ(QString(), CustomLabels.GetCurrentLabelName(u"nvnrep.dbf"_s, u"title"_s));

    gDB.SetParamValue(u"nvncust.dbf_custom1"_s, u"Region:"_s);
    EXPECT_EQ(u"Region:"_s, CustomLabels.GetCustomerLabelName(u"custom1"_s, true));
    EXPECT_EQ(u"Custom 1"_s, CustomLabels.GetIssueLabelName(u"custom1"_s));
    gDB.SetParamValue(u"nvncust.dbf_custom1"_s, {});
    EXPECT_EQ(u"Custom 1:"_s, CustomLabels.GetCustomerLabelName(u"custom1"_s, true));
}
