// Lists and texts on paper, printed into PDF files and read back.
#include "common/ui/frmPreview.h"
#include "common/ui/ListView.h"
#include "common/ui/PrintDoor.h"
#include "common/ui/Printing.h"
#include "common/ui/PrintPages.h"

#include "support/DialogDriver.h"
#include "support/FakeHost.h"
#include "support/PdfPrinter.h"
#include "support/ScriptedPrompts.h"
#include "support/TempPreferences.h"

#include <gtest/gtest.h>

#include <QAbstractPrintDialog>
#include <QBuffer>
#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPdfWriter>
#include <QPlainTextEdit>
#include <QPrinterInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

namespace
{

using printing::Document;

void fill(ListView &lv, int rows)
{
    lv.setColumns({{"Name", "N", 150},
                   {"Company", "C", 100},
                   {.title = "Sort", .width = 90, .hidden = true},
                   {"City", "L", 50}});
    QList<ListView::Row> items;
    for (int row = 1; row <= rows; ++row)
        items.append({QString("N%1").arg(row),
                      {QString("Person%1").arg(row), "Mills\nand Sons", "hiddenkey", "Vevey"}});
    lv.addItems(items);
}

// The upper left corner of the nth word like this, in points.
QPointF placeOf(const QString &pdf, const QString &word, int occurrence = 0)
{
    QProcess reader;
    reader.start("pdftotext", {"-bbox", pdf, "-"});
    EXPECT_TRUE(reader.waitForFinished());
    const QRegularExpression box("xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\"[^>]*>" + word + "<");
    auto matches = box.globalMatch(QString::fromUtf8(reader.readAllStandardOutput()));
    for (; matches.hasNext() && occurrence > 0; --occurrence)
        matches.next();
    if (!matches.hasNext()) {
        ADD_FAILURE() << "not printed: " << qPrintable(word);
        return {};
    }
    const auto match = matches.next();
    return {match.captured(1).toDouble(), match.captured(2).toDouble()};
}

QString joined(const QStringList &pages)
{
    return pages.join(u' ').simplified();
}

TEST(Printing, AListHasItsTitleHeadingsAndPageNumberOnEveryPage)
{
    const PdfPrinter printer;
    ListView lv;
    const QSizeF paper = QPageSize(QPageSize::A4).size(QPageSize::Point);
    const qreal lineHeight = PrintFont(lv.font()).lineHeight();
    const int linesOnPage = static_cast<int>((paper.height() * 20 - 2000) / lineHeight) - 2;
    for (const auto &[rows, pages] :
         {std::pair{1, 1}, std::pair{linesOnPage * 2, 2}, std::pair{linesOnPage * 2 + 1, 3}}) {
        fill(lv, rows);
        ListViewPrint_GetPrinter(lv, "Customers (all)");
        const QStringList printed = printer.pages();
        ASSERT_EQ(printed.size(), pages) << rows;
        int row = 0;
        for (int page = 0; page < pages; ++page) {
            const QStringList lines = printed[page].split(u'\n', Qt::SkipEmptyParts);
            EXPECT_EQ(lines[0].trimmed(), "Customers (all)");
            EXPECT_EQ(lines[1].simplified(), "Name Company City");
            for (int line = 2; line < lines.size() - 1; ++line)
                EXPECT_EQ(lines[line].simplified(),
                          QString("Person%1 Mills and Sons Vevey").arg(++row));
            EXPECT_EQ(lines.last().trimmed(), QString::number(page + 1));
        }
        EXPECT_EQ(row, rows);
    }
    EXPECT_EQ(printer.titles().size(), 3);
}

TEST(Printing, ColumnsAndMarginsLieWhereTheTwipsSay)
{
    const PdfPrinter printer;
    ListView lv;
    fill(lv, 1);
    lv.addItem("N2", {QString("longword").repeated(1250), "Short", {}, "Nyon"});
    ListViewPrint_GetPrinter(lv, "Title");
    const qreal usable = 595 - 100; // A4 less 1000 twips on either side
    const qreal name = lv.columnWidth(0);
    const qreal company = lv.columnWidth(1);
    const qreal all = name + company + lv.columnWidth(3);
    constexpr qreal close = 1.5;
    EXPECT_NEAR(placeOf(printer.path(), "Name").x(), 50, close);
    EXPECT_NEAR(placeOf(printer.path(), "Company").x(), 50 + usable * name / all, close);
    EXPECT_NEAR(placeOf(printer.path(), "City").x(), 50 + usable * (name + company) / all, close);
    EXPECT_NEAR(placeOf(printer.path(), "Nyon").x(), placeOf(printer.path(), "City").x(), close);
    EXPECT_NEAR(placeOf(printer.path(), "1").x(), 595 / 2.0, close);
    const qreal line = PrintFont(lv.font()).lineHeight() / 20;
    EXPECT_NEAR(placeOf(printer.path(), "Person1").y() - placeOf(printer.path(), "Name").y(), line,
                close);
    EXPECT_NEAR(placeOf(printer.path(), "Name").y(), 50, line / 3);
    EXPECT_NEAR(placeOf(printer.path(), "Title").y(), 12.5, line / 3);
    EXPECT_TRUE(joined(printer.pages()).contains("longword.. Short") ||
                joined(printer.pages()).contains(QRegularExpression("lon\\w*\\.\\. Short")))
        << qPrintable(joined(printer.pages()));
}

TEST(Printing, AnEmptyListOrACancelledDialogPrintsNothing)
{
    PdfPrinter printer;
    ListView lv;
    fill(lv, 0);
    {
        ScriptedPrompts person;
        person.expect("nothing to print");
        ListViewPrint_GetPrinter(lv, "Customers");
    }
    EXPECT_TRUE(printer.titles().isEmpty());
    fill(lv, 3);
    printer.setCancels(true);
    ListViewPrint_GetPrinter(lv, "Customers");
    EXPECT_EQ(printer.titles().size(), 1);
    EXPECT_FALSE(QFile::exists(printer.path()));
}

TEST(Printing, TheOptionsOfAListDecideAndAreKept)
{
    const TempPreferences preferences;
    const FakeHost machine;
    const auto options = printing::backend().options;
    const PdfPrinter printer; // puts the backend back at the end
    printing::backend().options = options;
    Document seen;
    printing::backend().preview = [&seen](const Document &document) { seen = document; };
    ListView lv;
    fill(lv, 12);
    LvSelectItem(&lv, "N5");
    const auto checked = [](QWidget *form, const char *name) {
        return form->findChild<QAbstractButton *>(name)->isChecked();
    };
    const auto print = [&](const std::function<void(QWidget *, QLineEdit *)> &person) {
        seen = {};
        const DialogDriver driver([&](QWidget *form) {
            EXPECT_EQ(form->objectName(), "frmRptOption");
            person(form, form->findChild<QLineEdit *>("txtTitle"));
        });
        ListViewPrint_GetPrinter(lv, "Countries @ 3:05", "RptTitle Countries");
    };
    const auto rows = [&] {
        {
            QPdfWriter paper(printer.path());
            seen.draw(paper);
        }
        return static_cast<int>(joined(printer.pages()).count("Person"));
    };

    print([&](QWidget *form, QLineEdit *title) {
        EXPECT_EQ(title->text(), "Countries @ 3:05");
        EXPECT_TRUE(checked(form, "optWhatToPrintView") &&
                    checked(form, "optOrientationLandscape") && !checked(form, "ckDT"));
        title->setText("Where they live");
        for (const char *name :
             {"optWhatToPrintSelected", "optOrientationPortrait", "ckDT", "OKButton"})
            form->findChild<QAbstractButton *>(name)->click();
    });
    EXPECT_EQ(seen.name, "Where they live - 3/14/2004 @ 3:05:09 PM");
    EXPECT_EQ(seen.orientation, QPageLayout::Portrait);
    EXPECT_EQ(rows(), 1);
    EXPECT_TRUE(joined(printer.pages()).contains("Person5"));

    lv.clearSelection();
    print([&](QWidget *form, QLineEdit *title) {
        EXPECT_EQ(title->text(), "Where they live");
        EXPECT_TRUE(checked(form, "optWhatToPrintView") &&
                    checked(form, "optOrientationPortrait") && checked(form, "ckDT"));
        EXPECT_FALSE(form->findChild<QWidget *>("optWhatToPrintSelected")->isEnabled());
        title->setText("Countries @ 3:05");
        clickButton(form, "OKButton");
    });
    EXPECT_EQ(rows(), 12);
    EXPECT_EQ(GetPrefLong("RptPrintSingleRowOnly"), 1) << "there was no choice";
    EXPECT_EQ(GetPrefStr("RptTitle Countries"), QString()) << "the proposed one tells the time";

    print([](QWidget *form, QLineEdit *) { clickButton(form, "CancelButton"); });
    EXPECT_EQ(seen.draw, nullptr);
}

TEST(Printing, ATextRunsOverPagesUnderItsHeader)
{
    const PdfPrinter printer;
    QPlainTextEdit box;
    QString text;
    for (int line = 1; line <= 150; ++line)
        text += QString("line%1 ").arg(line) +
                (line == 7 ? QString("wrapped ").repeated(100) : "") + u'\n';
    box.setPlainText(text);
    RTBPrint_GetPrinter(box, "Customer: Müller");
    const QStringList pages = printer.pages();
    ASSERT_GE(pages.size(), 3);
    for (const QString &page : pages)
        EXPECT_TRUE(page.trimmed().startsWith("Customer: Müller")) << qPrintable(page.left(80));
    EXPECT_EQ(joined(pages).remove("Customer: Müller").simplified(), text.simplified());
    EXPECT_NEAR(placeOf(printer.path(), "line1").x(), 50, 1.5);
    EXPECT_NEAR(placeOf(printer.path(), "line1").y(), 50, 5);
}

TEST(Printing, CopiesAreDocumentsAndFaultsAreTold)
{
    const PdfPrinter printer; // puts the backend back at the end
    QTemporaryDir folder;
    int drawn = 0;
    const Document counted{.name = "Count",
                           .draw = [&drawn](QPagedPaintDevice &) { return ++drawn < 3; }};
    const auto choose = [](int copies, const QString &file, const QString &pdf) {
        printing::backend().dialog = [=](const Document &) {
            return printing::Choice{std::make_shared<QPdfWriter>(file), copies, pdf};
        };
    };
    choose(2, folder.filePath("a.pdf"), {});
    EXPECT_TRUE(printing::print(counted));
    EXPECT_EQ(drawn, 2);
    choose(5, folder.filePath("a.pdf"), {});
    EXPECT_FALSE(printing::print(counted)); // stops at the first that fails
    EXPECT_EQ(drawn, 3);

    ScriptedPrompts person;
    ListView lv;
    fill(lv, 2);
    choose(1, folder.filePath("no/such/folder.pdf"), {});
    person.expect("Printer error\rclsSystem_ListViewPrint").title("Error");
    ListViewPrint_GetPrinter(lv, "Customers");
    choose(1, folder.filePath("b.pdf"), folder.path());
    person.expect("Unable to write to : " + folder.path());
    ListViewPrint_GetPrinter(lv, "Customers");
    EXPECT_EQ(printing::fileName({"Customer: a/b?\n\"c\" ", {}}), "Customer a b c");
    EXPECT_EQ(printing::fileName({}), "Norvane");
}

TEST(Printing, ALongListTellsHowFarItIsAndCanBeStopped)
{
    ListView lv;
    fill(lv, 8000);
    ScriptedPrompts person;
    const auto print = [&lv] {
        QBuffer paper;
        paper.open(QIODevice::WriteOnly);
        QPdfWriter writer(&paper);
        return ListViewPrint(lv, writer, 1000, 1000, 1000, 1000, "Customers");
    };
    EXPECT_TRUE(print());
    ASSERT_EQ(person.progress().size(), 1U);
    const ScriptedPrompts::SeenProgress &whole = person.progress().front();
    EXPECT_TRUE(whole.bar && whole.cancel && whole.closed);
    EXPECT_EQ(whole.percents.front(), 0);
    EXPECT_TRUE(std::is_sorted(whole.percents.begin(), whole.percents.end()));
    EXPECT_GT(whole.percents.back(), 80);

    person.cancelProgressAt(3);
    EXPECT_FALSE(print());
    EXPECT_EQ(person.progress().back().percents.size(), 3U);
    EXPECT_TRUE(person.progress().back().closed);

    // A preview without its pages goes by itself.
    const DialogDriver options([](QWidget *window) { clickButton(window, "OKButton"); });
    ListViewPrint_GetPrinter(lv, "Customers");
    EXPECT_EQ(person.progress().size(), 3U);
}

TEST(Printing, ThePreviewTurnsPagesAndSavesThemAndThePrintDialogIsBehindIt)
{
    const TempPreferences preferences;
    SetPrefLong("RptPageOrientation", 1);
    ListView lv;
    fill(lv, 110);
    const QTemporaryDir folder;
    const QString file = folder.filePath("list.pdf");
    ScriptedPrompts person;
    person.expectSaveFile("Save As", file);
    const DialogDriver options([](QWidget *window) { clickButton(window, "OKButton"); });
    const DialogDriver preview([&](QWidget *window) {
        auto *label = window->findChild<QLabel *>("lblPage");
        ASSERT_TRUE(QTest::qWaitFor([&] { return label->text().startsWith("Page 1 of "); }));
        const int pages = label->text().section(u' ', -1).toInt();
        ASSERT_GE(pages, 2);
        clickButton(window, "cmdNext");
        const QString second = QString("Page 2 of %1").arg(pages);
        ASSERT_TRUE(QTest::qWaitFor([&] { return label->text() == second; }));
        window->findChild<QCheckBox *>("ckLandscape")->click();
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return label->text().section(u' ', -1).toInt() > pages; }));
        clickButton(window, "cmdSavePdf");
        EXPECT_EQ(pdfPages(file).size(), label->text().section(u' ', -1).toInt());
        {
            const DialogDriver dialog([](QWidget *shown) {
                EXPECT_NE(qobject_cast<QAbstractPrintDialog *>(shown), nullptr);
                EXPECT_EQ(shown->windowTitle(), "Print");
                QStringList texts;
                for (const QLineEdit *line : shown->findChildren<QLineEdit *>())
                    texts += line->text().section(u'/', -1);
                EXPECT_TRUE(texts.contains("Customers.pdf") ||
                            !QPrinterInfo::availablePrinterNames().isEmpty());
                QTest::keyClick(shown, Qt::Key_Escape);
            });
            clickButton(window, "cmdPrint");
        }
        EXPECT_TRUE(window->isVisible());
        QTest::keyClick(window, Qt::Key_Escape);
    });
    ListViewPrint_GetPrinter(lv, "Customers");
}

TEST(Printing, AListAsTextHasEightyCharactersInAll)
{
    ListView lv;
    lv.header()->setStretchLastSection(false);
    lv.setColumns({{"Name", "N"}, {.title = "None", .hidden = true}, {"A very long heading", "C"}});
    lv.setColumnWidth(0, 120);
    lv.setColumnWidth(2, 40);
    lv.addItem("N1", {"Ann", "x", "Nineteen letters ok!"});
    lv.addItem("N2", {"Two\nlines", "x", "b"});
    const auto line = [](const char *name, const char *text) -> QString {
        return QString(name).leftJustified(59) + QString(text).leftJustified(19) + u'\n';
    };
    EXPECT_EQ(LVContent(lv), line("Name", "A very long heading") + u'\n' + QString(78, u'-') +
                                 u'\n' + line("Ann", "Nineteen letters.. ") +
                                 line("Two lines", "b"));
    lv.setColumns({{.title = "Hidden", .hidden = true}});
    EXPECT_EQ(LVContent(lv), "\n\n\n");
}

} // namespace
