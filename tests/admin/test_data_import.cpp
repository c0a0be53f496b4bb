// The import wizard as an administrator works with it.
#include "admin/frmDataImport.h"
#include "admin/ImportPreview.h"
#include "common/base/AppInfo.h"
#include "common/base/clsSystem.h"
#include "common/base/Host.h"
#include "support/DialogDriver.h"
#include "support/FakeHost.h"
#include "support/RecordingSwitchboard.h"
#include "support/ScriptedPrompts.h"
#include "support/TempDatabase.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTableView>
#include <QTableWidget>
#include <QTest>

using schema::Table;

namespace
{

constexpr int customers = 0;
constexpr int statuses = 7;

class DataImport : public ::testing::Test
{
protected:
    using Answer = prompts::Answer;
    using Kind = prompts::Kind;

    DataImport() : wizard(std::make_unique<frmDataImport>())
    {
        wizard->show();
        wizard->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(wizard.get()));
    }
    template <class T>
    T *part(const char *name) const
    {
        T *found = wizard->findChild<T *>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    QString label(const char *name) const { return part<QLabel>(name)->text(); }
    QTableWidget *targets() const { return part<QTableWidget>("grdImport"); }
    QAbstractItemModel *preview() const { return part<QTableView>("grdPreview")->model(); }
    QString previewCell(int row, int column) const
    {
        return preview()->index(row, column).data().toString();
    }
    int step() const { return part<QStackedWidget>("pages")->currentIndex(); }
    bool enabled(const char *button) const { return part<QPushButton>(button)->isEnabled(); }
    QString caption(const char *button) const
    {
        return part<QPushButton>(button)->text().remove(u'&');
    }
    void next() const { part<QPushButton>("cmdNext")->click(); }
    void previous() const { part<QPushButton>("cmdPrevious")->click(); }

    QString write(const QByteArray &bytes) const
    {
        const QString path = folder.filePath(QStringLiteral("import.csv"));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return path;
    }
    void choose(int target, const QString &file)
    {
        targets()->setCurrentCell(target, 0);
        next();
        part<QLineEdit>("txtFilename")->setText(file);
        next();
    }
    static qint32 stored(const QString &table)
    {
        return gDB.GetRecCount(table, QStringLiteral("rowid"));
    }

    FakeHost machine;
    ScriptedPrompts person;
    RecordingSwitchboard board;
    TempDatabase database;
    QTemporaryDir folder;
    std::unique_ptr<frmDataImport> wizard;
};

} // namespace

TEST_F(DataImport, LeadsFromTheTargetOverTheFileToTheRows)
{
    EXPECT_TRUE(label("lblWelcome").contains("importing data into Norvane."));
    EXPECT_EQ(targets()->rowCount(), 11);
    EXPECT_FALSE(enabled("cmdPrevious"));
    targets()->setCurrentCell(statuses, 0);
    next();
    EXPECT_EQ(label("lblFile"), "Please enter or browse to the file that contains data for "
                                "'Lookup List: Issue Statuses' :");
    previous();
    EXPECT_EQ(step(), 0);

    const QString file = write("lastname, Company\n\n\"Smith, Jr.\",\"a \"\"b\"\" c\"\nDoe\n");
    person.expectOpenFile("Open Data Import File", file);
    targets()->setCurrentCell(customers, 0);
    next();
    part<QPushButton>("cmdBrowse")->click();
    EXPECT_TRUE(person.seen().back().request.filter.startsWith("MS Excel Comma Delimited File"));
    EXPECT_EQ(part<QLineEdit>("txtFilename")->text(), file);
    next();
    EXPECT_EQ(label("lblCriteria"),
              "You are about to import 'Customers' from file: '" + file + "'");
    EXPECT_EQ(caption("cmdNext"), "Import Now");
    ASSERT_EQ(preview()->rowCount(), 2);
    EXPECT_EQ(preview()->headerData(1, Qt::Horizontal).toString(), "COMPANY");
    EXPECT_EQ(preview()->headerData(0, Qt::Vertical).toInt(), 2) << "blank rows are counted";
    EXPECT_EQ(previewCell(0, 0), "Smith, Jr.");
    EXPECT_EQ(previewCell(0, 1), "a \"b\" c");
    EXPECT_EQ(previewCell(1, 1), "");

    previous();
    EXPECT_EQ(preview(), nullptr);
    EXPECT_EQ(part<QLineEdit>("txtFilename")->text(), file);
    EXPECT_EQ(caption("cmdNext"), "Next >>");
}

