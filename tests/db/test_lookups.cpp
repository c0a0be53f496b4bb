// Lookup lists and what shows customers elsewhere.
#include "DbTest.h"

namespace
{

class RecordingSink : public ListSink
{
public:
    void clear() override { items.clear(); }
    void addItem(const QString &text, qint32 id) override { items.append({text, id}); }
    qint32 currentId() const override { return current; }
    void selectId(qint32 id) override
    {
        for (const auto &[text, itemId] : items) {
            if (itemId == id)
                current = id;
        }
    }
    void beginLoad() override { ++frozen; }
    void endLoad() override { --frozen; }

    QStringList texts() const
    {
        QStringList all;
        for (const auto &[text, id] : items)
            all += text;
        return all;
    }

    QList<std::pair<QString, qint32>> items;
    qint32 current = -1;
    int frozen = 0;
};

class Lookups : public DbTest
{
protected:
    Lookups()
    {
        // A list of its own, so that what a new database starts with does not matter.
        beta = db.addListItem(900, u"beta"_s);
        alpha = db.addListItem(900, u"Alpha"_s);
        other = db.addListItem(901, u"Alpha"_s);
        gamma = db.addListItem(900, u"\u00c9t\u00e9"_s);
    }
    qint32 beta = 0, alpha = 0, other = 0, gamma = 0;
    RecordingSink sink;
};

} // namespace

TEST_F(Lookups, AListIsReadInAlphabeticalOrderAndKeepsItsSelection)
{
    sink.current = beta;
    gDB.LoadLV(sink, gDB.CategoryTable(), u"rowid"_s, u"desc"_s, 900, true);
    EXPECT_EQ((QStringList{u"Alpha"_s, u"beta"_s, u"\u00c9t\u00e9"_s}), sink.texts());
    EXPECT_EQ(beta, sink.current);
    gDB.LoadLV(sink, gDB.CategoryTable(), u"rowid"_s, u"desc"_s, 900);
    EXPECT_EQ(6, sink.items.size()) << "without the clear flag rows are added";
    gDB.LoadLV(sink, gDB.CategoryTable(), u"rowid"_s, u"desc"_s, 0, true);
    EXPECT_EQ(gDB.GetRecCount(gDB.CategoryTable(), u"rowid"_s), sink.items.size());
    EXPECT_EQ(0, sink.frozen);
    EXPECT_FALSE(machine.isBusy());
}

TEST_F(Lookups, AComboHasItsBlankFirst)
{
    gDB.LoadCbo(sink, gDB.CategoryTable(), u"rowid"_s, u"desc"_s, u"type"_s, 901, true, true,
                other);
    ASSERT_EQ(2, sink.items.size());
    EXPECT_EQ(std::make_pair(QString(), -1), sink.items[0]);
    EXPECT_EQ(other, sink.current);
    EXPECT_EQ(0, sink.frozen);
}

TEST_F(Lookups, UsersShowTheirFullNameAndLogin)
{
    db.add(u"_userinfo"_s, {{"login", u"jdoe"_s},
                            {"firstname", u"John"_s},
                            {"lastname", u"Doe"_s},
                            {"useractive", u"T"_s}});
    db.addUser(u"idle"_s, {}, false);
    gDB.LoadCbo_Users(sink, true, true);
    EXPECT_EQ((QStringList{u"Doe, John (jdoe)"_s, u"SYSOP"_s}), sink.texts());
    gDB.LoadCbo_Users(sink, true);
    EXPECT_EQ(3, sink.items.size());
    EXPECT_EQ(u"Doe, John"_s, gDB.GetUsername2(sink.items[1].second));
}

TEST_F(Lookups, AnEntryIsFoundByItsWholeTextAndType)
{
    EXPECT_EQ(alpha, gDB.CategoryExists(u"ALPHA"_s, 900));
    EXPECT_EQ(other, gDB.CategoryExists(u"alpha"_s, 901));
    EXPECT_EQ(gamma, gDB.CategoryExists(u"\u00e9T\u00c9"_s, 900));
    EXPECT_EQ(-1, gDB.CategoryExists(u"alph"_s, 900));
    EXPECT_EQ(-1, gDB.CategoryExists(u"alpha"_s, 902));
    EXPECT_EQ(u"beta"_s, gDB.GetCategoryDesc(beta));
    EXPECT_EQ(QString(), gDB.GetCategoryDesc(999999));
}

TEST_F(Lookups, LookupOrAddKeepsOneEntryOfEachText)
{
    const clsDB::Handle table = gDB.OpenTable(gDB.CategoryTable());
    EXPECT_EQ(0, gDB.LookupOrAddCategory({}, 900, table));
    EXPECT_EQ(beta, gDB.LookupOrAddCategory(u"Beta"_s, 900, table));
    const QString longText(60, u'x');
    const qint32 cut = gDB.LookupOrAddCategory(longText, 900, table);
    EXPECT_GT(cut, gamma);
    EXPECT_EQ(cut, gDB.LookupOrAddCategory(longText, 900, table));
    EXPECT_EQ(QString(40, u'x'), gDB.GetCategoryDesc(cut, table));
    EXPECT_EQ(-1, gDB.AddCategory({}, 900, table));
    EXPECT_EQ(-1, gDB.AddCategory(u"x"_s, 900, 0));
    gDB.CloseTable(table);
}

