// The text of a report's definition, and the catalogue of columns it names.
#include "DbTest.h"

#include "db/report/clsRepDefParser.h"

#include <random>

namespace
{

const QString Example = u"1\n112~103~107\n201~203\n=~#\n10~17\n1\n0"_s;

QList<qint32> columns(const clsRepDefParser &definition)
{
    QList<qint32> ids;
    for (const clsRepDispCol &column : definition.m_RptCols)
        ids.append(column.m_nColID);
    return ids;
}

QStringList criteria(const clsRepDefParser &definition)
{
    QStringList all;
    for (const clsRepFilter &filter : definition.m_RptFilters)
        all.append(QString::number(filter.m_nColID) % filter.m_sOper % filter.m_sVal);
    return all;
}

class ReportDefinition : public DbTest
{
protected:
    clsRepDefParser definition;
};

} // namespace

TEST_F(ReportDefinition, ItsTextIsReadAndWrittenBack)
{
    definition.InitFromRptDef(Example);
    EXPECT_EQ((QList<qint32>{112, 103, 107}), columns(definition));
    EXPECT_EQ((QStringList{u"201=10"_s, u"203#17"_s}), criteria(definition));
    EXPECT_TRUE(definition.m_bGroupByFirstCol);
    EXPECT_TRUE(definition.m_bShowRowNum);
    EXPECT_FALSE(definition.m_bLandscape);
    EXPECT_EQ(u"Salutation"_s, definition.m_RptCols[1].m_sName);
    EXPECT_EQ(Example, definition.GetRptDefBuffer());

    QString old = Example;
    definition.InitFromRptDef(old.replace(u'~', QChar(254)));
    EXPECT_EQ(Example, definition.GetRptDefBuffer()) << "the old delimiter goes with the next save";
    definition.InitFromRptDef(Example + u"\nan eighth line"_s);
    EXPECT_EQ(Example, definition.GetRptDefBuffer());
}

TEST_F(ReportDefinition, DamageLeavesOutWhatItHits)
{
    const auto read = [&](const QString &text) -> const clsRepDefParser & {
        definition.InitFromRptDef(text);
        return definition;
    };
    for (const QString &few : {u""_s, u"1\n101\n\n\n\n1"_s, u"1"_s}) {
        EXPECT_TRUE(columns(read(few)).isEmpty());
        EXPECT_TRUE(definition.m_bLandscape);
        EXPECT_FALSE(definition.m_bGroupByFirstCol);
    }
    EXPECT_EQ((QList<qint32>{101, 102}), columns(read(u" 1 \n 101 ~~x~ 102\n\n\n\nTrue\n1"_s)));
    EXPECT_TRUE(definition.m_bGroupByFirstCol) << "blanks around a flag do not count";
    EXPECT_FALSE(definition.m_bShowRowNum) << "only 1 is on";

    EXPECT_TRUE(criteria(read(u"0\n101\n201~202\n=\n1~2\n1\n1"_s)).isEmpty());
    EXPECT_EQ(1, columns(definition).size()) << "lists of unequal length lose the criteria only";
    EXPECT_EQ((QStringList{u"202#x"_s}), criteria(read(u"0\n101\nabc~202\n=~#\n1~x\n1\n1"_s)));
    EXPECT_TRUE(columns(read(u"0\n99999999999~1e400\n\n\n\n1\n1"_s)).isEmpty());

    read(u"0\n4711\n\n\n\n1\n1"_s); // a column that the catalogue does not have
    EXPECT_EQ((QList<qint32>{4711}), columns(definition));
    EXPECT_EQ(QString(), definition.m_RptCols[0].m_sName);
}

// Whatever the text, what was understood survives being written and read again.
TEST_F(ReportDefinition, AnyTextIsReadToSomethingThatStays)
{
    std::mt19937 random(7);
    const QString alphabet = u"0123456789~~~\n\n\n\n=#- .x"_s;
    for (int round = 0; round < 3000; ++round) {
        QString text = round % 2 ? Example : QString();
        for (int change = 0; change < 12; ++change) {
            const auto at = static_cast<qsizetype>(random() % (text.size() + 1));
            text.insert(at, alphabet[static_cast<qsizetype>(random() % alphabet.size())]);
        }
        definition.InitFromRptDef(text);
        const QString once = definition.GetRptDefBuffer();
        ASSERT_EQ(6, once.count(u'\n'));
        const QList<qint32> ids = columns(definition);
        definition.InitFromRptDef(once);
        ASSERT_EQ(ids, columns(definition)) << text.toStdString();
        ASSERT_EQ(once, definition.GetRptDefBuffer()) << text.toStdString();
    }
}

