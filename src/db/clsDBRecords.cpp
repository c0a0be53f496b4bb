// Whole records between a form's collection and the tables: save and read by record type.
#include "db/clsDB.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Host.h"
#include "common/base/Numbers.h"
#include "common/base/Prompts.h"
#include "db/FieldText.h"
#include "db/TableUse.h"

#include <QCoreApplication>

using namespace norvane::engine;
using schema::FieldKind;

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(clsDB)
};

const QString RowidTag = QStringLiteral("rowid");

Handle fieldOf(Handle table, const char *name)
{
    return d4field(table, name);
}

void assignMemo(Handle field, const QString &text)
{
    const QByteArray stored = toStored(text);
    f4memoAssignN(field, {stored.constData(), static_cast<std::size_t>(stored.size())},
                  static_cast<std::uint32_t>(stored.size()));
}

QString passwordCode(const QString &plain)
{
    return clsSystem::StringToHexStr(plain.toLower());
}

} // namespace

// One value on its way into a field. They are gathered before the first is assigned, so that a
// record with a missing key leaves the row buffer alone.
struct clsDB::Write {
    Handle field;
    FieldKind kind;
    QVariant value;
};

bool clsDB::SaveRecord(RecColl &record, bool NoMsg, Handle table)
{
    return guarded("clsDB_SaveRecord", false, [&] {
        if (!MayWrite())
            return false;
        const TableUse use(*this, record.text(QStringLiteral("_tablepath")), table);
        if (!use)
            return false;
        const LockAttempts tenAttempts(m_hSession);
        if (record.number(QStringLiteral("_rowid")) > 0)
            return updateRow(record, use.handle(), NoMsg);
        return addRow(record, use.handle());
    });
}

bool clsDB::updateRow(const RecColl &record, Handle table, bool NoMsg)
{
    TableUse rows(*this, {}, table);
    rows.select(RowidTag);
    bool found = rows.seek(record.number(QStringLiteral("_rowid")));
    bool locked = false;
    bool stored = false;
    if (found) {
        const RowLock lock(table);
        locked = lock.heldElsewhere();
        // Another station may have deleted the row while this one waited for the lock.
        found = locked || !d4deleted(table);
        if (found && lock) {
            UpdateFields(fieldWrites(record, table, false));
            stored = storeChange(table);
        }
    }
    // Boxes wait for the person, so they come when nothing is locked any more.
    if (locked)
        prompts::critical(Words::tr("RECORD LOCKED: Unable to update record!"));
    else if (!found && !NoMsg)
        prompts::critical(Words::tr("ROWID NOT FOUND: Unable to update record!"));
    return stored;
}

bool clsDB::addRow(RecColl &record, Handle table)
{
    const std::vector<Write> writes = fieldWrites(record, table, true);
    const qint32 rowid = GetNextID(record.text(QStringLiteral("_tablename")));
    record.setExisting(QStringLiteral("_rowid"), rowid);
    if (rowid < 1)
        return false;
    d4appendStartVB(table, 0);
    d4blank(table);
    f4assignLong(fieldOf(table, "rowid"), rowid);
    UpdateFields(writes);
    return storeNewRow(table);
}

void clsDB::UpdateFields(const std::vector<Write> &writes)
{
    for (const Write &write : writes) {
        const bool isNumber = write.kind == FieldKind::Number || write.kind == FieldKind::Integer;
        if (isNumber && write.value.typeId() != QMetaType::QString)
            f4assignDouble(write.field, write.value.toDouble());
        else
            AssignValue(write.field, write.value.toString(), write.kind);
    }
}

std::vector<clsDB::Write> clsDB::fieldWrites(const RecColl &record, Handle table, bool adding) const
{
    std::vector<Write> writes;
    const QString code = record.text(QStringLiteral("_rectype"));
    const schema::RecordType *type = schema::recordType(code);
    if (type == nullptr)
        return writes;

    for (const schema::RecordField &field : type->writes) {
        const QString key = QLatin1String(field.name);
        const bool isNumber = field.kind == FieldKind::Number || field.kind == FieldKind::Integer;
        writes.push_back({fieldOf(table, field.name), field.kind,
                          isNumber ? record.value(key) : QVariant(record.text(key))});
    }
    if (code == u"_userinfo" && adding) {
        writes.push_back({fieldOf(table, "password"), FieldKind::Text,
                          passwordCode(record.text(QStringLiteral("login")))});
    } else if (code == u"_setpwd") {
        // An empty password goes back to the login name.
        QString plain = record.text(QStringLiteral("password"));
        if (plain.isEmpty())
            plain = clsSystem::Trim(FieldText(fieldOf(table, "login")));
        writes.push_back({fieldOf(table, "password"), FieldKind::Text, passwordCode(plain)});
    } else if (code == u"_lockinfo") {
        addLockInfo(writes, record, table);
    }
    if (type->stampsLastEdit)
        addLastEdit(writes, table);
    return writes;
}

