#include "ctl/CtlRun.h"
#include "db/clsDB.h"
#include "db/Schema.h"
#include "TestPlaces.h"

#include <gtest/gtest.h>

#include <QDate>
#include <QDir>
#include <QFile>
#include <QSet>

#include <algorithm>

TEST(NewDatabase, HoldsTheSeedsOneAdministratorAndIsSound)
{
    const CtlFolder folder;
    for (const schema::TableInfo &table : schema::tables())
        for (const QString &file : table.files())
            EXPECT_TRUE(QFile::exists(folder.at(file))) << qPrintable(file);
    EXPECT_EQ(problemsOf(folder.path()), QString());

    const QList<QJsonObject> users = dumpedRows(folder.path(), "users");
    ASSERT_EQ(users.size(), 1);
    EXPECT_EQ(users[0]["login"].toString().toUpper(), "SYSOP");
    EXPECT_EQ(users[0]["usertype"].toString(), "1");
    EXPECT_EQ(users[0]["useractive"].toString(), "T");

    QHash<int, QString> lookups;
    for (const QJsonObject &row : dumpedRows(folder.path(), "lookups"))
        lookups.insert(row["rowid"].toInt(), row["desc"].toString());
    EXPECT_EQ(lookups.value(400), "Open");
    EXPECT_EQ(lookups.value(401), "Closed");
    EXPECT_EQ(lookups.value(451), "Normal");
    EXPECT_TRUE(lookups.values().contains(QStringLiteral("São Tomé and Príncipe")));
    EXPECT_TRUE(dumpedRows(folder.path(), "customers").isEmpty());
    EXPECT_GE(dumpedRows(folder.path(), "reports").size(), 6);
}

TEST(NewDatabase, RefusesAFolderThatHoldsADatabaseAndLeavesItAlone)
{
    const CtlFolder folder;
    const QByteArray before = readAll(folder.at("nvnuser.dbf"));
    for (const QString &command : {QStringLiteral("new"), QStringLiteral("demo")}) {
        const CtlResult again = ctlRun({command, folder.path()});
        EXPECT_EQ(again.code, 1);
        EXPECT_TRUE(again.err.contains("NEW DATABASE CREATION FAILED!"));
        EXPECT_TRUE(again.err.contains("nvnuser.dbf"));
    }
    EXPECT_EQ(readAll(folder.at("nvnuser.dbf")), before);
}

TEST(NewDatabase, OtherFilesInTheFolderDoNotMatter)
{
    QTemporaryDir dir;
    writeAll(dir.filePath("notes.txt"), "mine");
    EXPECT_EQ(ctlRun({"new", dir.path()}).code, 0);
    EXPECT_EQ(readAll(dir.filePath("notes.txt")), "mine");
}

TEST(NewDatabase, APlaceWhereNoFolderCanBeIsRefused)
{
    QTemporaryDir dir;
    writeAll(dir.filePath("file"), "x");
    const CtlResult onFile = ctlRun({"new", dir.filePath("file")});
    EXPECT_EQ(onFile.code, 1);
    EXPECT_TRUE(onFile.err.contains("is a file, not a folder")) << qPrintable(onFile.err);
    const CtlResult belowFile = ctlRun({"new", dir.filePath("file/below")});
    EXPECT_EQ(belowFile.code, 1);
    EXPECT_TRUE(belowFile.err.contains("cannot be created")) << qPrintable(belowFile.err);
    // The file system of the kernel's own takes no new files, whoever asks.
    if (QDir("/sys/kernel").exists()) {
        const CtlResult readOnly = ctlRun({"new", "/sys/kernel"});
        EXPECT_EQ(readOnly.code, 1);
        EXPECT_FALSE(readOnly.err.isEmpty());
    }
}

TEST(Demo, EveryRowOfTheFileBecomesACustomerWithItsListEntries)
{
    QTemporaryDir dir;
    const CtlResult demo = ctlRun({"demo", dir.path()});
    ASSERT_EQ(demo.code, 0);
    EXPECT_EQ(demo.err, QString());
    EXPECT_EQ(problemsOf(dir.path()), QString());

    QSet<int> ids;
    QHash<int, int> types;
    for (const QJsonObject &row : dumpedRows(dir.path(), "lookups"))
        types.insert(row["rowid"].toInt(), row["type"].toInt());
    const QList<QJsonObject> customers = dumpedRows(dir.path(), "customers");
    const qsizetype rows =
        readAll(QStringLiteral(NORVANE_SOURCE_DIR "/data/demo/customers.csv")).count('\n') - 1;
    EXPECT_EQ(customers.size(), rows);
    bool accents = false;
    for (const QJsonObject &row : customers) {
        ids << row["rowid"].toInt();
        EXPECT_EQ(types.value(row["country"].toInt()), 4);
        EXPECT_EQ(types.value(row["state"].toInt(), 3), 3);
        EXPECT_EQ(types.value(row["custcat"].toInt(), 1), 1);
        accents = accents || row["company"].toString().contains(QStringLiteral("Söhne"));
    }
    EXPECT_TRUE(accents);
    EXPECT_EQ(ids.size(), rows);
    EXPECT_EQ(*std::min_element(ids.begin(), ids.end()), 1000);
}

