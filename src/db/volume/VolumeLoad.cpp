#include "db/volume/VolumeLoad.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "db/FieldText.h"
#include "db/LookupTypes.h"
#include "db/SoleUse.h"
#include "db/TableUse.h"
#include "db/volume/RowAdder.h"
#include "db/volume/VolumeTexts.h"

#include <string>
#include <vector>

using namespace norvane::engine;

namespace volume
{

namespace
{

constexpr qint32 Closed = 401; // the status that new databases have for it
constexpr int RowsBetweenQuestions = 5000;

struct Entry {
    qint32 id;
    std::string text;
};
using Entries = std::vector<Entry>;

std::string bytesOf(Handle field)
{
    const std::string_view text(f4ptr(field), f4len_v(field));
    return std::string(text.substr(0, text.find_last_not_of(' ') + 1));
}

Entries entriesOf(clsDB &db, qint32 type)
{
    TableUse rows(db, db.CategoryTable());
    Entries found;
    if (!rows)
        return found;
    const Handle id = rows.field(QStringLiteral("rowid"));
    const Handle kind = rows.field(QStringLiteral("type"));
    const Handle text = rows.field(QStringLiteral("desc"));
    rows.select(QStringLiteral("rowid"));
    for (bool more = rows.top(); more; more = rows.next()) {
        if (f4long(kind) == type)
            found.push_back({f4long(id), bytesOf(text)});
    }
    return found;
}

Entries products(clsDB &db, qint32 wanted)
{
    const auto present = static_cast<qint32>(entriesOf(db, lookup_type::Products).size());
    {
        const TableUse rows(db, db.CategoryTable());
        for (qint32 number = present; rows && number < wanted; ++number)
            db.AddCategory(QString::fromStdString(productName(number)), lookup_type::Products,
                           rows.handle());
    }
    return entriesOf(db, lookup_type::Products);
}

std::vector<qint32> users(clsDB &db, qint32 wanted)
{
    const schema::TableInfo &table = schema::table(schema::Table::User);
    std::vector<qint32> ids{db.LoginID()};
    for (int number = 0; static_cast<qint32>(ids.size()) < wanted; ++number) {
        const QString login = QString::fromStdString(loginName(number));
        const qint32 known = db.GetLoginID(login);
        RecColl record(db.UserTable(), table.dataFile(), -1, QStringLiteral("_userinfo"));
        for (const schema::RecordField &field :
             schema::recordType(QStringLiteral("_userinfo"))->writes)
            record.add(QLatin1String(field.name), QString());
        record.setExisting(QStringLiteral("login"), login);
        record.setExisting(QStringLiteral("useractive"), QStringLiteral("T"));
        record.setExisting(QStringLiteral("usertype"), QString(QLatin1Char(clsDB::UserCode)));
        record.setExisting(QStringLiteral("perm"), clsDB::GetDefaultPermissionsStr());
        if (known < 1 && !db.SaveRecord(record))
            return {};
        ids.push_back(known > 0 ? known : record.number(QStringLiteral("_rowid")));
    }
    return ids;
}

qint32 idOf(Dice &dice, const Entries &entries)
{
    return entries.empty() ? -1 : dice.oneOf(entries).id;
}

bool addCustomers(clsDB &db, qint32 first, qint32 count, const std::function<bool()> &goOn)
{
    const Entries categories = entriesOf(db, lookup_type::CustomerCategories);
    const SoleUse alone(db.CBEngine(), SoleUse::Locks::NotNeeded);
    RowAdder rows(db, schema::Table::Customer);
    if (!rows)
        return false;
    for (qint32 number = 0; number < count; ++number) {
        if (number % RowsBetweenQuestions == 0 && !goOn())
            return false;
        const Customer made = makeCustomer(static_cast<std::uint64_t>(number));
        Dice dice(static_cast<std::uint64_t>(number));
        rows.begin(first + number);
        rows.text("custno", std::to_string(100000 + number));
        rows.text("firstname", made.firstName);
        rows.text("lastname", made.lastName);
        rows.text("company", made.company);
        rows.number("custcat", idOf(dice, categories));
        rows.number("state", -1);
        rows.number("country", -1);
        rows.text("address1", made.address);
        rows.text("city", made.city);
        rows.text("postalcode", made.postalCode);
        rows.text("workphone", made.phone);
        rows.text("emailname", made.email);
        rows.number("lastmodby", db.LoginID());
        rows.text("lastmoddt", someDay(dice));
        rows.text("lastmodtm", "09:00:00");
        rows.number("underedit", 0);
        if (!rows.store())
            return false;
    }
    return true;
}

struct IssueLists {
    Entries products, statuses, priorities, kinds;
    std::vector<qint32> users;
    qint32 firstCustomer = 0, customers = 0;
};

void addIssue(RowAdder &rows, const IssueLists &lists, qint32 rowid, qint32 number)
{
    Dice dice(static_cast<std::uint64_t>(number) * 3 + 1);
    const Entry &product = dice.oneOf(lists.products);
    const qint32 status = idOf(dice, lists.statuses);
    const std::string submitted = someDay(dice);
    const IssueText text =
        makeIssueText(static_cast<std::uint64_t>(number), product.text, status == Closed);
    rows.begin(rowid);
    rows.number("custid", lists.firstCustomer + dice.below(lists.customers));
    rows.number("psid", product.id);
    rows.text("shortdesc", text.shortDesc);
    // One in twenty waits for somebody to take it.
    rows.number("assignedto", dice.below(20) == 0 ? -1 : dice.oneOf(lists.users));
    rows.number("priority", idOf(dice, lists.priorities));
    rows.number("status", status);
    rows.number("issuecat", idOf(dice, lists.kinds));
    rows.text("submitdt", submitted);
    if (status == Closed)
        rows.text("resolvedt", submitted);
    rows.memo("desc", text.desc);
    rows.memo("resolution", text.resolution);
    rows.number("lastmodby", dice.oneOf(lists.users));
    rows.text("lastmoddt", submitted);
    rows.text("lastmodtm", "09:00:00");
    rows.number("underedit", 0);
}

bool addIssues(clsDB &db, const IssueLists &lists, qint32 first, qint32 count,
               const std::function<bool()> &goOn)
{
    const SoleUse alone(db.CBEngine(), SoleUse::Locks::NotNeeded);
    RowAdder rows(db, schema::Table::Issues);
    if (!rows)
        return false;
    for (qint32 number = 0; number < count; ++number) {
        if (number % RowsBetweenQuestions == 0 && !goOn())
            return false;
        addIssue(rows, lists, first + number, number);
        if (!rows.store())
            return false;
    }
    return true;
}

} // namespace

bool fill(clsDB &db, const Size &size, const std::function<bool()> &goOn)
{
    return guarded("volume_fill", false, [&] {
        if (!db.MayWrite())
            return false;
        IssueLists lists{products(db, size.products), entriesOf(db, lookup_type::IssueStatuses),
                         entriesOf(db, lookup_type::IssuePriorities),
                         entriesOf(db, lookup_type::IssueCategories), users(db, size.users)};
        if (lists.products.empty() || lists.users.empty())
            return false;
        const QString customers = schema::table(schema::Table::Customer).dataFile();
        const QString issues = schema::table(schema::Table::Issues).dataFile();
        lists.firstCustomer = db.GetNextID(customers);
        lists.customers = size.customers;
        const qint32 firstIssue = db.GetNextID(issues);
        // A number taken afterwards lies behind the last row and brings its counter there.
        return lists.firstCustomer > 0 && firstIssue > 0 &&
               addCustomers(db, lists.firstCustomer, size.customers, goOn) &&
               db.GetNextID(customers) > 0 && addIssues(db, lists, firstIssue, size.issues, goOn) &&
               db.GetNextID(issues) > 0;
    });
}

} // namespace volume
