// Which subscriptions the report of products and services lists.
#include "DbTest.h"

#include "db/report/ProductReportRun.h"

namespace
{

class ProductReportRunning : public DbTest
{
protected:
    QStringList numbers(const ProductReportRun::Criteria &criteria)
    {
        ReportTable table;
        table.columns = ProductReportRun::columns();
        count = ProductReportRun(criteria).run(table, [this](qint32) { return --most > 0; });
        QStringList found;
        for (const ReportTable::Row &row : table.rows)
            found.append(row.cells.value(9));
        found.sort();
        last = table;
        return found;
    }

    int most = std::numeric_limits<int>::max();
    std::optional<qint32> count;
    ReportTable last;
};

} // namespace

TEST_F(ProductReportRunning, AContractThatEndsTodayIsActiveAndSoIsOneWithoutEnd)
{
    const qint32 hosting = db.addListItem(2, u"Hosting"_s), mail = db.addListItem(2, u"Mail"_s);
    const qint32 yearly = db.addListItem(4, u"By the year"_s);
    const qint32 customer = db.addCustomer({{"lastname", u"Berg"_s}, {"company", u"Acme"_s}});
    const auto add = [&](const char *number, qint32 psid, const char *end, const char *custom) {
        return db.addSubscription({{"custid", customer},
                                   {"psid", psid},
                                   {"contno", number},
                                   {"conttype", yearly},
                                   {"dateterm", end},
                                   {"custom1", custom},
                                   {"custom2", "same"}});
    };
    add("today", mail, "3/14/2004", "deep BLUE sea");
    add("yesterday", mail, "3/13/2004", "blue");
    add("open", hosting, "", "");
    const QStringList all{u"open"_s, u"today"_s, u"yesterday"_s};
    EXPECT_EQ(all, numbers({}));
    EXPECT_EQ(3, count);
    ASSERT_EQ(14, last.columns.size());
    const ReportTable::Row &row = last.rows.front();
    EXPECT_EQ(u"Acme (Berg)"_s, row.cells[2]);
    EXPECT_EQ(QString::number(customer), row.cells[3]);
    EXPECT_EQ(u"By the year"_s, row.cells[11]);

    EXPECT_EQ((QStringList{u"open"_s, u"today"_s}), numbers({.isActive = 1}));
    EXPECT_EQ(u"Yes"_s, last.rows.front().cells[4]);
    EXPECT_EQ(QStringList{u"yesterday"_s}, numbers({.isActive = 0}));
    EXPECT_EQ(u"NO"_s, last.rows.front().cells[4]);
    EXPECT_EQ((QStringList{u"today"_s, u"yesterday"_s}), numbers({.productServiceId = mail}));
    EXPECT_EQ((QStringList{u"today"_s, u"yesterday"_s}), numbers({.custom1 = u"Blue"_s}));
    EXPECT_EQ(QStringList{u"today"_s}, numbers({.custom1 = u"deep"_s, .custom2 = u"SAME"_s}));
    EXPECT_EQ(QStringList(), numbers({.custom1 = u"deep"_s, .custom2 = u"other"_s}));
    EXPECT_EQ(0, count);
    most = 2;
    EXPECT_EQ(2, numbers({}).size()) << "given up after the second";
}
