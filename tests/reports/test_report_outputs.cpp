// What leaves a report: mail, mail merge files, comma-delimited files and paper.
#include "ReportFixture.h"

#include "common/base/clsSystem.h"
#include "db/engine/engine.h"
#include "db/FieldText.h"

#include <QFile>

namespace
{

const QString LastNameCityState = u"105~111~112"_s;

// All rows of a table as the engine reads them, a line of "field=value" for each that has one.
QStringList rowsOf(const QString &path)
{
    using namespace norvane::engine;
    QStringList rows;
    const Handle session = d4init_v();
    const Handle table = d4open(session, path.toStdString());
    EXPECT_GT(table, 0);
    for (Code at = d4top(table); at == r4success; at = d4skip(table, 1)) {
        QStringList filled;
        for (int field = 1; field <= d4numFields(table); ++field) {
            const Handle one = d4fieldAt(table, field);
            const QString text = clsSystem::Trim(FieldText(one));
            if (!text.isEmpty())
                filled.append(FieldNameText(one).toLower() + u'=' + text);
        }
        rows.append(filled.join(u' '));
    }
    d4initUndo(session);
    return rows;
}

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class ReportOutputs : public ReportFixture
{
protected:
    void SetUp() override { addFour(); }
    void agreeToMerge(const QString &path)
    {
        person.expectText("Norvane allows you to create a data file in DBF/MS FoxPro-compatible "
                          "format for the customers displayed on this report.");
        person.expect("Would you like to create the mail merge data file now?", Answer::Yes);
        person.expectSaveFile("Create Mail Merge Data File", path);
    }
    QString file(const QString &name) const { return folder.filePath(name); }

    QTemporaryDir folder;
};

} // namespace

TEST_F(ReportOutputs, MailGoesToGoodAddressesAfterTheBadOnesWereCounted)
{
    open(definition(LastNameCityState));
    const auto email = [this] { button(*form, "cmdEmail")->click(); };
    const QString counted = u"Email addresses for 2 out of 4 customers either do not exist or are "
                            u"invalid. Do you wish to continue?"_s;
    person.expect(counted, Answer::No).kind(prompts::Kind::Question);
    email();
    EXPECT_TRUE(board.mails().isEmpty());
    EXPECT_EQ(person.progress().back().title, "Customer Email");
    EXPECT_EQ(person.progress().back().message, "Retrieving email addresses. Please wait...");
    person.expect(counted, Answer::Yes);
    email();
    ASSERT_EQ(board.mails().size(), 1);
    EXPECT_EQ(board.mails()[0].to, "bo@example.com, cas@example.com");
    EXPECT_EQ(board.mails()[0].subject, "<<Verify Email Address and Enter Subject>>");
    EXPECT_EQ(board.mails()[0].body, QString());

    person.cancelProgressAt(1);
    email();
    EXPECT_EQ(board.mails().size(), 1);
    person.cancelProgressAt(0);
    board.sends = false;
    person.expect(counted, Answer::Yes);
    person.expectText("Here's a list of email addresses for the displayed customers:\r\n\r\n"
                      "bo@example.com, cas@example.com");
    email();

    gDB.DeleteRecord(ids[0], gDB.CustomerTable());
    gDB.DeleteRecord(ids[3], gDB.CustomerTable());
    person.expect("Email addresses for 4 out of 4 customers either do not exist or are invalid.")
        .kind(prompts::Kind::Warning);
    email();
}

TEST_F(ReportOutputs, MailAndMergeNeedTheRightForThem)
{
    database.addUser(u"temp"_s, gDB.GetDefaultPermissionsStr());
    database.loginAs(u"temp"_s, u"temp"_s);
    open(definition(LastNameCityState));
    person.expectText("you are not permitted to perform this action");
    button(*form, "cmdEmail")->click();
    person.expectText("you are not permitted to perform this action");
    button(*form, "cmdMailMerge")->click();
}