void clsDB::addLockInfo(std::vector<Write> &writes, const RecColl &record, Handle table) const
{
    const bool clear = record.text(QStringLiteral("editoper")) == u"C";
    writes.push_back({fieldOf(table, "underedit"), FieldKind::Integer, clear ? 0 : m_nLoginID});
    writes.push_back(
        {fieldOf(table, "edtstation"), FieldKind::Text, clear ? QString() : m_sStation});
}

void clsDB::addLastEdit(std::vector<Write> &writes, Handle table) const
{
    const QDateTime now = host().now();
    // The two are as they are stored.
    writes.push_back({fieldOf(table, "lastmodby"), FieldKind::Integer, m_nLoginID});
    writes.push_back(
        {fieldOf(table, "lastmoddt"), FieldKind::Text, now.date().toString(u"yyyyMMdd")});
    writes.push_back(
        {fieldOf(table, "lastmodtm"), FieldKind::Text, now.time().toString(u"hh:mm:ss")});
}

void clsDB::AssignValue(Handle field, const QString &value, FieldKind kind)
{
    if (field < 1)
        return;
    switch (kind) {
    case FieldKind::Text:
        AssignText(field, value);
        break;
    case FieldKind::Date:
        AssignText(field, clsSystem::CBDateFormat(value));
        break;
    case FieldKind::Time:
        AssignText(field, clsSystem::CBTimeFormat(value));
        break;
    case FieldKind::Number:
    case FieldKind::Integer:
        if (const auto number = NumberInText(value))
            f4assignDouble(field, *number);
        break;
    case FieldKind::Flag:
        if (const auto number = NumberInText(value))
            AssignText(field, clsSystem::Bool2TorF(*number != 0));
        break;
    case FieldKind::Memo:
        assignMemo(field, value);
        break;
    }
}

bool clsDB::ReadRecord(RecColl &record, bool NoMsg)
{
    return guarded("clsDB_ReadRecord", false, [&] {
        const QString path = record.text(QStringLiteral("_tablepath"));
        const qint32 rowid = record.number(QStringLiteral("_rowid"));
        {
            TableUse rows(*this, path);
            if (!rows)
                return false;
            rows.select(RowidTag);
            if (rows.seek(rowid)) {
                ReadFields(record, rows.handle());
                return true;
            }
        }
        if (!NoMsg)
            prompts::critical(Words::tr("Unable to read row_id %1 from table %2")
                                  .arg(QString::number(rowid), path));
        return false;
    });
}

void clsDB::ReadFields(RecColl &record, Handle table)
{
    const schema::RecordType *type = schema::recordType(record.text(QStringLiteral("_rectype")));
    if (type == nullptr)
        return;
    for (const schema::RecordField &field : type->reads) {
        const Handle handle = fieldOf(table, field.name);
        const QString key = QLatin1String(field.name);
        if (field.kind == FieldKind::Integer)
            record.add(key, handle > 0 ? f4long(handle) : 0);
        else if (field.kind == FieldKind::Memo)
            record.add(key, MemoText(handle));
        else
            record.add(key, clsSystem::Trim(FieldText(handle)));
    }
}

RecColl clsDB::NewCustomerRecColl() const
{
    const schema::TableInfo &customers = schema::table(schema::Table::Customer);
    RecColl record(CustomerTable(), customers.dataFile(), -1, QStringLiteral("_customer"));
    for (const schema::RecordField &field :
         schema::recordType(QStringLiteral("_customer"))->writes) {
        const QVariant empty = field.kind == FieldKind::Integer ? QVariant(0) : QVariant(QString());
        record.add(QLatin1String(field.name), empty);
    }
    return record;
}
