// Lookup lists: loading them into controls, and their entries in the category table.
#include "db/clsDB.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Host.h"
#include "common/base/Hourglass.h"
#include "common/base/Prompts.h"
#include "db/FieldText.h"
#include "db/TableUse.h"

#include <QCoreApplication>

using namespace norvane::engine;

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(clsDB)
};

const QString RowidField = QStringLiteral("rowid");
const QString TypeField = QStringLiteral("type");
const QString DescField = QStringLiteral("desc");
constexpr qint32 NoEntry = -1;

// Drawing is frozen while it lives.
class Loading
{
public:
    explicit Loading(ListSink &list) : m_list(list) { m_list.beginLoad(); }
    ~Loading() { m_list.endLoad(); }
    Loading(const Loading &) = delete;
    Loading &operator=(const Loading &) = delete;

private:
    ListSink &m_list;
};

// The entry of that type among those with that text; -1 when there is none.
qint32 findEntry(TableUse &rows, const QString &text, qint32 type)
{
    rows.select(DescField);
    for (bool found = rows.seekText(text, DescField); found;
         found = rows.seekNextText(text, DescField)) {
        if (rows.number(TypeField) == type)
            return rows.number(RowidField);
    }
    return NoEntry;
}

qint32 appendEntry(clsDB &db, TableUse &rows, const clsDB::ListTable &list, const QString &text)
{
    const qint32 rowid = db.GetNextID(list.file);
    if (rowid < 1)
        return 0;
    d4appendStartVB(rows.handle(), 0);
    d4blank(rows.handle());
    f4assignLong(rows.field(list.keyField), rowid);
    if (list.type > 0)
        f4assignLong(rows.field(TypeField), list.type);
    AssignText(rows.field(list.textField), text);
    return storeNewRow(rows.handle()) ? rowid : 0;
}

QString userText(const TableUse &users)
{
    const QString login = users.text(QStringLiteral("login"));
    const QString name = clsSystem::MakeFullName(users.text(QStringLiteral("firstname")),
                                                 users.text(QStringLiteral("lastname")));
    return name.isEmpty() ? login : QString(name % u" (" % login % u')');
}

} // namespace

void clsDB::LoadLV(ListSink &list, const QString &path, const QString &keyField,
                   const QString &textField, qint32 type, bool clear)
{
    guarded("clsDB_LoadLV", [&] {
        const Hourglass busy;
        const qint32 selected = list.currentId();
        {
            const Loading frozen(list);
            if (!m_bIsOpen)
                return;
            TableUse rows(*this, path);
            if (!rows)
                return;
            const Handle key = rows.field(keyField);
            const Handle text = rows.field(textField);
            const Handle kind = type > 0 ? rows.field(TypeField) : 0;
            rows.select(textField);
            if (clear)
                list.clear();
            for (bool more = rows.top(); more; more = rows.next()) {
                if (kind < 1 || f4long(kind) == type)
                    list.addItem(clsSystem::Trim(FieldText(text)), f4long(key));
                host().repaint(); // without input, which could start the same again
            }
        }
        // A list that is being loaded may not have its rows yet.
        if (selected > 0)
            list.selectId(selected);
    });
}

bool clsDB::LoadCbo(ListSink &combo, const QString &path, const QString &keyField,
                    const QString &textField, const QString &typeField, qint32 type, bool clear,
                    bool addBlank, qint32 selectId)
{
    return guarded("clsDB_LoadCbo", false, [&] {
        TableUse rows(*this, path);
        if (!rows)
            return false;
        const Hourglass busy;
        const Loading frozen(combo);
        if (clear)
            combo.clear();
        if (addBlank)
            combo.addItem(QString(), NoEntry);
        const Handle key = rows.field(keyField);
        const Handle text = rows.field(textField);
        const Handle kind = rows.field(typeField);
        rows.select(textField);
        for (bool more = rows.top(); more; more = rows.next()) {
            if (f4long(kind) == type)
                combo.addItem(clsSystem::Trim(FieldText(text)), f4long(key));
        }
        if (selectId > 0)
            combo.selectId(selectId);
        return !m_failures.any();
    });
}

