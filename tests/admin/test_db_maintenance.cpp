// The window for the maintenance of the data files.
#include "admin/clsDBUtil.h"
#include "admin/frmDBMaint.h"
#include "db/clsDB.h"
#include "support/FakeHost.h"
#include "support/RecordingSwitchboard.h"
#include "support/ScriptedPrompts.h"
#include "support/Station.h"
#include "support/TempDatabase.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

using schema::Table;

namespace
{

class Maintenance : public ::testing::Test
{
protected:
    using Answer = prompts::Answer;
    using Kind = prompts::Kind;

    Maintenance() { form.Filenames(gDB.DataFilePaths()); }
    template <class T>
    T *part(const char *name)
    {
        T *found = form.findChild<T *>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    void select(Table table)
    {
        part<QListWidget>("lstDataFiles")->setCurrentRow(static_cast<int>(table));
    }
    void press(const char *button) { part<QPushButton>(button)->click(); }
    ScriptedPrompts::Step &expectQuestion(Answer answer)
    {
        return person.expect("You are about to Re-Index the following file:\n\n", answer)
            .title("Re-Index Data File")
            .kind(Kind::Question)
            .buttons({Answer::Yes, Answer::No, Answer::Cancel})
            .preset(Answer::No);
    }

    FakeHost machine;
    ScriptedPrompts person;
    RecordingSwitchboard board;
    TempDatabase database;
    frmDBMaint form;
};

} // namespace

TEST_F(Maintenance, ReindexesTheSelectedFileAfterAQuestion)
{
    EXPECT_EQ(part<QListWidget>("lstDataFiles")->count(), 10);
    EXPECT_EQ(part<QLabel>("lblWarn")->text(),
              "WARNING: \n1. Backup your Database Files (See Help menu) before performing any "
              "maintenance\n2. Make sure no one is using the application before performing any "
              "maintenance");
    for (const char *button : {"IndexButton", "CheckButton"}) {
        person.expect("Select a data file!")
            .title("No data file selected")
            .kind(Kind::Critical)
            .buttons({Answer::Ok, Answer::Cancel});
        press(button);
    }
    select(Table::Customer);
    expectQuestion(Answer::No);
    press("IndexButton");
    EXPECT_FALSE(QFile::exists(database.file("nvncust.cdx.1")));

    const QString file = QDir::toNativeSeparators(gDB.CustomerTable());
    expectQuestion(Answer::Yes);
    person.expect(file + " has been re-indexed.").title("File Indexed").kind(Kind::Information);
    press("IndexButton");
    EXPECT_TRUE(QFile::exists(database.file("nvncust.cdx.1")));
    EXPECT_EQ(part<QLabel>("lblProgress")->text(), "");
    EXPECT_TRUE(part<QPushButton>("IndexButton")->isEnabled());
    EXPECT_TRUE(part<QPushButton>("CloseButton")->isEnabled());
}

TEST_F(Maintenance, AFileInUseIsLeftAsItIs)
{
    const qint32 customer = database.addCustomer({{"lastname", "Lund"}});
    Station other(database.path());
    ASSERT_EQ(other.ask(QString("lockrow nvncust.dbf %1").arg(customer)), "ok");
    select(Table::Customer);
    expectQuestion(Answer::Yes);
    person.expect("Unable to index file: ").title("File Indexing Failed").kind(Kind::Warning);
    press("IndexButton");
    EXPECT_TRUE(person.texts().back().contains("Nothing was changed."));
    EXPECT_FALSE(QFile::exists(database.file("nvncust.cdx.1")));
    ASSERT_EQ(other.ask("unlock"), "ok");
}

TEST_F(Maintenance, TheCheckSaysWhatIsWrongAndWhatToDo)
{
    select(Table::Customer);
    person.expect("are sound. There is nothing to do.").kind(Kind::Information);
    press("CheckButton");
    ASSERT_TRUE(QFile::resize(database.file("nvncust.cdx"), 100));
    person.expectText("nvncust.cdx: ").kind(Kind::Warning);
    press("CheckButton");
    EXPECT_TRUE(person.texts().back().contains("No data is lost"));
    EXPECT_TRUE(person.texts().back().contains("The button Re-Index rebuilds the index"));
    expectQuestion(Answer::Yes);
    person
        .expect("The index as it was is kept in '" +
                QDir::toNativeSeparators(database.file("nvncust.cdx.1")) + "'.")
        .title("File Indexed");
    press("IndexButton");
    person.expect("are sound. There is nothing to do.");
    press("CheckButton");
}

TEST_F(Maintenance, NeedsAnOpenDatabase)
{
    ASSERT_TRUE(gDB.CloseDB());
    person.expect("No database is currently open. See File menu.")
        .title("No Database Open")
        .kind(Kind::Information);
    clsDBUtil::DlgDBMaintenance(nullptr, {});
}