TEST_F(DataImport, NamesTheListsAsTheDatabaseDoes)
{
    ASSERT_TRUE(gDB.SetParamValue(gDB.MakeCustomFieldParamName("nvncust.dbf", "custcat"), "Kind"));
    ASSERT_TRUE(gDB.SetParamValue(gDB.MakeCustomFieldParamName("nvncust.dbf", "state"), "<b>&R"));
    wizard = std::make_unique<frmDataImport>();
    EXPECT_EQ(targets()->item(1, 0)->text(), "Lookup List: Customer Kind");
    EXPECT_EQ(targets()->item(5, 0)->text(), "Lookup List: <b>&R");
    EXPECT_EQ(targets()->item(10, 0)->text(), "Lookup List: Issue Category");
}

TEST_F(DataImport, FormatHelpOpensByMouseAndKeyboard)
{
    person.expectText("IMPORT - Customers\n\n").kind(Kind::Information);
    person.expectText("IMPORT - Lookup List: Issue Statuses\n\n");
    const QRect link = targets()->visualItemRect(targets()->item(customers, 1));
    QTest::mouseClick(targets()->viewport(), Qt::LeftButton, {}, link.center());
    const QString told = person.texts().back();
    for (const clsImportColDef &column : customerImportColumns())
        EXPECT_TRUE(told.contains(u'\n' + column.name + u'\n')) << qPrintable(column.name);
    EXPECT_TRUE(told.contains(QDir::toNativeSeparators(app::programFolder())));
    targets()->setFocus();
    targets()->setCurrentCell(statuses, 0);
    QTest::keyClick(targets(), Qt::Key_Space);
    EXPECT_TRUE(person.texts().back().contains("Sample Lookup List Import.csv"));
}

TEST_F(DataImport, AFileThatIsNotThereOrNotSoundStaysInItsStep)
{
    const QString gone = folder.filePath("gone.csv");
    person.expectText("Please enter the name of the data file to import.").kind(Kind::Critical);
    person.expectText("'" + gone + "' does not exist!").kind(Kind::Critical);
    person.expectText("' does not exist!");
    choose(customers, "  ");
    part<QLineEdit>("txtFilename")->setText(gone);
    next();
    part<QLineEdit>("txtFilename")->setText(folder.path());
    next();

    const QString file = write("FULLNAME,COMPANY\nDoe,ACME\n");
    person.expectText("IMPORT FAILED FROM FILE " + file + "!\r\n\r\n").kind(Kind::Critical);
    part<QLineEdit>("txtFilename")->setText(file);
    next();
    EXPECT_TRUE(person.texts().back().contains("'LASTNAME' is missing"));
    EXPECT_TRUE(person.texts().back().contains("'FULLNAME' found"));

    write("LASTNAME,COMPANY\n" + QByteArray("a,b,c\n").repeated(60));
    person.expectText("MORE THAN 50 ERRORS ENCOUNTERED");
    next();
    write("");
    person.expectText("Unable to read column headers from row 1 of file " + file);
    next();
    person.cancelProgressAt(1);
    write("LASTNAME,COMPANY\nDoe,\n");
    person.expectText("did not reach the end of the file");
    next();
    EXPECT_EQ(step(), 1);
    EXPECT_EQ(part<QLineEdit>("txtFilename")->text(), file);
    EXPECT_EQ(stored(gDB.CustomerTable()), 0);
}

TEST_F(DataImport, AFileThatCannotBeReadIsTold)
{
    const QString file = QStringLiteral("/proc/self/mem"); // there, and no byte of it to be had
    person.expectText("Unable to read column headers from row 1 of file " + file);
    choose(customers, file);
    EXPECT_EQ(step(), 1);
}

