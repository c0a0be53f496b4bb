#include "db/report/ReportRun.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Numbers.h"
#include "common/base/Prompts.h"
#include "db/CustomerLists.h"
#include "db/FieldText.h"
#include "db/search/ShownNames.h"
#include "db/TableUse.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>

using norvane::engine::d4deleted;
using norvane::engine::f4long;

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(ReportRun)
};

std::optional<qint32> criterionValue(const clsRepFilter &filter)
{
    const std::optional<double> value = NumberInText(filter.m_sVal);
    return value ? RoundToLong(*value) : std::nullopt;
}

QString fileOf(schema::Table table)
{
    return schema::table(table).dataFile();
}

} // namespace

// All tables that a report may read, open as long as it runs.
class ReportRun::Tables
{
public:
    explicit Tables(const QString &type)
        : main(gDB, type == u"C" ? gDB.CustomerTable() : gDB.IssuesTable())
    {
    }

    bool allOpen() const { return main && customers && users && categories && subscriptions; }

    TableUse main; // whose records are walked; no look-up moves it
    TableUse customers{gDB, gDB.CustomerTable()};
    TableUse users{gDB, gDB.UserTable()};
    TableUse categories{gDB, gDB.CategoryTable()};
    TableUse subscriptions{gDB, gDB.Customers2PSTable()};
};

// What a record must be to be shown.
class ReportRun::Criteria
{
public:
    Criteria(Tables &tables, const clsRepDefParser &definition);

    bool FiltersPassed(qint32 rowid) const;

private:
    struct Criterion {
        clsDB::Handle field; // 0: the product or service is among those that the customer holds
        qint32 value;
        bool isNot;
    };

    Tables &m_tables;
    std::vector<Criterion> m_criteria;
};

// Only lookup fields and products can be tested; what else a definition names has no effect.
ReportRun::Criteria::Criteria(Tables &tables, const clsRepDefParser &definition) : m_tables(tables)
{
    for (const clsRepFilter &filter : definition.m_RptFilters) {
        const clsRepDispCol &column = filter.m_udRepDispCol;
        const std::optional<qint32> value = criterionValue(filter);
        const bool isNot = filter.m_sOper == u"#";
        if (!value || (!isNot && filter.m_sOper != u"="))
            continue;
        if (column.m_sDataType == u"P")
            m_criteria.push_back({0, *value, isNot});
        if (column.m_sDataType != u"L")
            continue;
        const clsDB::Handle field = tables.main.field(column.m_sFieldname);
        if (field > 0) // else that will be told when the table is closed
            m_criteria.push_back({field, *value, isNot});
    }
}

bool ReportRun::Criteria::FiltersPassed(qint32 rowid) const
{
    return std::all_of(m_criteria.begin(), m_criteria.end(), [&](const Criterion &criterion) {
        const bool is = criterion.field > 0 ? f4long(criterion.field) == criterion.value
                                            : gDB.CustomerHasPS(rowid, criterion.value,
                                                                m_tables.subscriptions.handle());
        return is != criterion.isNot;
    });
}

// The texts of a row's cells.
class ReportRun::Cells
{
public:
    Cells(Tables &tables, const QString &type, const clsRepDefParser &definition);

    QStringList of(qint32 rowid);

private:
    struct Source {
        QChar letter;
        clsDB::Handle field = 0; // 0: empty cells, but for a letter that needs none
    };

    bool addSource(const clsRepDispCol &column, const QString &mainFile);
    QString text(const Source &source, qint32 rowid);
    const QString &user(qint32 rowid);

    Tables &m_tables;
    std::vector<Source> m_sources;
    bool m_numbered;
    CategoryNames m_categories;
    CustomerDetails m_customers;
    QHash<qint32, QString> m_users;
    QHash<QString, QString> m_dates;
};

ReportRun::Cells::Cells(Tables &tables, const QString &type, const clsRepDefParser &definition)
    : m_tables(tables),
      m_numbered(definition.m_bShowRowNum),
      m_categories(gDB, tables.categories.handle()),
      m_customers(tables.customers.handle(), m_categories)
{
    const QString mainFile = fileOf(type == u"C" ? schema::Table::Customer : schema::Table::Issues);
    for (const clsRepDispCol &column : definition.m_RptCols) {
        if (!addSource(column, mainFile))
            return; // the rows end here
    }
}

bool ReportRun::Cells::addSource(const clsRepDispCol &column, const QString &mainFile)
{
    const QString table = column.m_sTablename.toLower();
    if (table != fileOf(schema::Table::Customer) && table != fileOf(schema::Table::Issues)) {
        prompts::critical(Words::tr("Invalid table name found in the report column table!"));
        return false;
    }
    Source source{column.m_sDataType.isEmpty() ? QChar() : column.m_sDataType.front()};
    // The other table does not move with this one: it has nothing to say about a row.
    if (!column.m_sFieldname.isEmpty() && table == mainFile)
        source.field = m_tables.main.field(column.m_sFieldname);
    m_sources.push_back(source);
    return true;
}

