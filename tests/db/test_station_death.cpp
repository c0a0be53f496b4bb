// A station that dies at any call of the program's own operations: what they change in one row is
// whole or absent, all tables are sound, and the next station goes on without a question.
#include "DbTest.h"
#include "engine/SimDisk.h"
#include "ImportFile.h"
#include "support/MatrixLength.h"

#include "common/base/Preferences.h"
#include "db/FieldText.h"
#include "db/import/ImportRun.h"
#include "db/TableUse.h"

#include <QDir>
#include <QFile>

#include <functional>

using namespace enginetest;
using norvane::test::matrixLength;
using schema::Table;

namespace
{

struct Work {
    const char *name;
    std::function<bool(clsDB &)> perform;
    std::function<QString(clsDB &)> look; // what it changes, as another station finds it
    bool oneRow = true;                   // otherwise anything between before and after
};

class StationDeath : public DbTest
{
protected:
    static std::unique_ptr<SimDisk> diskOf(const QString &folder)
    {
        auto disk = std::make_unique<SimDisk>();
        const QDir dir(folder);
        // without the places of the stations: gDB's would be waited for, and those of the dead
        for (const QString &name :
             dir.entryList({u"*.dbf"_s, u"*.cdx"_s, u"*.fpt"_s, u"*.nvj"_s})) {
            QFile file(dir.filePath(name));
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            const QByteArray bytes = file.readAll();
            disk->files[file.fileName().toStdString()] = std::make_shared<SimDisk::Content>(
                SimDisk::Content{{bytes.begin(), bytes.end()}, {}});
        }
        disk->boot = norvane::engine::systemFiles().bootMark();
        return disk;
    }

    static QString findings(clsDB &station)
    {
        QString all;
        for (const schema::TableInfo &table : schema::tables()) {
            const clsDB::Handle handle = station.OpenTable(station.TablePath(table.table));
            EXPECT_GT(handle, 0) << qPrintable(table.dataFile());
            for (const std::string &finding : norvane::engine::d4check(handle))
                all += table.dataFile() % u": " % QString::fromStdString(finding) % u'\n';
            station.CloseTable(handle);
        }
        return all;
    }

    // What another station finds on the disk; the tables are sound.
    QString state(SimDisk &disk, const Work &work)
    {
        // its place among the stations would be waited for
        std::erase_if(disk.files, [](const auto &file) { return file.first.ends_with(".nvs"); });
        SimStation files(disk);
        clsDB other;
        other.useFiles(&files);
        EXPECT_TRUE(other.OpenUnattended(db.path(), u"SYSOP"_s, u"sysop"_s));
        const QString found = work.look(other);
        EXPECT_EQ(findings(other), QString());
        return found;
    }

    void dieEverywhere(const Work &work)
    {
        const std::unique_ptr<SimDisk> start = diskOf(db.path());
        const QString before = state(*start->copy(), work);
        QString after;
        for (int call = 0;; call = call == 0 ? 1 : call + matrixLength(5, 2, 1)) {
            const std::unique_ptr<SimDisk> disk = start->copy();
            bool done = false;
            bool dead = false;
            {
                SimStation files(*disk);
                clsDB station;
                station.useFiles(&files);
                ASSERT_TRUE(station.OpenUnattended(db.path(), u"SYSOP"_s, u"sysop"_s));
                files.dieAt(call); // 0: never
                const auto silent =
                    std::exchange(prompts::backend().message,
                                  [](const prompts::Message &message) { return message.preset; });
                done = work.perform(station);
                prompts::backend().message = silent;
                dead = files.dead();
            }
            EXPECT_EQ(disk->locksHeld(), 0U);
            const QString found = state(*disk, work);
            if (call == 0) {
                after = found;
                ASSERT_TRUE(done);
                ASSERT_NE(before, after);
            }
            ASSERT_TRUE(found == after || (!done && (found == before || !work.oneRow)))
                << work.name << ", call " << call << ": " << qPrintable(found);
            ASSERT_FALSE(HasFailure()) << work.name << ", call " << call;
            if (call > 0 && !dead)
                break;
        }
    }

    static QString value(clsDB &station, Table table, qint32 rowid, const char *field)
    {
        using namespace norvane::engine;
        const clsDB::Handle handle = station.OpenTable(station.TablePath(table));
        d4tagSelect(handle, d4tag(handle, "rowid"));
        QString text = u"(none)"_s;
        if (d4seekDouble(handle, rowid) == r4success) {
            const clsDB::Handle column = d4field(handle, field);
            text = QString::fromLatin1(f4ptr(column), f4len_v(column)).trimmed();
        }
        station.CloseTable(handle);
        return text;
    }

    qint32 customer = db.addCustomer({{"company", u"Acme"_s}, {"notes", u"note"_s}});
};

} // namespace