TEST_F(Lookups, AnEntryIsAddedOrRenamedWhereItIs)
{
    const clsDB::ListTable list{u"nvncat.dbf"_s, gDB.CategoryTable(), u"rowid"_s, u"desc"_s, 900};
    const qint32 added = gDB.AddUpdateItem(list, -1, u"New \u20ac"_s);
    EXPECT_GT(added, gamma);
    EXPECT_EQ(added, gDB.CategoryExists(u"NEW \u20ac"_s, 900));
    EXPECT_EQ(alpha, gDB.AddUpdateItem(list, alpha, u"Omega"_s));
    EXPECT_EQ(u"Omega"_s, gDB.GetCategoryDesc(alpha));
    EXPECT_EQ(-1, gDB.CategoryExists(u"alpha"_s, 900));
    EXPECT_EQ(0, gDB.AddUpdateItem(list, alpha, {}));
    ASSERT_TRUE(gDB.DeleteRecord(alpha, list.path));
    person.expect(u"Unable to update this item in table nvncat.dbf!"_s)
        .kind(prompts::Kind::Critical);
    EXPECT_EQ(0, gDB.AddUpdateItem(list, alpha, u"Psi"_s));
    gDB.LoadLV(sink, gDB.CategoryTable(), u"rowid"_s, u"desc"_s, 900, true);
    EXPECT_EQ((QStringList{u"beta"_s, u"New \u20ac"_s, u"\u00c9t\u00e9"_s}), sink.texts());
}

TEST_F(Lookups, AnItemInUseCannotBeDeleted)
{
    const qint32 id = db.addIssue({{"shortdesc", u"x"_s}, {"priority", beta}});
    const QString issues = gDB.IssuesTable();
    EXPECT_FALSE(gDB.CanDeleteItem(beta, issues, u"priority"_s));
    EXPECT_TRUE(gDB.CanDeleteItem(alpha, issues, u"priority"_s));
    EXPECT_FALSE(gDB.CanDeleteItem(1, issues, u"lastmodby"_s)) << "a field without a tag";
    EXPECT_TRUE(gDB.CanDeleteItem(2, issues, u"lastmodby"_s));
    EXPECT_TRUE(gDB.CanDeleteItem(beta, {}, {}));
    const clsDB::Handle table = gDB.OpenTable(issues);
    EXPECT_FALSE(gDB.CanDeleteItem(beta, issues, u"priority"_s, table));
    ASSERT_TRUE(gDB.DeleteRecord(id, issues, table));
    EXPECT_TRUE(gDB.CanDeleteItem(beta, issues, u"priority"_s, table));
    gDB.CloseTable(table);
    EXPECT_TRUE(gDB.CanDeleteItem(beta, issues, u"priority"_s));
}

TEST_F(Lookups, CustomersAreNamedAsTheDatabaseAsks)
{
    const qint32 both = db.addCustomer({{"firstname", u"John"_s},
                                        {"lastname", u"Doe"_s},
                                        {"company", u"Acme"_s},
                                        {"city", u"Boston"_s},
                                        {"state", alpha},
                                        {"emailname2", u"x@y"_s}});
    const qint32 firm = db.addCustomer({{"company", u"Acme"_s}});
    const qint32 one = db.addCustomer({{"lastname", u"Doe"_s}, {"emailname", u"a@b"_s}});
    EXPECT_EQ(u"Acme (Doe, John)"_s, gDB.GetCustomername(both));
    EXPECT_EQ(u"Acme"_s, gDB.GetCustomername(firm));
    EXPECT_EQ(u"Doe"_s, gDB.GetCustomername(one));
    EXPECT_EQ(QString(), gDB.GetCustomername(999999));
    EXPECT_EQ(u"Acme (Doe, John), Boston, Alpha"_s, gDB.GetCustomerDetail(both));
    EXPECT_EQ(u"x@y"_s, gDB.GetCustomerEmail(both));
    EXPECT_EQ(u"a@b"_s, gDB.GetCustomerEmail(one));
    gDB.SetParamValue(u"CUSTOMERNAME_DISPLAY"_s, u"1"_s);
    EXPECT_EQ(u"Doe, John"_s, gDB.GetCustomername(both));

    db.addSubscription({{"custid", both}, {"psid", alpha}});
    db.addSubscription({{"custid", both}, {"psid", beta}});
    EXPECT_TRUE(gDB.CustomerHasPS(both, beta));
    EXPECT_FALSE(gDB.CustomerHasPS(firm, beta));
    EXPECT_EQ(u"Alpha;beta"_s, gDB.CustomerPS(both));
    EXPECT_EQ(QString(), gDB.CustomerPS(firm));
}
