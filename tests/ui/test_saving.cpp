// Texts and grids in files, and the conversion to a word-processor document by a stand-in.
#include "common/base/clsSystem.h"
#include "common/base/Host.h"
#include "common/ui/Grid.h"
#include "common/ui/GridSaving.h"
#include "common/ui/RtfWriter.h"
#include "common/ui/TextSaving.h"

#include "support/FakeHost.h"
#include "support/ProgramFolder.h"
#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

#include <QPlainTextEdit>
#include <QTemporaryDir>

namespace
{

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

TEST(Saving, AGridFieldIsAFlagANumberOrAQuotedText)
{
    const FakeHost machine;
    struct {
        const char *shown;
        const char *field;
    } const cases[] = {{"true", "Yes"},
                       {"False", "No"},
                       {"1,234.50", "1234.5"},
                       {"-7", "-7"},
                       {"12/31/2001", "\"12/31/2001\""},
                       {"say \"hi\", Ann", "\"say \"\"hi\"\", Ann\""},
                       {"", "\"\""},
                       {"12345678901234567890", "\"12345678901234567890\""}};
    for (const auto &each : cases)
        EXPECT_EQ(gridField(each.shown), each.field);
}

TEST(Saving, AGridIsWrittenWholeAndOfferedForOpening)
{
    FakeHost machine;
    ScriptedPrompts person;
    const QTemporaryDir folder;
    const QString file = folder.filePath("grid.csv");
    Grid grid;
    grid.setColumns({{"Name"}, {"Ämter"}});
    grid.setRows(2);
    grid.setText(1, 1, "Ann");
    grid.setText(2, 2, "3,000");
    person.expectSaveFile("Save As...", {});
    EXPECT_FALSE(SaveGrid(grid, 0, 2, 1, 2));
    person.expectSaveFile("Save As...", file);
    person
        .expect(file + " has been saved. Would you like to open this file now?",
                prompts::Answer::Yes)
        .preset(prompts::Answer::No);
    EXPECT_TRUE(SaveGrid(grid, -3, 99, 1, 99));
    EXPECT_EQ(machine.opened(), QStringList(file));
    EXPECT_EQ(contents(file), "\"Name\",\"\xC4mter\"\r\n\"Ann\",\"\"\r\n\"\",3000\r\n");
    person.expectSaveFile("Save As...", folder.path()); // a folder is in the way
    person.expect("Unable to write to : " + folder.path());
    EXPECT_FALSE(SaveGrid(grid, 0, 2, 1, 2));
}

TEST(Saving, RichTextKeepsEveryCharacter)
{
    QFont font;
    font.setPointSizeF(10.5);
    const QByteArray rtf = rtfOf(QString::fromUtf8("a\\b{c}\t?é€\r\nŁ\U0001F600\x01"), font);
    EXPECT_TRUE(rtf.startsWith("{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1"));
    EXPECT_TRUE(rtf.contains("\\fs21 a\\\\b\\{c\\}\\tab ?\\'e9\\'80\\par\r\n"
                             "\\u321?\\u-10179?\\u-8704?\\par\r\n}"))
        << rtf.constData();
}

TEST(Saving, TheEndingOfTheNameTellsTheKindOfFile)
{
    ScriptedPrompts person;
    const QTemporaryDir folder;
    QPlainTextEdit box;
    box.setPlainText("Größe\nzwei");
    EXPECT_TRUE(SaveRTB(box, folder.filePath("a.RTF")));
    EXPECT_EQ(contents(folder.filePath("a.RTF")), rtfOf("Größe\nzwei", box.font()));
    EXPECT_TRUE(SaveRTB(box, folder.filePath("b")));
    EXPECT_EQ(contents(folder.filePath("b")), "\xEF\xBB\xBFGr\xC3\xB6\xC3\x9F"
                                              "e\nzwei");
    box.setPlainText("plain");
    EXPECT_TRUE(SaveRTB(box, folder.filePath("b"))); // what stood there is replaced
    EXPECT_EQ(contents(folder.filePath("b")), "plain");

    person.expect("Unable to write to : " + folder.filePath("no/c.txt"));
    EXPECT_FALSE(SaveRTB(box, folder.filePath("no/c.txt")));
    person.expectSaveFile("Save As", {});
    person.expectSaveFile("Save As", folder.filePath("d.txt"));
    SaveRTB_GetFileName(box);
    SaveRTB_GetFileName(box);
    EXPECT_EQ(contents(folder.filePath("d.txt")), "plain");
    const auto &first = person.seen()[1].request;
    const auto &second = person.seen()[2].request;
    EXPECT_TRUE(first.initialName.startsWith("Untitled "));
    EXPECT_EQ(first.initialName.section(u' ', 1).toInt() + 1,
              second.initialName.section(u' ', 1).toInt());
    EXPECT_EQ(first.defaultExtension, "rtf");
    EXPECT_TRUE(first.filter.startsWith("MS Word (*.doc)|*.doc|Rich Text Format (*.rtf)"));
}

TEST(Saving, ADocumentIsConvertedBesideItsRichText)
{
    ScriptedPrompts person;
    const QTemporaryDir folder;
    const QString doc = folder.filePath("Ann's report.doc");
    const QString rtf = folder.filePath("Ann's report.RTF");
    QPlainTextEdit box;
    box.setPlainText("text");
    ProgramFolder programs; // the only place on the search path
    person.expect("MS Word must be installed to use this option!").kind(prompts::Kind::Information);
    EXPECT_FALSE(SaveRTB(box, doc));
    EXPECT_EQ(contents(rtf), rtfOf("text", box.font()));

    programs.add("soffice", "[ \"$2\" = --headless ] && [ \"$4\" = --convert-to ] || exit 9\n"
                            "case \"$1\" in -env:UserInstallation=file:///*) ;; *) exit 8;; esac\n"
                            "n=${8##*/}; printf converted >\"$7/${n%.*}.doc\"");
    person.expect(rtf + " already exists", prompts::Answer::No);
    EXPECT_FALSE(SaveRTB(box, doc));
    EXPECT_FALSE(QFile::exists(doc));
    person.expect(rtf + " already exists", prompts::Answer::Yes);
    person.expect(doc + " has been saved as MS Word document.").kind(prompts::Kind::Information);
    EXPECT_TRUE(SaveRTB(box, doc));
    EXPECT_EQ(contents(doc), "converted");

    programs.add("soffice", "exit 1"); // the document of before stays
    QFile::remove(rtf);
    person.expect("Unable to convert to an MS Word document: " + doc);
    EXPECT_FALSE(SaveRTB(box, doc));
    EXPECT_EQ(contents(doc), "converted");
}

} // namespace