TEST_F(ReportDefinition, ACriterionIsTakenOutOfWhatTheEditorShows)
{
    struct Case {
        QString shown, oper, value;
    };
    for (const Case &c :
         {Case{u"Status # 'Closed' [17]"_s, u"#"_s, u"17"_s},
          Case{u"State = 'O'Hara [x] = # [3]' [291]"_s, u"="_s, u"291"_s},
          Case{u"Item # = 'A' [5]"_s, u"#"_s, u"5"_s}, Case{u"Bob's # = 'A' [5]"_s, u"="_s, u"5"_s},
          Case{u"Status = 'Closed' [17] "_s, u"="_s, u" ]71"_s}}) {
        definition.Init(false, true, false);
        definition.AddFilter(201, c.shown);
        EXPECT_EQ(c.oper, definition.m_RptFilters[0].m_sOper) << c.shown.toStdString();
        EXPECT_EQ(c.value, definition.m_RptFilters[0].m_sVal) << c.shown.toStdString();
        EXPECT_EQ(1, definition.m_RptFilters[0].m_udRepDispCol.m_nCatType);
    }
}

TEST_F(ReportDefinition, TheCatalogueGivesColumnsByPlaceUnderTheirCustomNames)
{
    class Sink : public ListSink
    {
    public:
        void clear() override { texts.clear(), ids.clear(); }
        void addItem(const QString &text, qint32 id) override { texts += text, ids += id; }
        qint32 currentId() const override { return -1; }
        void selectId(qint32) override {}
        QStringList texts;
        QList<qint32> ids;
    } list;
    gDB.SetParamValue(u"nvncust.dbf_state"_s, u"Region:"_s);
    gDB.SetParamValue(u"nvncust.dbf_city"_s, u":"_s);

    gDB.LBLoadRptColumns(list, u"C"_s, u"D"_s);
    ASSERT_GE(list.ids.size(), 20);
    EXPECT_EQ(101, list.ids.front());
    EXPECT_TRUE(list.texts.contains(u"Region"_s));
    EXPECT_TRUE(list.texts.contains(u"City"_s)) << "a colon alone is no name";
    EXPECT_FALSE(list.texts.contains(u"State"_s));
    EXPECT_EQ(u"State"_s, gDB.RptColumnName(112)) << "the catalogue's own label";

    gDB.LBLoadRptColumns(list, u"I"_s, u"F"_s);
    for (const qint32 id : list.ids)
        EXPECT_GT(gDB.RptFilterGetCatType(id), 0);
    EXPECT_EQ(0, gDB.RptFilterGetCatType(4711));
    EXPECT_EQ(QString(), gDB.RptColumnName(4711));
}

// A wrong row of the catalogue would only be met by the person who uses that column.
TEST_F(ReportDefinition, EveryRowOfTheCatalogueFitsTheTables)
{
    norvane::engine::Handle customers = gDB.OpenTable(gDB.CustomerTable());
    norvane::engine::Handle issues = gDB.OpenTable(gDB.IssuesTable());
    int rows = 0;
    for (qint32 id = 1; id < 1000; ++id) {
        clsRepDispCol column;
        column.Init(id);
        if (column.m_sRptType.isEmpty())
            continue;
        ++rows;
        SCOPED_TRACE(id);
        const bool ofCustomers = column.m_sRptType == u"C";
        const norvane::engine::Handle table = ofCustomers ? customers : issues;
        EXPECT_EQ(ofCustomers ? u"nvncust.dbf"_s : u"nvnissues.dbf"_s, column.m_sTablename);
        const std::string field = column.m_sFieldname.toStdString();
        EXPECT_TRUE(column.m_sDataType == u"X" || column.m_sDataType == u"P" ||
                    norvane::engine::d4field(table, field) > 0);
        if (column.m_sPurpose == u"F" && column.m_sDataType == u"L") {
            EXPECT_GT(norvane::engine::d4tag(table, field), 0) << "filters go by the tag";
        }
        EXPECT_EQ(column.m_sPurpose == u"F", column.m_nCatType > 0);
    }
    EXPECT_GT(rows, 40);
    gDB.CloseTable(customers);
    gDB.CloseTable(issues);
}

TEST_F(ReportDefinition, ACopyIsANewReportWithTheSameDefinition)
{
    const qint32 original = db.add(u"_rptdef"_s, {{"title", u"Telephones"_s},
                                                  {"type", u"C"_s},
                                                  {"def", Example},
                                                  {"notes", u"For the board"_s}});
    const qint32 copy = gDB.CopyReport(original);
    ASSERT_GT(copy, original);
    const auto stored = [&](const QString &field) {
        return db.stored(schema::Table::Report, copy, field);
    };
    EXPECT_EQ(u"Copy of Telephones"_s, stored(u"title"_s));
    EXPECT_EQ(Example, stored(u"def"_s));
    EXPECT_EQ(u"For the board"_s, stored(u"notes"_s));
    person.expect(u"Unable to read row_id 4711"_s);
    EXPECT_LT(gDB.CopyReport(4711), 1);
}