bool clsDB::LoadCbo_Users(ListSink &combo, bool clear, bool activeOnly)
{
    return guarded("clsDB_LoadCbo_Users", false, [&] {
        TableUse users(*this, UserTable());
        if (!users)
            return false;
        users.select(QStringLiteral("login"));
        if (clear)
            combo.clear();
        for (bool more = users.top(); more; more = users.next()) {
            if (!activeOnly || TorF2Bool(users.text(QStringLiteral("useractive"))))
                combo.addItem(userText(users), users.number(RowidField));
        }
        return !m_failures.any();
    });
}

QString clsDB::GetCategoryDesc(qint32 rowid, Handle table)
{
    return guarded("clsDB_GetCategoryDesc", QString(), [&] {
        TableUse rows(*this, CategoryTable(), table);
        if (!rows)
            return QString();
        rows.select(RowidField);
        return rows.seek(rowid) ? rows.text(DescField) : QString();
    });
}

qint32 clsDB::CategoryExists(const QString &text, qint32 type, Handle table)
{
    return guarded("clsDB_CategoryExists", NoEntry, [&] {
        TableUse rows(*this, CategoryTable(), table);
        return rows ? findEntry(rows, text, type) : NoEntry;
    });
}

qint32 clsDB::AddCategory(const QString &text, qint32 type, Handle table)
{
    return guarded("clsDB_AddCategory", NoEntry, [&] {
        if (text.isEmpty() || table < 1)
            return NoEntry;
        const TableUse rows(*this, CategoryTable(), table);
        const qint32 rowid = GetNextID(schema::table(schema::Table::Category).dataFile());
        if (rowid < 1)
            return NoEntry;
        d4appendStartVB(table, 0);
        d4blank(table);
        f4assignLong(rows.field(RowidField), rowid);
        f4assignLong(rows.field(TypeField), type);
        AssignText(rows.field(DescField), text);
        return storeNewRow(table) ? rowid : NoEntry;
    });
}

qint32 clsDB::LookupOrAddCategory(const QString &text, qint32 type, Handle table)
{
    if (text.isEmpty())
        return 0;
    const qint32 found = CategoryExists(text, type, table);
    return found < 0 ? AddCategory(text, type, table) : found;
}

qint32 clsDB::AddUpdateItem(const ListTable &list, qint32 id, const QString &text)
{
    return guarded("clsDB_AddUpdateItem", 0, [&] {
        QString problem;
        if (text.isEmpty() || !MayWrite())
            return 0;
        {
            TableUse rows(*this, list.path);
            if (!rows)
                return 0;
            const LockAttempts tenAttempts(m_hSession);
            if (id < 1)
                return appendEntry(*this, rows, list, text);
            rows.select(list.keyField);
            bool found = rows.seek(id);
            if (found) {
                const RowLock lock(rows.handle());
                // Another station may have deleted the row while this one waited for the lock.
                found = lock.heldElsewhere() || !d4deleted(rows.handle());
                if (found && lock) {
                    AssignText(rows.field(list.textField), text);
                    return storeChange(rows.handle()) ? id : 0;
                }
                if (lock.heldElsewhere())
                    problem = Words::tr("RECORD LOCKED: Unable to update %1!").arg(list.file);
            }
            if (!found)
                problem =
                    Words::tr("Unable to update this item in table %1! It may have been deleted by "
                              "another user. Press Refresh to get the latest list.")
                        .arg(list.file);
        }
        // Boxes wait for the person, so they come when nothing is locked any more.
        if (!problem.isEmpty())
            prompts::critical(problem);
        return 0;
    });
}

bool clsDB::CanDeleteItem(qint32 rowid, const QString &path, const QString &field, Handle table)
{
    return guarded("clsDB_CanDeleteItem", false, [&] {
        if (path.isEmpty())
            return true;
        TableUse rows(*this, path, table);
        if (!rows)
            return false;
        if (rows.select(field))
            return !rows.seek(rowid);
        return !RecordExistsNoTag(2, QString::number(rowid), path, field, rows.handle());
    });
}
