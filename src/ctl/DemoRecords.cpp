#include "ctl/DemoRecords.h"

#include "common/base/Host.h"
#include "db/AttachmentFolder.h"
#include "db/clsDB.h"
#include "db/import/CsvReader.h"
#include "db/import/CsvText.h"
#include "db/LookupTypes.h"
#include "db/TableUse.h"

#include <QDir>

#include <random>

namespace ctl
{

namespace
{

constexpr int kSubscriptions = 320;
constexpr int kIssues = 240;
constexpr int kAttachEvery = 12; // of the issues
constexpr int kIssueDays = 400;  // how far back they go

// Entries that every database has.
constexpr qint32 kOpen = 400;
constexpr qint32 kClosed = 401;
constexpr qint32 kUnfinished[] = {402, 403, 404, 405, kOpen};
constexpr qint32 kContracts[] = {560, 561, 562, 563, 570};
struct Duration {
    qint32 entry;
    int months; // 0: no end
};
constexpr Duration kDurations[] = {{582, 6}, {583, 12}, {583, 12}, {584, 24}, {585, 36}, {589, 0}};

struct Person {
    const char *login, *first, *last, *dept;
};
constexpr Person kPeople[] = {{"anna", "Anna", "Keller", "Service Desk"},
                              {"ben", "Ben", "Ortiz", "Field Service"},
                              {"carla", "Carla", "Novak", "Field Service"},
                              {"dan", "Dan", "Whitfield", "Accounts"}};

using Row = QStringList;

// The columns of issues.csv and templates.csv.
enum IssueColumn { Product, Subject, Category, Priority, Description, Actions, Resolution = 11 };
enum TemplateColumn { Name, TProduct, TSubject, TCategory, TPriority, TDescription, TResolution };
constexpr int kActionColumns = 3; // action, notes, hours

class DemoRecords
{
public:
    DemoRecords(clsDB &db, QString folder, Console &console)
        : m_db(db), m_folder(std::move(folder)), m_console(console)
    {
    }
    bool addAll();

private:
    using Fields = std::initializer_list<std::pair<const char *, QVariant>>;

    bool readRows(const QString &file, QList<Row> &rows);
    bool readIds();
    bool addPeople();
    bool addTemplates();
    bool addSubscriptions();
    bool addIssues();
    bool addIssue(const Row &story, QDate submitted);
    bool addActions(qint32 issue, const Row &story, QDate day, QDate last, qint32 person);
    bool attach(qint32 issue);
    qint32 save(schema::Table table, const QString &recType, Fields fields); // 0: not stored
    qint32 entry(const QString &text, int type);

    int pick(std::size_t count) { return int(m_random() % count); }
    template <class List>
    auto one(const List &list)
    {
        return list[pick(std::size(list))];
    }
    QDate daysAgo(int days) const { return host().now().date().addDays(-days); }
    static QString stored(QDate date) { return date.toString(QStringLiteral("yyyyMMdd")); }

