// Which records a report shows, what it says of each, and in which order.
#include "DbTest.h"

#include "common/base/clsSystem.h"
#include "db/report/ReportRun.h"

#include <random>

namespace
{

class ReportRunning : public DbTest
{
protected:
    // Runs the definition to its end and sorts it as it is delivered.
    ReportTable run(const QString &type, const QString &definition)
    {
        parser.InitFromRptDef(definition);
        ReportTable table;
        table.columns = ReportRun::columns(parser);
        lookedAt = 0;
        count = ReportRun(type, parser).run(table, [this](qint32) { return ++lookedAt < most; });
        table.deliver(parser.m_bGroupByFirstCol);
        return table;
    }
    static QList<qint32> rowids(const ReportTable &table)
    {
        QList<qint32> ids;
        for (const ReportTable::Row &row : table.rows)
            ids.append(row.rowid);
        return ids;
    }
    static QString definition(const QString &columns, const QString &ids = {},
                              const QString &operators = {}, const QString &values = {})
    {
        return u"0\n" % columns % u'\n' % ids % u'\n' % operators % u'\n' % values % u"\n0\n1";
    }

    clsRepDefParser parser;
    int most = std::numeric_limits<int>::max();
    int lookedAt = 0;
    std::optional<qint32> count;
};

} // namespace

TEST_F(ReportRunning, EachKindOfValueIsShownAsAPersonReadsIt)
{
    const qint32 oregon = db.addListItem(3, u"Oregon Territory"_s);
    const qint32 hosting = db.addListItem(2, u"Hosting"_s), mail = db.addListItem(2, u"Mail"_s);
    const qint32 customer = db.addCustomer(
        {{"company", u"Acme"_s}, {"lastname", u"Doe"_s}, {"city", u"Salem"_s}, {"state", oregon}});
    db.addSubscription({{"custid", customer}, {"psid", hosting}});
    db.addSubscription({{"custid", customer}, {"psid", mail}});
    ReportTable table = run(u"C"_s, definition(u"101~105~112~123~124"_s));
    ASSERT_EQ(1, table.rows.size());
    EXPECT_EQ((QStringList{QString::number(customer), u"Doe"_s, u"Oregon Territory"_s,
                           u"Hosting;Mail"_s, gDB.GetUsername2(gDB.LoginID())}),
              table.rows[0].cells);

    const qint32 issue = db.addIssue({{"custid", customer},
                                      {"psid", mail},
                                      {"shortdesc", u"No mail"_s},
                                      {"submitdt", u"20260203"_s},
                                      {"assignedto", gDB.LoginID()}});
    table = run(u"I"_s, definition(u"309~302~303~304~308~310"_s));
    ASSERT_EQ(1, table.rows.size());
    EXPECT_EQ(issue, table.rows[0].rowid);
    EXPECT_EQ((QStringList{clsSystem::DBDateToDislayDate(u"20260203"_s),
                           u"Acme (Doe), Salem, Oregon Territory"_s, u"Mail"_s, u"No mail"_s,
                           gDB.GetUsername2(gDB.LoginID()), QString()}),
              table.rows[0].cells);
    EXPECT_EQ(u"Date Submitted"_s, table.columns[0].heading);
}

TEST_F(ReportRunning, CriteriaAreTestedTogetherAndTheFirstIsServedByItsTag)
{
    const qint32 status = db.addListItem(101, u"Waiting"_s), other = db.addListItem(101, u"Done"_s);
    const qint32 high = db.addListItem(102, u"Sky"_s), low = db.addListItem(102, u"Ground"_s);
    QList<qint32> wanted;
    for (int i = 0; i < 40; ++i) {
        const bool waits = i % 4 == 0;
        const bool isHigh = i % 3 == 0;
        const qint32 id = db.addIssue(
            {{"custid", 1}, {"status", waits ? status : other}, {"priority", isHigh ? high : low}});
        if (waits && !isHigh)
            wanted.append(id);
    }
    const auto text = [](qint32 id) { return QString::number(id); };
    EXPECT_EQ(wanted, rowids(run(u"I"_s, definition(u"301"_s, u"402~401"_s, u"#~="_s,
                                                    text(high) % u'~' % text(status)))));
    EXPECT_EQ(10, lookedAt) << "the tag of the status, not all issues";
    EXPECT_EQ(30, run(u"I"_s, definition(u"301"_s, u"401"_s, u"#"_s, text(status))).rows.size());
    EXPECT_EQ(40, lookedAt);
    // What cannot be tested has no effect: no number, no known operator, a column to display.
    EXPECT_EQ(
        40, run(u"I"_s, definition(u"301"_s, u"401~401~309"_s, u"=~<~#"_s, u"x~1~" % text(status)))
                .rows.size());
    EXPECT_EQ(0, run(u"I"_s, definition(u"301"_s, u"401"_s, u"="_s, u"-7"_s)).rows.size());
    EXPECT_EQ(0, count);
}

