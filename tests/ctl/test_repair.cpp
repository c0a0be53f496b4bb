// Damage of every kind a repair can prove right again, what it leaves alone, and who may call it.
#include "ctl/CtlRun.h"
#include "db/clsDB.h"
#include "db/engine/Bytes.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QHash>

#include <functional>

using namespace norvane::engine;

namespace
{

// A database with rows, texts and deleted rows in several tables.
class Repair : public ::testing::Test
{
protected:
    Repair()
    {
        QByteArray csv = "LASTNAME,COMPANY,CATEGORY,NOTES\n";
        for (int i = 0; i < 40; ++i)
            csv += "Doe " + QByteArray::number(i) + ",Firm,Good,\"a note, number " +
                   QByteArray::number(i) + "\"\n";
        EXPECT_EQ(0, ctlRun({"import", dir, "customers", folder.file("c.csv", csv)}).code);
        clsDB db;
        EXPECT_TRUE(db.OpenUnattended(dir, "sysop", "sysop"));
        EXPECT_TRUE(db.DeleteRecord(1003, db.CustomerTable()));
        // What was saved through the journals is in the files once these are gone.
        db.CloseDB();
        for (const QString &journal : QDir(dir).entryList({"*.nvj"}))
            EXPECT_TRUE(QFile::remove(folder.at(journal)));
    }

    QString dumps() const
    {
        QString all;
        for (const char *table : {"customers", "lookups", "actions", "parameters", "users"})
            all += ctlRun({"dump", dir, QLatin1String(table)}).out;
        return all;
    }
    QHash<QString, QByteArray> allFiles() const
    {
        QHash<QString, QByteArray> files;
        for (const QString &file : QDir(dir).entryList(QDir::Files))
            files.insert(file, readAll(folder.at(file)));
        return files;
    }
    void putBack(const QHash<QString, QByteArray> &files) const
    {
        for (const QString &file : QDir(dir).entryList(QDir::Files))
            EXPECT_TRUE(QFile::remove(folder.at(file)));
        for (auto it = files.cbegin(); it != files.cend(); ++it)
            writeAll(folder.at(it.key()), it.value());
    }
    void change(const char *file, const std::function<void(QByteArray &)> &how) const
    {
        QByteArray bytes = readAll(folder.at(file));
        how(bytes);
        writeAll(folder.at(file), bytes);
    }
    static void addToCount(QByteArray &table, int by)
    {
        auto *count = reinterpret_cast<Byte *>(table.data() + 4);
        putLe32(count, getLe32(count) + static_cast<std::uint32_t>(by));
    }
    void setCounter(qint32 value) const
    {
        clsDB db;
        ASSERT_TRUE(db.OpenForReading(dir));
        const clsDB::Handle rows = db.OpenTable(db.LastIDTable());
        ASSERT_EQ(r4success, d4seek(rows, "nvncust.dbf                   "));
        ASSERT_EQ(r4success, d4lock(rows, d4recNo(rows)));
        f4assignLong(d4field(rows, "lastid"), value);
        ASSERT_EQ(r4success, d4flush(rows));
        db.CloseTable(rows);
    }

    CtlFolder folder;
    QString dir = folder.path();
};

} // namespace