// Whatever refers to something refers to a row that is there, and of the right kind.
TEST(Demo, WhatCustomersHoldAndRaisedHangsTogether)
{
    QTemporaryDir dir;
    ASSERT_EQ(ctlRun({"demo", dir.path()}).code, 0);
    const auto ids = [&dir](const QString &table) {
        QSet<int> found;
        for (const QJsonObject &row : dumpedRows(dir.path(), table))
            found << row["rowid"].toInt();
        return found;
    };
    QHash<int, int> types;
    for (const QJsonObject &row : dumpedRows(dir.path(), "lookups"))
        types.insert(row["rowid"].toInt(), row["type"].toInt());
    const QSet<int> customers = ids("customers");
    const QSet<int> users = ids("users");
    const QSet<int> issues = ids("issues");
    EXPECT_EQ(users.size(), 5);

    const QList<QJsonObject> subscriptions = dumpedRows(dir.path(), "subscriptions");
    EXPECT_GT(subscriptions.size(), 200);
    for (const QJsonObject &row : subscriptions) {
        EXPECT_TRUE(customers.contains(row["custid"].toInt()));
        EXPECT_EQ(types.value(row["psid"].toInt()), 2);
        EXPECT_EQ(types.value(row["conttype"].toInt()), 103);
        EXPECT_EQ(types.value(row["contdur"].toInt()), 104);
    }
    QSet<int> statuses;
    const QString today = QDate::currentDate().addDays(1).toString("yyyyMMdd"); // across midnight
    for (const QJsonObject &row : dumpedRows(dir.path(), "issues")) {
        statuses << row["status"].toInt();
        EXPECT_TRUE(customers.contains(row["custid"].toInt()));
        EXPECT_TRUE(users.contains(row["assignedto"].toInt()));
        EXPECT_EQ(types.value(row["psid"].toInt()), 2);
        EXPECT_EQ(types.value(row["status"].toInt()), 101);
        EXPECT_EQ(types.value(row["priority"].toInt()), 102);
        EXPECT_EQ(types.value(row["issuecat"].toInt()), 105);
        EXPECT_LE(row["submitdt"].toString(), row["responsedt"].toString());
        EXPECT_LE(row["responsedt"].toString(), today);
        const bool settled = row["status"].toInt() == 401;
        EXPECT_EQ(!row["resolvedt"].toString().isEmpty(), settled);
        EXPECT_EQ(!row["resolution"].toString().isEmpty(), settled);
    }
    EXPECT_GT(statuses.size(), 3);
    QSet<int> withActions;
    for (const QJsonObject &row : dumpedRows(dir.path(), "actions")) {
        withActions << row["issueid"].toInt();
        EXPECT_EQ(types.value(row["action"].toInt()), 106);
        EXPECT_GT(row["duration"].toDouble(), 0);
    }
    EXPECT_EQ(withActions, issues);
    for (const QJsonObject &row : dumpedRows(dir.path(), "templates"))
        EXPECT_FALSE(row["name"].toString().isEmpty());

    const QStringList folders =
        QDir(dir.filePath("nvnattach")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    EXPECT_GT(folders.size(), 5);
    for (const QString &folder : folders)
        EXPECT_TRUE(issues.contains(folder.section('_', -1).toInt())) << qPrintable(folder);
}

TEST(Demo, IsTheSameEveryTime)
{
    QTemporaryDir one;
    QTemporaryDir two;
    ASSERT_EQ(ctlRun({"demo", one.path()}).code, 0);
    ASSERT_EQ(ctlRun({"demo", two.path()}).code, 0);
    const auto rows = [](const QTemporaryDir &dir, const QString &table) {
        QList<QJsonObject> all = dumpedRows(dir.path(), table);
        for (QJsonObject &row : all) {
            row.remove("lastmoddt");
            row.remove("lastmodtm");
        }
        return all;
    };
    for (const char *table :
         {"customers", "lookups", "subscriptions", "issues", "actions", "templates"})
        EXPECT_EQ(rows(one, table), rows(two, table)) << table;
}