TEST_F(ReportRunning, CustomersWithAndWithoutAProduct)
{
    const qint32 hosting = db.addListItem(2, u"Hosting"_s);
    const qint32 with = db.addCustomer({{"lastname", u"With"_s}});
    const qint32 without = db.addCustomer({{"lastname", u"Without"_s}});
    db.addSubscription({{"custid", with}, {"psid", hosting}});
    const QString value = QString::number(hosting);
    EXPECT_EQ(QList<qint32>{with},
              rowids(run(u"C"_s, definition(u"105"_s, u"204"_s, u"="_s, value))));
    EXPECT_EQ(QList<qint32>{without},
              rowids(run(u"C"_s, definition(u"105"_s, u"204"_s, u"#"_s, value))));
}

TEST_F(ReportRunning, CancelKeepsWhatWasFound)
{
    for (int i = 0; i < 10; ++i)
        db.addCustomer({{"lastname", QString(QChar(u'J' - i))}});
    most = 4;
    const ReportTable table = run(u"C"_s, definition(u"105"_s));
    EXPECT_EQ(4, count);
    EXPECT_EQ(u"A"_s, table.cell(0, 0)) << "the walk goes by last name";
}

TEST_F(ReportRunning, WhatTheCatalogueSaysWrongIsToldOnce)
{
    for (int i = 0; i < 3; ++i)
        db.addCustomer({{"lastname", u"Doe"_s}});
    parser.InitFromRptDef(definition(u"105~106~107"_s));
    ReportTable table;
    const auto go = [](qint32) { return true; };
    parser.m_RptCols[1].m_sFieldname = u"nosuch"_s;
    person.expect(u"no field nosuch"_s);
    EXPECT_EQ(3, ReportRun(u"C"_s, parser).run(table, go));
    EXPECT_EQ((QStringList{u"Doe"_s, QString(), QString()}), table.rows[0].cells);

    parser.m_RptCols[1].m_sTablename = u"nvnuser.dbf"_s;
    person.expect(u"Invalid table name found in the report column table!"_s)
        .kind(prompts::Kind::Critical);
    table.rows.clear();
    EXPECT_EQ(3, ReportRun(u"C"_s, parser).run(table, go));
    EXPECT_EQ(QStringList{u"Doe"_s}, table.rows[0].cells) << "the row ends there";

    person.expect(u"Invalid report type!"_s).kind(prompts::Kind::Critical);
    EXPECT_EQ(std::nullopt, ReportRun(u"Z"_s, parser).run(table, go));
}

TEST(ReportTables, SortNumberAndSuppress)
{
    FakeHost machine;
    ReportTable table;
    table.columns = {{u"Row"_s, u"I"_s, ReportTable::RowNumberColumn},
                     {u"Text"_s, u"S"_s, 1},
                     {u"Number"_s, u"I"_s, 2},
                     {u"Date"_s, u"D"_s, 3}};
    const auto add = [&](const QString &text, const QString &number, const QString &date) {
        const auto id = static_cast<qint32>(table.rows.size() + 1);
        table.rows.push_back({id, {QString(), text, number, date}});
    };
    add(u"beta"_s, u"100000"_s, u"2/1/2026"_s);
    add(u"Alpha"_s, u"9"_s, QString());
    add(u"alpha"_s, u"-3"_s, u"12/31/2025"_s);
    add(u"\u00e9clair"_s, QString(), u"1/15/2026"_s);
    const auto order = [&](std::size_t column) {
        table.sortBy(column);
        QList<qint32> ids;
        for (const ReportTable::Row &row : table.rows)
            ids.append(row.rowid);
        return ids;
    };
    EXPECT_EQ(1, table.firstDataColumn());
    EXPECT_EQ((QList<qint32>{3, 4, 2, 1}), order(2));
    EXPECT_EQ((QList<qint32>{2, 3, 4, 1}), order(3)) << "no date comes first";
    EXPECT_EQ((QList<qint32>{2, 3, 1, 4}), order(1)) << "letter case does not count";
    table.numberRows();
    EXPECT_EQ(u"4"_s, table.cell(3, 0));
    order(2);
    EXPECT_EQ(u"2"_s, table.cell(0, 0)) << "the numbers travel with their rows";
    EXPECT_EQ((QList<qint32>{2, 3, 1, 4}), order(0));

    table.rows[1].cells[1] = u"Alpha"_s;
    table.elimRepeatingValues(1);
    EXPECT_EQ(QString(), table.cell(1, 1));
    EXPECT_EQ(u"beta"_s, table.cell(2, 1));
}