TEST_F(Repair, WhatTheFilesProveIsPutRightAndNoRowChanges)
{
    const QHash<QString, QByteArray> whole = allFiles();
    const QByteArray index = readAll(folder.at("nvncust.cdx"));
    const QString before = dumps();
    ASSERT_EQ(QString(), problemsOf(dir));
    const auto remove = [&](const char *file) { ASSERT_TRUE(QFile::remove(folder.at(file))); };
    const std::pair<const char *, std::function<void()>> cases[] = {
        {"index missing", [&] { remove("nvncust.cdx"); }},
        {"index of a newer table missing", [&] { remove("nvniactions.cdx"); }},
        {"newer table missing",
         [&] {
             for (const char *file : {"nvnitempl.dbf", "nvnitempl.cdx", "nvnitempl.fpt"})
                 remove(file);
         }},
        {"index empty", [&] { writeAll(folder.at("nvncust.cdx"), {}); }},
        {"index cut", [&] { writeAll(folder.at("nvncust.cdx"), index.left(700)); }},
        {"index cut at a page", [&] { writeAll(folder.at("nvncust.cdx"), index.left(2048)); }},
        {"index of another table",
         [&] { writeAll(folder.at("nvncust.cdx"), readAll(folder.at("nvncat.cdx"))); }},
        {"index is rubbish", [&] { writeAll(folder.at("nvncust.cdx"), QByteArray(4096, 'x')); }},
        {"pages of the index zeroed",
         [&] {
             change("nvncust.cdx", [](QByteArray &b) { b.replace(2048, 512, QByteArray(512, 0)); });
         }},
        {"users' index is rubbish",
         [&] { writeAll(folder.at("nvnuser.cdx"), QByteArray(999, 'x')); }},
        {"rows behind the count",
         [&] { change("nvncust.dbf", [](QByteArray &b) { addToCount(b, -3); }); }},
        {"count beyond the rows",
         [&] { change("nvncust.dbf", [](QByteArray &b) { addToCount(b, 7); }); }},
        {"counter behind", [&] { setCounter(1010); }},
        {"counter garbled", [&] { setCounter(3); }},
    };
    for (const auto &[what, damage] : cases) {
        SCOPED_TRACE(what);
        damage();
        const CtlResult found = ctlRun({"check", dir});
        EXPECT_EQ(1, found.code);
        EXPECT_TRUE(found.out.contains("norvanectl repair") || found.out.contains("puts an empty"))
            << qPrintable(found.out);
        const CtlResult repair = ctlRun({"repair", dir});
        EXPECT_EQ(0, repair.code) << qPrintable(repair.out + repair.err);
        EXPECT_TRUE(repair.out.contains("sound"));
        EXPECT_EQ(QString(), problemsOf(dir));
        EXPECT_TRUE(before == dumps());
        const CtlResult again = ctlRun({"repair", dir});
        EXPECT_EQ(1, again.lines().size()) << "nothing left to do: " << qPrintable(again.out);
        putBack(whole);
    }
}

TEST_F(Repair, WhatIsLostIsToldAndLeftAlone)
{
    struct Case {
        const char *file;
        std::function<void(QByteArray &)> damage;
        const char *told;
    };
    const Case cases[] = {
        {"nvncust.fpt", [](QByteArray &bytes) { bytes.truncate(1024); }, "NOTES"},
        {"nvncust.dbf", [](QByteArray &bytes) { bytes.replace(0, 32, QByteArray(32, 'Z')); }, ""},
        {"nvncat.dbf", [](QByteArray &bytes) { bytes.truncate(20); }, ""},
    };
    for (const Case &each : cases) {
        SCOPED_TRACE(each.file);
        const QByteArray whole = readAll(folder.at(each.file));
        change(each.file, each.damage);
        const QByteArray damaged = readAll(folder.at(each.file));
        const CtlResult repair = ctlRun({"repair", dir});
        EXPECT_EQ(1, repair.code);
        const QStringList left = repair.lines().filter("Not repaired: " + QString(each.file));
        EXPECT_FALSE(left.isEmpty()) << qPrintable(repair.out);
        EXPECT_FALSE(left.filter(each.told).isEmpty()) << qPrintable(repair.out);
        EXPECT_TRUE(repair.out.contains("last backup"));
        EXPECT_EQ(damaged, readAll(folder.at(each.file)));
        writeAll(folder.at(each.file), whole);
    }
    ASSERT_TRUE(QFile::remove(folder.at("nvnrep.fpt")));
    EXPECT_FALSE(ctlRun({"repair", dir}).lines().filter("Not repaired: nvnrep.fpt").isEmpty());
    EXPECT_FALSE(QFile::exists(folder.at("nvnrep.fpt")));
}