TEST_F(StationDeath, LeavesEachOfTheProgramsOperationsWholeOrAbsent)
{
    const qint32 issue = db.addIssue({{"custid", customer}, {"shortdesc", u"It fails"_s}});
    for (int i = 0; i < 8; ++i)
        db.add(u"_issueaction"_s, {{"issueid", issue}, {"desc", u"An action"_s}});
    const qint32 user = db.addUser(u"jdoe"_s, clsDB::GetDefaultPermissionsStr());
    const QString customers = schema::table(Table::Customer).dataFile();
    const auto change = [&](clsDB &station, Table table, const QString &type, qint32 rowid,
                            const QString &field, const QString &text) {
        RecColl row(station.TablePath(table), schema::table(table).dataFile(), rowid, type);
        if (type != u"_setpwd" && !station.ReadRecord(row))
            return false;
        if (!row.setExisting(field, text))
            row.add(field, text);
        return station.SaveRecord(row);
    };
    const Work works[] = {
        {"a new customer",
         [](clsDB &station) {
             RecColl row = station.NewCustomerRecColl();
             row.setExisting(u"company"_s, u"New"_s);
             return station.SaveRecord(row);
         },
         [&](clsDB &station) { return value(station, Table::Customer, customer + 1, "company"); }},
        {"a changed customer",
         [&](clsDB &station) {
             return change(station, Table::Customer, u"_customer"_s, customer, u"company"_s,
                           u"Zenith"_s);
         },
         [&](clsDB &station) { return value(station, Table::Customer, customer, "company"); }},
        {"a password",
         [&](clsDB &station) {
             return change(station, Table::User, u"_setpwd"_s, user, u"password"_s, u"secret"_s);
         },
         [](clsDB &station) { return station.GetUserPassword(u"jdoe"_s); }},
        {"an edit mark",
         [&](clsDB &station) {
             station.SetEditInfo(station.CustomerTable(), customers, customer, false);
             qint32 editor = 0;
             QString computer;
             return station.GetUnderEditInfo(station.CustomerTable(), customers, customer, editor,
                                             computer) &&
                    editor > 0;
         },
         [&](clsDB &station) { return value(station, Table::Customer, customer, "underedit"); }},
        {"a parameter",
         [](clsDB &station) { return station.SetParamValue(u"custinfo"_s, u"a value"_s); },
         [](clsDB &station) { return station.GetParamValue(u"custinfo"_s); }},
        {"a number", [](clsDB &station) { return station.GetNextID(u"nvncust.dbf"_s) > 0; },
         [&](clsDB &station) {
             return QString::number(station.GetNextID(u"nvncust.dbf"_s) - customer);
         }},
        {"a deleted customer",
         [&](clsDB &station) { return station.DeleteRecord(customer, station.CustomerTable()); },
         [&](clsDB &station) { return value(station, Table::Customer, customer, "company"); }},
        {"all actions of an issue",
         [&](clsDB &station) {
             station.DeleteAllRecords(issue, station.IssuesActionsTable(), u"issueid"_s);
             return station.GetRecCount(station.IssuesActionsTable(), u"rowid"_s) == 0;
         },
         [](clsDB &station) {
             return QString::number(station.GetRecCount(station.IssuesActionsTable(), u"rowid"_s));
         },
         false}};
    for (const Work &work : works)
        dieEverywhere(work);
    SetPrefStr(u"durability"_s, u"process"_s); // a killed station loses nothing by that either
    dieEverywhere(works[0]);
}

// Of the file's rows those up to some row, each of them whole, and all that were told as stored.
TEST_F(StationDeath, LeavesTheFirstRowsOfAnImport)
{
    constexpr int Rows = 5;
    QByteArray bytes = "LASTNAME,COMPANY,CATEGORY,NOTES\n";
    for (int i = 1; i <= Rows; ++i)
        bytes += QByteArray("Name %,Company %,Kind %,Note %\n").replace('%', QByteArray::number(i));
    const ImportFile file(bytes);
    const QStringList headings{u"LASTNAME"_s, u"COMPANY"_s, u"CATEGORY"_s, u"NOTES"_s};
    int told = 0;
    dieEverywhere({"an import",
                   [&](clsDB &station) {
                       told = 0;
                       ImportRun run(station, ImportRun::NewCustomers, headings, Rows);
                       run.onStored([&told](qint32) { ++told; });
                       return run.ImportData_Detail(file.path()).ok;
                   },
                   [&](clsDB &station) {
                       QStringList found;
                       TableUse table(station, station.CustomerTable());
                       for (bool more = table.top(); more; more = table.next()) {
                           if (table.number(u"rowid"_s) <= customer)
                               continue;
                           found.append(table.text(u"lastname"_s) % u'/' %
                                        table.text(u"company"_s) % u'/' %
                                        MemoText(table.field(u"notes"_s)));
                           EXPECT_GT(table.text(u"custcat"_s).toInt(), 0);
                       }
                       for (int i = 0; i < found.size(); ++i)
                           EXPECT_EQ(found[i], u"Name %1/Company %1/Note %1"_s.arg(i + 1));
                       EXPECT_GE(found.size(), told);
                       return QString::number(found.size());
                   },
                   false});
}
