// What a person meets in long lists of issues: build/release/bin/norvane_bench_lists FOLDER, a
// folder as `norvanectl bulk` makes it. A line for each list: rows, seconds, the longest time in
// which Cancel would not have answered, and the memory a row beside its texts, at the end and at
// most.
#include "Clock.h"

#include "common/base/Host.h"
#include "common/ui/GuiDoors.h"
#include "common/ui/ListView.h"
#include "db/clsDB.h"
#include "db/LookupTypes.h"
#include "db/search/WordMatcher.h"
#include "db/TableUse.h"
#include "search/frmIssueList.h"
#include "search/frmMyIssues.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>

#include <malloc.h>

#include <algorithm>
#include <cstdio>

namespace
{

// Kilobytes, as the system tells of this process.
long told(const char *name)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(name))
            return line.simplified().split(' ').value(1).toLong();
    }
    return 0;
}

void forgetMost()
{
    malloc_trim(0);
    QFile peak(QStringLiteral("/proc/self/clear_refs"));
    if (peak.open(QIODevice::WriteOnly))
        peak.write("5");
}

// The times between two moments at which window events are let through.
class Pauses
{
public:
    Pauses() : m_before(host().pumpEvents)
    {
        m_time.start();
        host().pumpEvents = [this] {
            m_longest = std::max(m_longest, m_time.nsecsElapsed());
            m_before();
            m_time.start();
        };
    }
    ~Pauses() { host().pumpEvents = m_before; }
    Q_DISABLE_COPY_MOVE(Pauses)
    double longest() const { return static_cast<double>(m_longest) / 1e6; }
    // Since the last one, when nothing was to be cancelled any more.
    double last() const { return static_cast<double>(m_time.nsecsElapsed()) / 1e6; }

private:
    std::function<void()> m_before;
    QElapsedTimer m_time;
    qint64 m_longest = 0;
};

long textBytes(const ListView &list)
{
    long bytes = 0;
    for (int row = 0; row < list.itemCount(); ++row) {
        for (int column = 0; column < list.model()->columnCount(); ++column)
            bytes += static_cast<long>(list.itemText(row, column).toUtf8().size());
    }
    return bytes;
}

template <class Work>
void measure(const char *name, ListView *list, Work work)
{
    forgetMost();
    const long before = told("VmRSS:");
    const Pauses pauses;
    const double took = bench::seconds(work);
    const double shown = pauses.last();
    QCoreApplication::processEvents();
    const long most = told("VmHWM:");
    malloc_trim(0);
    const int rows = std::max(1, list->itemCount());
    const auto aRow = [&](long kilobytes) {
        return (static_cast<double>(kilobytes - before) * 1024 -
                static_cast<double>(textBytes(*list))) /
               rows;
    };
    const long after = told("VmRSS:");
    std::printf("%-28s %8d rows %7.2f s  Cancel %4.0f ms  shown %4.0f ms  %5.0f bytes a row, %5.0f "
                "at most\n",
                name, list->itemCount(), took, pauses.longest(), shown, aRow(after), aRow(most));
    std::fflush(stdout);
}

void search(const char *name, const QString &text, bool memos, qint32 product = 0)
{
    frmIssueList window;
    window.show();
    window.setSearchWhat(!memos, memos, memos);
    measure(name, window.findChild<ListView *>(),
            [&] { window.Init(text, AnyOfTheWords, product); });
}

qint32 someProduct()
{
    TableUse entries(gDB, gDB.CategoryTable());
    for (bool more = entries.top(); more; more = entries.next()) {
        if (entries.number(QStringLiteral("type")) == lookup_type::Products)
            return entries.number(QStringLiteral("rowid"));
    }
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    mallopt(M_MMAP_THRESHOLD, 128 * 1024); // what is given back leaves the process
    const QApplication application(argc, argv);
    installGuiDoors(nullptr);
    const QString folder = QApplication::arguments().value(1);
    if (folder.isEmpty() ||
        !gDB.OpenUnattended(folder, QStringLiteral("SYSOP"), QStringLiteral("sysop"))) {
        std::fprintf(stderr, "norvane_bench_lists FOLDER: the folder cannot be opened\n");
        return 1;
    }
    search("all issues", {}, false);
    search("a word, short descriptions", QStringLiteral("smoke"), false);
    search("two words, memos", QStringLiteral("firmware dust"), true);
    search("a rare word, memos", QStringLiteral("999999"), true);
    search("one product", {}, false, someProduct());
    frmMyIssues mine;
    mine.show();
    measure("my issues", mine.findChild<ListView *>(), [&mine] { mine.Init(); });
    frmIssueList all;
    all.show();
    all.Init({}, AnyOfTheWords, 0);
    auto *list = all.findChild<ListView *>();
    measure("sorted by customer", list, [list] { list->sortBy(3, Qt::AscendingOrder); });
    measure("sorted by status", list, [list] { list->sortBy(2, Qt::DescendingOrder); });
    measure("refreshed", list, [&all] { all.LoadData(); });
    gDB.CloseDB();
    return 0;
}