TEST_F(Repair, TakesTheRightOfAdministrationOrAFolderWhereNobodyCanLogIn)
{
    folder.addUser("bob", "111111");
    for (const char *command : {"repair", "reindex"}) {
        SCOPED_TRACE(command);
        const QString name = QLatin1String(command);
        EXPECT_EQ(1, ctlRun({name, dir}, "wrong").code);
        EXPECT_EQ(1, ctlRun({name, dir}, {}).code);
        EXPECT_EQ(1, ctlRun({name, dir, "--user", "bob"}, "bob").code);
        const CtlResult readable = ctlRun({name, dir, "--without-login"});
        EXPECT_EQ(1, readable.code);
        EXPECT_TRUE(readable.err.contains("can be read. Log in")) << qPrintable(readable.err);
        EXPECT_EQ(1, ctlRun({name, folder.file("f", {})}).code);
        EXPECT_EQ(2, ctlRun({name}).code);
    }
    ASSERT_TRUE(QFile::remove(folder.at("nvncust.cdx")));
    change("nvnuser.dbf", [](QByteArray &bytes) { bytes.fill('?'); });
    const CtlResult stuck = ctlRun({"repair", dir});
    EXPECT_EQ(1, stuck.code);
    EXPECT_TRUE(stuck.err.contains("use --without-login")) << qPrintable(stuck.err);
    EXPECT_FALSE(QFile::exists(folder.at("nvncust.cdx")));
    const CtlResult rest = ctlRun({"repair", dir, "--without-login"});
    EXPECT_EQ(1, rest.code);
    EXPECT_FALSE(rest.lines().filter("Repaired: nvncust.cdx").isEmpty()) << qPrintable(rest.out);
    EXPECT_FALSE(rest.lines().filter("Not repaired: nvnuser.dbf").isEmpty());
}

TEST_F(Repair, ATableInUseIsLeftAlone)
{
    const QString before = dumps();
    clsDB other;
    ASSERT_TRUE(other.OpenUnattended(dir, "sysop", "sysop"));
    const clsDB::Handle held = other.OpenTable(other.CustomerTable());
    const QByteArray index = readAll(folder.at("nvncust.cdx"));
    const CtlResult repair = ctlRun({"repair", dir});
    EXPECT_EQ(1, repair.code);
    EXPECT_TRUE(repair.out.contains("nvncust.dbf: it is open at another station"))
        << qPrintable(repair.out);
    const CtlResult reindex = ctlRun({"reindex", dir, "customers"});
    EXPECT_EQ(1, reindex.code);
    EXPECT_TRUE(reindex.err.startsWith("Unable to index file: " + folder.at("nvncust.dbf")));
    EXPECT_TRUE(reindex.err.contains("open at another station"));
    EXPECT_EQ(index, readAll(folder.at("nvncust.cdx")));
    EXPECT_TRUE(before == dumps());
    other.CloseTable(held);
    EXPECT_EQ(0, ctlRun({"reindex", dir, "customers"}).code);
}

TEST_F(Repair, AReindexKeepsTheOldIndexBesideTheNewOne)
{
    const QString before = dumps();
    const QByteArray old = readAll(folder.at("nvncat.cdx"));
    EXPECT_EQ(0, ctlRun({"reindex", dir, "lookups"}).code);
    EXPECT_EQ(old, readAll(folder.at("nvncat.cdx.1")));
    EXPECT_FALSE(QFile::exists(folder.at("nvncust.cdx.1")));
    writeAll(folder.at("nvncat.cdx"), QByteArray(3000, 'x'));
    const CtlResult all = ctlRun({"reindex", dir});
    EXPECT_EQ(0, all.code) << qPrintable(all.err);
    EXPECT_EQ(10, all.lines().filter("has been re-indexed").size());
    EXPECT_TRUE(QFile::exists(folder.at("nvncat.cdx.2")));
    EXPECT_EQ(QString(), problemsOf(dir));
    EXPECT_TRUE(before == dumps());
    EXPECT_EQ(2, ctlRun({"reindex", dir, "nothing"}).code);
}