QStringList ReportRun::Cells::of(qint32 rowid)
{
    QStringList cells;
    cells.reserve(static_cast<qsizetype>(m_sources.size()) + 1);
    if (m_numbered)
        cells.append(QString());
    for (const Source &source : m_sources)
        cells.append(text(source, rowid));
    return cells;
}

const QString &ReportRun::Cells::user(qint32 rowid)
{
    auto known = m_users.constFind(rowid);
    if (known == m_users.constEnd())
        known = m_users.insert(rowid, gDB.GetUsername2(rowid, m_tables.users.handle()));
    return *known;
}

QString ReportRun::Cells::text(const Source &source, qint32 rowid)
{
    if (source.letter == u'X')
        return gDB.CustomerPS(rowid, m_tables.subscriptions.handle(), m_tables.categories.handle());
    if (source.field < 1)
        return {};
    switch (source.letter.unicode()) {
    case u'S':
        return clsSystem::Trim(FieldText(source.field));
    case u'I':
        return QString::number(f4long(source.field));
    case u'D': {
        const QString stored = clsSystem::Trim(FieldText(source.field));
        auto known = m_dates.constFind(stored);
        if (known == m_dates.constEnd())
            known = m_dates.insert(stored, clsSystem::DBDateToDislayDate(stored));
        return *known;
    }
    case u'L':
        return m_categories.of(f4long(source.field));
    case u'C':
        return m_customers.of(f4long(source.field));
    case u'U':
        return user(f4long(source.field));
    default:
        return {};
    }
}

ReportRun::ReportRun(QString type, const clsRepDefParser &definition)
    : m_type(std::move(type)), m_definition(definition)
{
}

std::vector<ReportTable::Column> ReportRun::columns(const clsRepDefParser &definition)
{
    std::vector<ReportTable::Column> columns;
    if (definition.m_bShowRowNum)
        columns.push_back({Words::tr("Row"), QStringLiteral("I"), ReportTable::RowNumberColumn});
    for (const clsRepDispCol &column : definition.m_RptCols)
        columns.push_back({column.m_sName, column.m_sDataType, column.m_nColID});
    return columns;
}

std::optional<qint32> ReportRun::run(ReportTable &table, const GoOn &goOn)
{
    using Ran = std::optional<qint32>;
    return guarded("ReportRun_run", Ran(), [&]() -> Ran {
        Tables tables(m_type);
        if (!tables.allOpen())
            return {};
        if (m_type != u"C" && m_type != u"I") {
            prompts::critical(Words::tr("Invalid report type!"));
            return {};
        }
        return walk(tables, table, goOn);
    });
}

qint32 ReportRun::walk(Tables &tables, ReportTable &table, const GoOn &goOn) const
{
    TableUse &rows = tables.main;
    const clsDB::Handle rowidField = rows.field(QStringLiteral("rowid"));
    const Criteria criteria(tables, m_definition);
    Cells cells(tables, m_type, m_definition);
    qint32 found = 0;
    const auto look = [&] {
        if (d4deleted(rows.handle()))
            return;
        const qint32 rowid = f4long(rowidField);
        if (!criteria.FiltersPassed(rowid))
            return;
        clsSystem::IncL(found);
        table.rows.push_back({rowid, cells.of(rowid)});
    };
    QString tag;
    qint32 key = 0;
    if (GetFilterTag(tag, key) && rows.select(tag)) {
        for (bool more = rows.seek(key); more; more = rows.seekNext(key)) {
            look();
            if (!goOn(found))
                break;
        }
        return found;
    }
    // A tag that a folder made elsewhere lacks leaves the order of the file.
    rows.select(m_type == u"C" ? QStringLiteral("lastname") : QStringLiteral("SUBMITDT"));
    for (bool more = rows.top(); more; more = rows.next()) {
        look();
        if (!goOn(found))
            break;
    }
    return found;
}

bool ReportRun::GetFilterTag(QString &sTag, qint32 &nFilterVal) const
{
    for (const clsRepFilter &filter : m_definition.m_RptFilters) {
        const clsRepDispCol &column = filter.m_udRepDispCol;
        const std::optional<qint32> value = criterionValue(filter);
        if (filter.m_sOper == u"=" && !column.m_sFieldname.isEmpty() &&
            !column.m_sTablename.isEmpty() && value) {
            sTag = column.m_sFieldname;
            nFilterVal = *value;
            return true;
        }
    }
    return false;
}
