// What a person meets in a large report: build/release/bin/norvane_bench_scroll FOLDER, a folder as
// `norvanectl bulk` makes it. All issues with three looked-up columns in their window: until it
// is shown, the longest time in which Cancel would not have answered, a sort by another
// column, and what a step through the rows costs until it is painted.
#include "Clock.h"

#include "common/base/Host.h"
#include "common/ui/GuiDoors.h"
#include "db/RecColl.h"
#include "reports/frmReportDisplay.h"
#include "reports/ReportGrid.h"

#include <QApplication>
#include <QScrollBar>

#include <algorithm>
#include <cstdio>
#include <random>

namespace
{

const QString Definition = QStringLiteral("0\n302~303~307~304~309~301\n\n\n\n1\n1");

qint32 addReport()
{
    RecColl report(gDB.ReportTable(), schema::table(schema::Table::Report).dataFile(), -1,
                   QStringLiteral("_rptdef"));
    report.add(QStringLiteral("title"), QStringLiteral("All issues"));
    report.add(QStringLiteral("type"), QStringLiteral("I"));
    report.add(QStringLiteral("def"), Definition);
    report.add(QStringLiteral("notes"), QString());
    return gDB.SaveRecord(report) ? report.number(QStringLiteral("_rowid")) : -1;
}

// Between two moments at which window events are let through, in seconds.
double longestPause(frmReportDisplay &window, qint32 report)
{
    using Clock = std::chrono::steady_clock;
    double longest = 0;
    Clock::time_point last = Clock::now();
    const auto look = [&] {
        longest = std::max(longest, std::chrono::duration<double>(Clock::now() - last).count());
    };
    const auto before = host().pumpEvents;
    host().pumpEvents = [&] {
        look();
        before();
        last = Clock::now();
    };
    window.Init(report);
    host().pumpEvents = before;
    look();
    return longest;
}

// Goes there and paints.
double step(ReportGrid &grid, int value)
{
    return bench::seconds([&] {
        grid.verticalScrollBar()->setValue(value);
        grid.viewport()->repaint();
        QCoreApplication::processEvents();
    });
}

void steps(const char *name, ReportGrid &grid, const std::vector<int> &values)
{
    std::vector<double> times;
    for (const int value : values)
        times.push_back(step(grid, value) * 1000);
    std::sort(times.begin(), times.end());
    std::printf("%-14s median %.1f ms, longest of %zu %.1f ms\n", name, times[times.size() / 2],
                times.size(), times.back());
}

} // namespace

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    installGuiDoors(nullptr);
    const QString folder = QApplication::arguments().value(1);
    if (folder.isEmpty() ||
        !gDB.OpenUnattended(folder, QStringLiteral("SYSOP"), QStringLiteral("sysop"))) {
        std::fprintf(stderr, "norvane_bench_scroll FOLDER: the folder cannot be opened\n");
        return 1;
    }
    frmReportDisplay window;
    window.resize(1280, 800);
    window.show();
    const qint32 report = addReport();
    double longest = 0;
    const double shown = bench::seconds([&] { longest = longestPause(window, report); });
    auto *grid = window.findChild<ReportGrid *>();
    const int rows = grid->model()->rowCount();
    std::printf("%d rows shown in %.2f s, longest pause %.0f ms\n", rows, shown, longest * 1000);
    std::printf("sorted in %.2f s\n", bench::seconds([&] { Q_EMIT grid->headingClicked(4); }));
    std::vector<int> lines, pages, places;
    std::mt19937 dice(1);
    const int most = grid->verticalScrollBar()->maximum();
    for (int at = 0; at < 300; ++at) {
        lines.push_back(at);
        pages.push_back(std::min(most, at * grid->verticalScrollBar()->pageStep()));
        places.push_back(static_cast<int>(dice() % static_cast<unsigned>(most + 1)));
    }
    steps("line by line", *grid, lines);
    steps("page by page", *grid, pages);
    steps("anywhere", *grid, places);
    return 0;
}
