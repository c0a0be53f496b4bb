// The user's settings: text values under free names.
#include "support/TempPreferences.h"

#include <gtest/gtest.h>

#include <QFile>

namespace
{

class PreferencesStore : public ::testing::Test
{
protected:
    void writeStore(const QByteArray &bytes) const
    {
        QFile file(m_preferences.path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    TempPreferences m_preferences;
};

} // namespace

TEST_F(PreferencesStore, MissingValuesAreEmptyOrZero)
{
    EXPECT_EQ("", GetPrefStr("db"));
    EXPECT_EQ(0, GetPrefLong("top"));
}

TEST_F(PreferencesStore, NumbersAreRoundedTexts)
{
    EXPECT_TRUE(SetPrefLong("top", -120));
    EXPECT_EQ("-120", GetPrefStr("top"));
    EXPECT_EQ(-120, GetPrefLong("top"));
    SetPrefStr("left", "12.5");
    EXPECT_EQ(12, GetPrefLong("left"));
    SetPrefStr("left", "wide");
    EXPECT_EQ(0, GetPrefLong("left"));
    SetPrefStr("left", "99999999999");
    EXPECT_EQ(0, GetPrefLong("left"));
}

TEST_F(PreferencesStore, AnyNameAndAnyTextComeBack)
{
    const QString text = "a, b; \"c\" = [d] % \\ é 漢\n";
    for (const char *name :
         {"Open / Closed", "Open \\ Closed", "50% off", "%2F", "a b", "Größe", "Open", ""}) {
        EXPECT_TRUE(SetPrefStr(name, text + name)) << name;
        EXPECT_EQ(QString(text + name), GetPrefStr(name)) << name;
    }
    EXPECT_EQ(QString(text + "Open"), GetPrefStr("Open"));
    EXPECT_EQ(QString(text + "%2F"), GetPrefStr("%2F"));
}

TEST_F(PreferencesStore, WhatWeDidNotWriteIsReadWithCare)
{
    writeStore("[Pref]\ndb=/data/x, y\nLastLogin=ann\\0bob\ntop=\"7\"\n\n[Other]\nleft=5\n");
    EXPECT_EQ("/data/x, y", GetPrefStr("db"));
    EXPECT_EQ("ann", GetPrefStr("LastLogin"));
    EXPECT_EQ(7, GetPrefLong("top"));
    EXPECT_EQ(0, GetPrefLong("left"));
    SetPrefStr("db", QString(5000, u'x'));
    EXPECT_EQ(1024, GetPrefStr("db").size());
}

TEST_F(PreferencesStore, ADamagedStoreReadsAsDefaultsAndTakesNewValues)
{
    QByteArray everyByte;
    for (int i = 0; i < 4096; ++i)
        everyByte.append(static_cast<char>(i * 7));
    const QByteArray stores[] = {"",
                                 QByteArray(3000, '\0'),
                                 everyByte,
                                 "[Pref",
                                 "[Pref]\ndb",
                                 "[Pref]\ndb=\"/data",
                                 "[Pref]\ntop=@Variant(\\0\\0\\0\\x7f\\xff)\n",
                                 "[Pref]\ntop=@Rect(1 2)\nleft=\\x110000\\\n",
                                 QByteArray(200000, '[')};
    for (const QByteArray &store : stores) {
        SCOPED_TRACE(store.left(20).toStdString());
        writeStore(store);
        EXPECT_EQ(0, GetPrefLong("top"));
        EXPECT_LE(GetPrefStr("db").size(), 1024);
        SetPrefStr("db", "/data/ours");
        EXPECT_EQ("/data/ours", GetPrefStr("db"));
        SetPrefLong("top", 12);
        EXPECT_EQ(12, GetPrefLong("top"));
    }
}

TEST_F(PreferencesStore, AStoreThatCannotBeWrittenAnswersFalse)
{
    const QString before = usePreferencesFile("/proc/norvane/none.ini");
    EXPECT_FALSE(SetPrefStr("db", "x"));
    EXPECT_EQ("", GetPrefStr("db"));
    usePreferencesFile(before);
}