TEST_F(DataImport, TheSampleFilesGoIn)
{
    const QDir samples(app::programFolder());
    person.expect("Imported 4 Records!\n\n4 rows tried, 4 stored, 0 skipped.")
        .kind(Kind::Information);
    choose(customers, samples.filePath("Sample Customer Import.csv"));
    EXPECT_EQ(preview()->rowCount(), 4);
    EXPECT_EQ(preview()->columnCount(), customerImportColumns().size());
    next();
    EXPECT_EQ(stored(gDB.CustomerTable()), 4);
    EXPECT_FALSE(person.progress().back().cancel);
    EXPECT_EQ(person.progress().back().message, "Integrating data. Please wait...");
    EXPECT_FALSE(enabled("cmdNext"));
    EXPECT_FALSE(enabled("cmdPrevious"));
    EXPECT_EQ(caption("CancelButton"), "Finish");
    part<QPushButton>("CancelButton")->click();
    EXPECT_FALSE(wizard->isVisible());

    const QString list = samples.filePath("Sample Lookup List Import.csv");
    const qint32 before = stored(gDB.CategoryTable());
    for (const char *outcome : {"3 rows tried, 3 stored, 0 skipped.",
                                "3 rows tried, 0 stored, 3 skipped because the list has them"}) {
        wizard = std::make_unique<frmDataImport>();
        person.expect(QLatin1String("Imported 3 Records!\n\n") + outcome);
        choose(statuses, list);
        next();
        EXPECT_EQ(stored(gDB.CategoryTable()), before + 3);
    }
}

TEST_F(DataImport, AsksBeforeMoreThanFiveThousandRows)
{
    const QByteArray rows = QByteArray("DESCRIPTION\n") + QByteArray("One\n").repeated(5000);
    person.expect("Imported 5000 Records!\n\n5,000 rows tried, 1 stored, 4,999 skipped");
    choose(statuses, write(rows));
    next();
    const qint32 before = stored(gDB.CategoryTable());

    wizard = std::make_unique<frmDataImport>();
    choose(statuses, write(rows + "Another\n"));
    for (const Answer answer : {Answer::No, Answer::Cancel}) {
        person.expect("contains 5,001 rows of data and may take a long time", answer)
            .kind(Kind::Question)
            .buttons({Answer::Yes, Answer::No, Answer::Cancel})
            .preset(Answer::No);
        next();
        EXPECT_EQ(stored(gDB.CategoryTable()), before);
        EXPECT_TRUE(enabled("cmdNext"));
    }
    person.expect("5,001 rows", Answer::Yes);
    person.expect("Imported 5001 Records!");
    next();
    EXPECT_EQ(stored(gDB.CategoryTable()), before + 1);
}

TEST_F(DataImport, AFileThatGoesOrChangesBeforeTheImportIsTold)
{
    const QString file = write("LASTNAME,COMPANY\nDoe,\n");
    choose(customers, file);
    ASSERT_TRUE(QFile::remove(file));
    EXPECT_EQ(previewCell(0, 0), "Doe") << "what was read stays";
    person.expect("'" + file + "' cannot be read");
    person.expect("Unable to import data!\n\n0 rows tried, 0 stored, 0 skipped.")
        .kind(Kind::Critical);
    next();
    EXPECT_TRUE(enabled("cmdNext") && enabled("cmdPrevious"));
    EXPECT_EQ(caption("CancelButton"), "Cancel");

    write("LASTNAME,COMPANY\nDoe,\nRoe,too,many\n");
    person.expect("Imported 2 Records!\n\n2 rows tried, 2 stored, 0 skipped.\n"
                  "The file has changed since it was checked.");
    next();
    EXPECT_EQ(stored(gDB.CustomerTable()), 2);
}

TEST_F(DataImport, AFileCutOffDuringTheImportKeepsWhatWasRead)
{
    const QString file = write("DESCRIPTION\n" + QByteArray("Status\n").repeated(20000));
    choose(statuses, file);
    int pauses = 0;
    host().pumpEvents = [&] {
        if (++pauses == 5) {
            EXPECT_TRUE(QFile::resize(file, 20));
        }
    };
    person.expect("rows of data", Answer::Yes);
    person.expect("The file has changed since it was checked.").kind(Kind::Information);
    next();
    EXPECT_GT(gDB.CategoryExists("Status", 101), 0);
}