TEST_F(ReportOutputs, MergeFilesHoldTheCustomersShownWithTextsForLookups)
{
    const qint32 hosting = database.addListItem(2, u"Hosting"_s);
    const QString longName(40, u'm');
    const qint32 longItem = database.addListItem(2, longName);
    database.addSubscription({{"custid", ids[0]}, {"psid", hosting}});
    for (int i = 0; i < 8; ++i)
        database.addSubscription({{"custid", ids[0]}, {"psid", longItem}});
    open(definition(LastNameCityState));
    clickHeading(2);                               // Aurora, Bend, Salem, salem
    gDB.DeleteRecord(ids[3], gDB.CustomerTable()); // since the report was read

    const QString path = file(u"letter.dbf"_s);
    QFile before(path);
    ASSERT_TRUE(before.open(QIODevice::WriteOnly) && before.write("old") == 3);
    before.close();
    agreeToMerge(path);
    person.expect(path + " has been created!").kind(prompts::Kind::Information);
    button(*form, "cmdMailMerge")->click();
    EXPECT_EQ(person.progress().back().message, "Creating Mail Merge Data file. Please wait...");
    const QStringList rows = rowsOf(path);
    ASSERT_EQ(rows.size(), 3);
    EXPECT_EQ(rows[0], "custno=N \"9\" lastname=Dahl city=Bend state=Oregon Territory "
                       "emailname=two@at@signs");
    EXPECT_TRUE(rows[1].contains("firstname=Bo") || rows[2].contains("firstname=Bo"));
    const QString bo = rows.filter("firstname=Bo").value(0);
    const QString products = bo.section("prodserv=", 1);
    EXPECT_TRUE(products.startsWith("Hosting;" + longName + u';')) << qPrintable(bo);
    EXPECT_EQ(products.size(), 254) << "as much as the field takes";
    EXPECT_EQ(folder.path(), QFileInfo(path).path());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(ReportOutputs, AMergeFileThatIsNotMadeLeavesTheOldOne)
{
    open(definition(LastNameCityState));
    person.expectText("data file in DBF");
    person.expect("Would you like to create", Answer::Cancel);
    button(*form, "cmdMailMerge")->click();

    const QString path = file(u"letter.dbf"_s);
    QFile before(path);
    ASSERT_TRUE(before.open(QIODevice::WriteOnly) && before.write("old") == 3);
    before.close();
    person.cancelProgressAt(2);
    agreeToMerge(path);
    button(*form, "cmdMailMerge")->click();
    person.cancelProgressAt(0);
    EXPECT_EQ(contentsOf(path), "old");

    const QString nowhere = file(u"no/such/folder.dbf"_s);
    agreeToMerge(nowhere);
    person.expect("Unable to write to : " + nowhere).kind(prompts::Kind::Warning);
    button(*form, "cmdMailMerge")->click();
    EXPECT_FALSE(QFile::exists(nowhere));
}

TEST_F(ReportOutputs, TheFileHoldsHeadingsNumbersAndQuotedTexts)
{
    open(definition(u"105~102~101"_s));
    const QString path = file(u"out.csv"_s);
    person.expectSaveFile("Save As...", path);
    person.expect(path + " has been saved. Would you like to open this file now?", Answer::Yes);
    QTest::keyClick(form.get(), Qt::Key_S, Qt::ControlModifier);
    const auto id = [this](int at) { return QString::number(ids[at]); };
    EXPECT_EQ(QString::fromLatin1(contentsOf(path)),
              "\"Row\",\"Last Name\",\"Customer Number\",\"Customer ID\"\r\n"
              "1,\"Adler\",Yes," %
                  id(2) %
                  "\r\n"
                  "2,\"Berg\",1200," %
                  id(0) %
                  "\r\n"
                  "3,\"caspar\",\"\"," %
                  id(3) %
                  "\r\n"
                  "4,\"Dahl\",\"N \"\"9\"\"\"," %
                  id(1) % "\r\n");
    EXPECT_EQ(machine.opened(), QStringList(path));

    open(definition(u"112~105"_s, false, true)); // blanks of suppressed values stay blank
    person.expectSaveFile("Save As...", path);
    person.expect("has been saved", Answer::No);
    button(*form, "cmdSaveAs")->click();
    EXPECT_TRUE(contentsOf(path).endsWith("\"Oregon Territory\",\"Berg\"\r\n\"\",\"Dahl\"\r\n"))
        << contentsOf(path).constData();
}

TEST_F(ReportOutputs, PaperRepeatsTitleAndHeadingsAndNumbersItsPages)
{
    const PdfPrinter printer;
    for (int i = 0; i < 110; ++i)
        database.addCustomer(
            {{"lastname", u"Person %1"_s.arg(i, 3, 10, QChar(u'0'))}, {"city", "Somewhere"}});
    open(definition(LastNameCityState));
    QTest::keyClick(form.get(), Qt::Key_P, Qt::ControlModifier);
    const QString title = u"Who is where - 3/14/2004 @ 3:05:09 PM"_s;
    EXPECT_EQ(printer.titles(), QStringList(title));
    const QStringList portrait = printer.pages();
    ASSERT_GE(portrait.size(), 2);
    int rows = 0;
    for (qsizetype page = 0; page < portrait.size(); ++page) {
        const QStringList lines = portrait[page].split(u'\n', Qt::SkipEmptyParts);
        EXPECT_TRUE(lines.value(0).contains(title)) << qPrintable(portrait[page]);
        EXPECT_TRUE(lines.value(1).contains("Row") && lines.value(1).contains("Last Name") &&
                    lines.value(1).contains("State"));
        EXPECT_EQ(lines.last().trimmed(), QString::number(page + 1));
        rows += static_cast<int>(lines.size()) - 3;
    }
    EXPECT_EQ(rows, 114);
    EXPECT_TRUE(portrait.last().contains("114"));

    open(definition(LastNameCityState, true, false, true));
    button(*form, "cmdPrint")->click();
    EXPECT_LT(printer.pages().first().count(u'\n'), portrait.first().count(u'\n'))
        << "a landscape page takes fewer rows";
}
