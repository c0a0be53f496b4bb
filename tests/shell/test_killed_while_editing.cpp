// The program itself, killed while it edits a customer on its tour: the row is the old or the new
// one, the mark that is left leads to the question, and other stations work on.
#include "db/clsDB.h"
#include "db/Screens.h"
#include "support/FakeHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TempPreferences.h"
#include "TestPlaces.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <functional>

using namespace Qt::Literals::StringLiterals;
using schema::Table;

namespace
{

class KilledWhileEditing : public ::testing::Test
{
protected:
    void SetUp() override
    {
        screens().askUnderEdit = [this](const QString &user, const QString &station) {
            m_asked = user % u'@' % station;
            return false;
        };
        QDir(m_folder.path()).mkdir(u"data"_s);
        m_program.setProcessChannelMode(QProcess::MergedChannels);
        m_program.start(QStringLiteral(NORVANE_BINARY_DIR "/bin/norvane"),
                        {u"--tour"_s, m_folder.filePath(u"pictures"_s), data()});
        ASSERT_TRUE(m_program.waitForStarted());
    }
    void TearDown() override
    {
        m_program.kill();
        m_program.waitForFinished();
        screens().askUnderEdit = {};
    }

    QString data() const { return m_folder.filePath(u"data"_s); }
    bool shown(const char *picture) const
    {
        return !QDir(m_folder.filePath(u"pictures"_s))
                    .entryList({u"*-"_s % QLatin1String(picture) % u".png"_s})
                    .isEmpty();
    }
    // Looks again and again, without a pause: the moment counts.
    bool until(const std::function<bool()> &there)
    {
        const QDeadlineTimer end(60000);
        while (!there()) {
            if (end.hasExpired() || m_program.state() == QProcess::NotRunning)
                return false;
            m_program.waitForReadyRead(1);
        }
        return true;
    }
    void killIt()
    {
        m_program.kill();
        ASSERT_TRUE(m_program.waitForFinished());
        ASSERT_EQ(m_program.exitStatus(), QProcess::CrashExit) << qPrintable(said());
    }
    QString said() { return QString::fromUtf8(m_program.readAll()); }
    QByteArray journalHeader() const
    {
        QFile file(data() % u"/nvncust.nvj"_s);
        return file.open(QIODevice::ReadOnly) ? file.read(128) : QByteArray();
    }

    RecColl customer(clsDB &station, qint32 rowid = kCustomer) const
    {
        RecColl row(station.CustomerTable(), schema::table(Table::Customer).dataFile(), rowid,
                    u"_customer"_s);
        EXPECT_TRUE(station.ReadRecord(row));
        return row;
    }
    // Another station that works on: its saves are stored, and the tables are sound.
    static void expectOthersUndisturbed(clsDB &station)
    {
        RecColl fresh = station.NewCustomerRecColl();
        fresh.setExisting(u"company"_s, u"Undisturbed"_s);
        EXPECT_TRUE(station.SaveRecord(fresh));
        for (const schema::TableInfo &table : schema::tables()) {
            const clsDB::Handle handle = station.OpenTable(station.TablePath(table.table));
            EXPECT_EQ(norvane::engine::d4check(handle), std::vector<std::string>())
                << qPrintable(table.dataFile());
            station.CloseTable(handle);
        }
    }

    static constexpr qint32 kCustomer = 1000; // the first one of the tour
    FakeHost m_machine;
    ScriptedPrompts m_person;
    TempPreferences m_preferences;
    QTemporaryDir m_folder;
    QProcess m_program;
    QString m_asked;
};

} // namespace

TEST_F(KilledWhileEditing, LeavesTheOldRowAndAMarkThatIsAskedAbout)
{
    ASSERT_TRUE(until([this] { return shown("customer-edit"); })) << qPrintable(said());
    clsDB other;
    ASSERT_TRUE(other.OpenUnattended(data(), u"SYSOP"_s, u"sysop"_s));
    const QString before = customer(other).text(u"workphone"_s);
    killIt();
    EXPECT_EQ(customer(other).text(u"workphone"_s), before);
    EXPECT_EQ(customer(other).text(u"lastname"_s), u"Merriweather"_s);
    EXPECT_FALSE(other.CheckIfRecNotUnderEdit(other.CustomerTable(), u"nvncust.dbf"_s, kCustomer));
    EXPECT_TRUE(m_asked.startsWith(u"sysop@"_s, Qt::CaseInsensitive)) << qPrintable(m_asked);
    expectOthersUndisturbed(other);
}

TEST_F(KilledWhileEditing, LeavesTheRowAsItWasOrAsItWasToBe)
{
    ASSERT_TRUE(until([this] { return shown("customer-notes"); })) << qPrintable(said());
    const QByteArray begun = journalHeader(); // the next change of it is the save
    EXPECT_FALSE(begun.isEmpty());
    ASSERT_TRUE(until([&] { return journalHeader() != begun; })) << qPrintable(said());
    killIt();
    clsDB other;
    ASSERT_TRUE(other.OpenUnattended(data(), u"SYSOP"_s, u"sysop"_s));
    const RecColl row = customer(other);
    const bool isNew = row.text(u"notes"_s).contains(u"New number"_s);
    EXPECT_EQ(row.text(u"workphone"_s) == u"(503) 555-0142"_s, !isNew);
    EXPECT_EQ(row.text(u"notes"_s).isEmpty(), !isNew);
    // the mark is cleared with the row, or it is asked about
    const bool free =
        other.CheckIfRecNotUnderEdit(other.CustomerTable(), u"nvncust.dbf"_s, kCustomer);
    EXPECT_EQ(free, m_asked.isEmpty());
    EXPECT_TRUE(isNew || !free);
    expectOthersUndisturbed(other);
}