TEST_F(DataImport, TheRowsCanBeLookedAtInALargerWindowAndGoInFromThere)
{
    choose(customers, write("LASTNAME,COMPANY\nDoe,ACME\nRoe,\n"));
    part<QTableView>("grdPreview")->selectRow(1);
    const auto press = [](const char *button) {
        return [button](QWidget *window) {
            EXPECT_EQ(window->objectName(), "frmImportPreview");
            const auto *grid = window->findChild<QTableView *>("grdPreview");
            EXPECT_EQ(grid->model()->index(0, 1).data().toString(), "ACME");
            EXPECT_EQ(grid->currentIndex().row(), 1);
            clickButton(window, QLatin1String(button));
        };
    };
    DialogDriver cancelled(press("cmdCancel"));
    part<QPushButton>("cmdLargerView")->click();
    EXPECT_EQ(previewCell(0, 1), "ACME") << "the wizard keeps the rows";
    EXPECT_EQ(stored(gDB.CustomerTable()), 0);

    person.expect("Imported 2 Records!");
    DialogDriver continued(press("cmdContinue"));
    part<QPushButton>("cmdLargerView")->click();
    EXPECT_EQ(stored(gDB.CustomerTable()), 2);
    EXPECT_FALSE(enabled("cmdLargerView")) << "they would go in twice";
}

TEST_F(DataImport, LettersThatCannotBeStoredAreSeenBeforehand)
{
    const QByteArray accents = QString("o\u0308 \u20AC?").toUtf8();
    choose(customers,
           write("\xEF\xBB\xBFLASTNAME,COMPANY\nDvo\u0159\u00E1k,?\n" + accents + ",x\n"));
    EXPECT_EQ(previewCell(0, 0), "Dvo?\u00E1k");
    EXPECT_EQ(previewCell(1, 0), "\u00F6 \u20AC?");
    const QString told = "1 rows hold letters that cannot be stored; a ? stands for each.";
    EXPECT_EQ(label("lblLostLetters"), told);
    EXPECT_TRUE(part<QLabel>("lblLostLetters")->isVisible());
    person.expect("2 rows tried, 2 stored, 0 skipped.\n" + told);
    next();
    EXPECT_FALSE(part<QLabel>("lblImportNow")->isVisible());
}

TEST_F(DataImport, ATableThatCannotBeOpenedIsTold)
{
    choose(customers, write("LASTNAME,COMPANY\nDoe,\n"));
    ASSERT_TRUE(QFile::rename(gDB.CustomerTable(), database.file("away")));
    person.expect("Unable to open: " + gDB.CustomerTable());
    person.expect("Unable to open Customer table!").kind(Kind::Critical);
    person.expect("Unable to import data!").kind(Kind::Critical);
    next();
    ASSERT_TRUE(QFile::rename(database.file("away"), gDB.CustomerTable()));
    EXPECT_EQ(stored(gDB.CustomerTable()), 0);
}

TEST_F(DataImport, LetsNobodyInWhileItReadsOrWrites)
{
    bool open = true;
    int pumped = 0;
    host().pumpEvents = [&] {
        ++pumped;
        wizard->close();
        open = open && wizard->isVisible() && !enabled("cmdNext");
    };
    const QByteArray rows = QByteArray("One\n").repeated(250);
    person.expect("Imported 250 Records!");
    choose(statuses, write("DESCRIPTION\n" + rows));
    EXPECT_GT(pumped, 3);
    next();
    EXPECT_GT(pumped, 250);
    EXPECT_TRUE(open);
}

TEST_F(DataImport, ThePreviewOfALongFileReadsWhatIsLookedAt)
{
    QByteArray rows("COMPANY,LASTNAME\n");
    constexpr int count = 10000;
    for (int i = 1; i <= count; ++i)
        rows += (i % 7 == 0 ? "\n" : "") + QByteArray::number(i) + ",x\n";
    choose(customers, write(rows));
    ASSERT_EQ(preview()->rowCount(), count);
    for (int i : {count, 1, count / 2, 64, 65, 128, 6, 7, 8}) {
        EXPECT_EQ(previewCell(i - 1, 0), QString::number(i));
        EXPECT_EQ(preview()->headerData(i - 1, Qt::Vertical).toInt(), i + i / 7);
    }
    // The part that was read when Cancel came.
    previous();
    QTableView grid;
    person.cancelProgressAt(50);
    ImportLoadPreviewGrid(&grid, folder.filePath("import.csv"), customerImportColumns(),
                          {"COMPANY", "LASTNAME"}, count);
    EXPECT_GT(grid.model()->rowCount(), 30);
    EXPECT_LT(grid.model()->rowCount(), 60);
}
