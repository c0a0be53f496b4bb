// A database with a few customers, and a report of them in its window.
#pragma once

#include "reports/frmReportDisplay.h"
#include "reports/ReportGrid.h"
#include "support/FakeHost.h"
#include "support/PdfPrinter.h"
#include "support/RecordingSwitchboard.h"
#include "support/ScriptedPrompts.h"
#include "support/TempDatabase.h"
#include "support/TempPreferences.h"

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class ReportFixture : public ::testing::Test
{
protected:
    using Answer = prompts::Answer;

    // The definition of columns (ids joined by "~"), with the row numbers or without.
    static QString definition(const QString &columns, bool numbered = true, bool suppress = false,
                              bool landscape = false)
    {
        const auto flag = [](bool on) { return on ? u"1"_s : u"0"_s; };
        return flag(suppress) + u'\n' + columns + u"\n\n\n\n" + flag(numbered) + u'\n' +
               flag(landscape);
    }
    qint32 addReport(const QString &def, const QString &title = u"Who is where"_s,
                     const QString &type = u"C"_s)
    {
        return database.add(u"_rptdef"_s, {{"title", title}, {"type", type}, {"def", def}});
    }
    frmReportDisplay &open(qint32 report)
    {
        form = std::make_unique<frmReportDisplay>();
        show(*form);
        form->Init(report);
        return *form;
    }
    frmReportDisplay &open(const QString &def) { return open(addReport(def)); }
    void show(QWidget &window)
    {
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        grid = window.findChild<ReportGrid *>(u"grd"_s);
        count = window.findChild<QLabel *>(u"lblCount"_s);
    }
    static QPushButton *button(const QWidget &window, const char *name)
    {
        return window.findChild<QPushButton *>(QLatin1String(name));
    }
    QStringList column(int at) const
    {
        QStringList texts;
        for (int row = 0; row < grid->model()->rowCount(); ++row)
            texts.append(grid->model()->index(row, at).data().toString());
        return texts;
    }
    void clickHeading(int at) const
    {
        const QHeaderView *header = grid->horizontalHeader();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier,
                          {header->sectionViewportPosition(at) + 5, header->height() / 2});
    }
    int selectedRow() const { return grid->currentRow(); }

    // By last name: Adler, Berg, caspar, Dahl.
    void addFour()
    {
        const qint32 oregon = database.addListItem(3, u"Oregon Territory"_s);
        ids = {
            database.addCustomer({{"lastname", "Berg"},
                                  {"firstname", "Bo"},
                                  {"city", "Salem"},
                                  {"state", oregon},
                                  {"custno", "1,200"},
                                  {"emailname", "bo@example.com"}}),
            database.addCustomer({{"lastname", "Dahl"},
                                  {"city", "Bend"},
                                  {"state", oregon},
                                  {"custno", "N \"9\""},
                                  {"emailname", "two@at@signs"}}),
            database.addCustomer({{"lastname", "Adler"}, {"city", "salem"}, {"custno", "true"}}),
            database.addCustomer(
                {{"lastname", "caspar"}, {"city", "Aurora"}, {"emailname2", "cas@example.com"}})};
    }

    FakeHost machine;
    ScriptedPrompts person;
    TempPreferences preferences;
    RecordingSwitchboard board;
    TempDatabase database;
    std::unique_ptr<frmReportDisplay> form;
    ReportGrid *grid = nullptr;
    QLabel *count = nullptr;
    QList<qint32> ids;
};