    clsDB &m_db;
    const QString m_folder;
    Console &m_console;
    std::minstd_rand m_random{2004}; // gives the same numbers everywhere
    QList<qint32> m_customers;
    QList<qint32> m_products;
    QList<qint32> m_people;
    int m_actions = 0;
    int m_attachments = 0;
};

bool DemoRecords::readRows(const QString &file, QList<Row> &rows)
{
    CsvReader reader(clsDB::MakePath(m_folder, file));
    bool heading = reader.open();
    while (const std::optional<QString> line = reader.readLine()) {
        if (!std::exchange(heading, false)) {
            Row row;
            for (const QString &raw : SplitCsvRow(*line))
                row.append(CSVField_GetValue(raw));
            rows.append(row);
        }
    }
    if (!rows.isEmpty() && !reader.failed())
        return true;
    m_console.err << QStringLiteral("The file '%1' cannot be read.\n").arg(file);
    return false;
}

bool DemoRecords::readIds()
{
    TableUse customers(m_db, m_db.CustomerTable());
    TableUse categories(m_db, m_db.CategoryTable());
    if (!customers || !categories)
        return false;
    customers.select(QStringLiteral("rowid"));
    for (bool more = customers.top(); more; more = customers.next())
        m_customers.append(customers.number(QStringLiteral("rowid")));
    categories.select(QStringLiteral("type"));
    for (bool more = categories.seek(lookup_type::Products); more;
         more = categories.seekNext(lookup_type::Products))
        m_products.append(categories.number(QStringLiteral("rowid")));
    return !m_customers.isEmpty() && !m_products.isEmpty();
}

qint32 DemoRecords::save(schema::Table table, const QString &recType, Fields fields)
{
    RecColl record(m_db.TablePath(table), schema::table(table).dataFile(), -1, recType);
    for (const schema::RecordField &field : schema::recordType(recType)->writes)
        record.add(QLatin1String(field.name), QString());
    for (const auto &[name, value] : fields)
        record.setExisting(QLatin1String(name), value);
    return m_db.SaveRecord(record) ? record.number(QStringLiteral("_rowid")) : 0;
}

qint32 DemoRecords::entry(const QString &text, int type)
{
    return text.isEmpty() ? -1 : m_db.CategoryExists(text, type);
}

bool DemoRecords::addPeople()
{
    for (const Person &person : kPeople) {
        m_people.append(save(schema::Table::User, QStringLiteral("_userinfo"),
                             {{"login", QLatin1String(person.login)},
                              {"firstname", QLatin1String(person.first)},
                              {"lastname", QLatin1String(person.last)},
                              {"dept", QLatin1String(person.dept)},
                              {"useractive", QStringLiteral("T")},
                              {"usertype", QString(QLatin1Char(clsDB::UserCode))},
                              {"perm", clsDB::GetDefaultPermissionsStr()}}));
        if (m_people.last() < 1)
            return false;
    }
    return true;
}

bool DemoRecords::addTemplates()
{
    QList<Row> rows;
    if (!readRows(QStringLiteral("templates.csv"), rows))
        return false;
    const clsDB::ListTable names{schema::table(schema::Table::IssuesTemplates).dataFile(),
                                 m_db.IssuesTemplatesTable(), QStringLiteral("rowid"),
                                 QStringLiteral("name"), 0};
    for (const Row &row : rows) {
        const qint32 id =
            save(schema::Table::IssuesTemplates, QStringLiteral("_issuetemplate"),
                 {{"psid", entry(row.value(TProduct), lookup_type::Products)},
                  {"shortdesc", row.value(TSubject)},
                  {"priority", entry(row.value(TPriority), lookup_type::IssuePriorities)},
                  {"status", kOpen},
                  {"issuecat", entry(row.value(TCategory), lookup_type::IssueCategories)},
                  {"desc", row.value(TDescription)},
                  {"resolution", row.value(TResolution)}});
        if (id < 1 || m_db.AddUpdateItem(names, id, row.value(Name)) != id)
            return false;
    }
    m_console.out << QStringLiteral("Added %1 issue templates.\n").arg(rows.size());
    return true;
}

bool DemoRecords::addSubscriptions()
{
    for (int i = 0; i < kSubscriptions; ++i) {
        const Duration duration = one(kDurations);
        const QDate from = daysAgo(20 + pick(1500));
        const QDate to = duration.months > 0 ? from.addMonths(duration.months) : QDate();
        if (save(schema::Table::Customer2PS, QStringLiteral("_ps"),
                 {{"custid", one(m_customers)},
                  {"psid", one(m_products)},
                  {"dateinit", stored(from)},
                  {"dateterm", to.isValid() ? stored(to) : QString()},
                  {"conttype", one(kContracts)},
                  {"contdur", duration.entry},
                  {"contno", QStringLiteral("C-%1").arg(41000 + i * 7)},
                  {"trackno", QStringLiteral("SN %1").arg(730150 + i * 113)}}) < 1)
            return false;
    }
    m_console.out
        << QStringLiteral("Added %1 products and services of customers.\n").arg(kSubscriptions);
    return true;
}

bool DemoRecords::addIssues()
{
    QList<Row> stories;
    if (!readRows(QStringLiteral("issues.csv"), stories))
        return false;
    for (int i = 0; i < kIssues; ++i) {
        // In the order in which they came in, so that numbers and dates rise together.
        const int ago = kIssueDays - i * kIssueDays / kIssues - 1;
        if (!addIssue(stories.at(pick(std::size_t(stories.size()))), daysAgo(ago)))
            return false;
    }
    m_console.out << QStringLiteral("Added %1 issues with %2 actions and %3 attachments.\n")
                         .arg(QString::number(kIssues), QString::number(m_actions),
                              QString::number(m_attachments));
    return true;
}

// What came in more than three weeks ago is settled, but for one in twelve.
bool DemoRecords::addIssue(const Row &story, QDate submitted)
{
    const QDate today = daysAgo(0);
    const bool settled = submitted.daysTo(today) > 21 ? pick(12) > 0 : pick(3) == 0;
    const QDate answered = std::min(submitted.addDays(pick(3)), today);
    const QDate resolved = std::min(answered.addDays(pick(9)), today);
    const qint32 person = one(m_people);
    const qint32 issue =
        save(schema::Table::Issues, QStringLiteral("_issue"),
             {{"custid", one(m_customers)},
              {"psid", entry(story.value(Product), lookup_type::Products)},
              {"shortdesc", story.value(Subject)},
              {"assignedto", person},
              {"priority", entry(story.value(Priority), lookup_type::IssuePriorities)},
              {"status", settled ? kClosed : one(kUnfinished)},
              {"issuecat", entry(story.value(Category), lookup_type::IssueCategories)},
              {"submitdt", stored(submitted)},
              {"responsedt", stored(answered)},
              {"resolvedt", settled ? stored(resolved) : QString()},
              {"desc", story.value(Description)},
              {"resolution", settled ? story.value(Resolution) : QString()}});
    if (issue < 1)
        return false;
    const bool withFile = issue % kAttachEvery == 0;
    return addActions(issue, story, answered, settled ? resolved : answered, person) &&
           (!withFile || attach(issue));
}

// The first on the day of the answer; the last only when the issue is settled.
bool DemoRecords::addActions(qint32 issue, const Row &story, QDate day, QDate last, qint32 person)
{
    for (int at = Actions; at < Resolution && !story.value(at).isEmpty(); at += kActionColumns) {
        if (at > Actions && last == day)
            break;
        if (save(schema::Table::IssuesActions, QStringLiteral("_issueaction"),
                 {{"issueid", issue},
                  {"date", stored(at == Actions ? day : last)},
                  {"action", entry(story.value(at), lookup_type::IssueActions)},
                  {"perfby", person},
                  {"desc", story.value(at + 1)},
                  {"duration", story.value(at + 2).toDouble()}}) < 1)
            return false;
        ++m_actions;
    }
    return true;
}

bool DemoRecords::attach(qint32 issue)
{
    const QDir files(clsDB::MakePath(m_folder, QStringLiteral("attachments")));
    const QStringList names = files.entryList(QDir::Files, QDir::Name);
    const AttachmentFolder folder = m_db.Attachments(issue, QStringLiteral("_i"));
    const QString name = names.value(m_attachments % std::max(1, int(names.size())));
    ++m_attachments;
    if (!name.isEmpty() && folder.create() && folder.add(files.filePath(name), name).done())
        return true;
    m_console.err << QStringLiteral("An attachment cannot be copied to '%1'.\n").arg(folder.path());
    return false;
}

bool DemoRecords::addAll()
{
    return readIds() && addPeople() && addTemplates() && addSubscriptions() && addIssues();
}

} // namespace

bool addDemoRecords(clsDB &db, const QString &folder, Console &console)
{
    return DemoRecords(db, folder, console).addAll();
}

} // namespace ctl
