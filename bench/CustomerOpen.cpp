// How long the record windows of a large customer take to open, and the two lists of his window by
// themselves: build/release/bin/norvane_bench_customer [SUBSCRIPTIONS ISSUES], 300 and 2,000 when
// not given, among as many of other customers again times ten. The median of the rounds.
#include "Clock.h"

#include "admin/frmUser.h"
#include "common/base/AppInfo.h"
#include "db/CustomerLists.h"
#include "forms/frmCustomer.h"
#include "forms/frmIssue.h"
#include "forms/frmIssueAction.h"
#include "forms/frmIssueTemplate.h"
#include "forms/frmPS.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace
{

constexpr int kRounds = 9;
constexpr int kOthers = 10; // rows of other customers to each of ours
constexpr int kProducts = 25;
constexpr qint32 kFirst =
    1000; // every table's first rowid: our customer, and what is opened of his

void copyTemplates(const QString &folder)
{
    for (const schema::TableInfo &table : schema::tables()) {
        const QStringList files = table.files();
        const QStringList templates = table.templateFiles();
        for (qsizetype i = 0; i < files.size(); ++i)
            QFile::copy(clsDB::MakePath(app::programFolder(), templates.at(i)),
                        clsDB::MakePath(folder, files.at(i)));
    }
}

void addRow(schema::Table which, const QString &recType, qint32 custid, int number)
{
    const schema::TableInfo &table = schema::table(which);
    RecColl record(gDB.TablePath(which), table.dataFile(), -1, recType);
    for (const schema::RecordField &field : schema::recordType(recType)->writes)
        record.add(QLatin1String(field.name), QString());
    const auto set = [&record](const char *field, const QVariant &value) {
        if (record.contains(QLatin1String(field)))
            record.setExisting(QLatin1String(field), value);
    };
    set("custid", custid);
    set("issueid", custid);
    set("lastname", QStringLiteral("Merriweather"));
    set("psid", 100 + number % kProducts);
    set("shortdesc", QStringLiteral("Something that happened, number %1").arg(number));
    set("status", 400 + number % 3);
    set("submitdt", QStringLiteral("3/14/2004"));
    set("date", QStringLiteral("3/14/2004"));
    set("dateinit", QStringLiteral("3/14/2004"));
    set("dateterm", QStringLiteral("3/14/2006"));
    gDB.SaveRecord(record);
}

// Ours among the others, as they come in over the years.
void addRows(schema::Table which, const QString &recType, int ours)
{
    for (int i = 0; i < ours; ++i) {
        addRow(which, recType, kFirst, i);
        for (int other = 1; other <= kOthers; ++other)
            addRow(which, recType, kFirst + other, i);
    }
}

void fill(int subscriptions, int issues)
{
    addRow(schema::Table::Customer, QStringLiteral("_customer"), 0, 0);
    addRow(schema::Table::IssuesTemplates, QStringLiteral("_issuetemplate"), 0, 0);
    addRows(schema::Table::Customer2PS, QStringLiteral("_ps"), subscriptions);
    addRows(schema::Table::Issues, QStringLiteral("_issue"), issues);
    addRows(schema::Table::IssuesActions, QStringLiteral("_issueaction"), 20);
}

template <class Work>
void measure(const char *what, Work work)
{
    std::vector<double> times;
    times.reserve(kRounds);
    for (int round = 0; round < kRounds; ++round)
        times.push_back(1000 * bench::seconds(work));
    std::sort(times.begin(), times.end());
    std::printf("%-18s %7.1f ms\n", what, times[times.size() / 2]);
}

// Until it is painted.
void show(QWidget &window)
{
    window.show();
    QCoreApplication::processEvents();
    window.grab();
}

template <class Form>
void timeOpening(const char *what, qint32 rowid)
{
    measure(what, [rowid] {
        Form form;
        form.Init(rowid, false);
        show(form);
    });
}

} // namespace

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    const QTemporaryDir folder;
    copyTemplates(folder.path());
    if (!gDB.OpenUnattended(folder.path(), QStringLiteral("SYSOP"), QStringLiteral("sysop")))
        return 1;
    norvane::engine::code4durability(gDB.CBEngine(), "process");
    fill(arguments.value(1, QStringLiteral("300")).toInt(),
         arguments.value(2, QStringLiteral("2000")).toInt());

    measure("his subscriptions", [] { customerSubscriptions(gDB, kFirst); });
    measure("his issues", [] { customerIssues(gDB, kFirst); });
    timeOpening<frmCustomer>("frmCustomer", kFirst);
    timeOpening<frmPS>("frmPS", kFirst);
    timeOpening<frmIssue>("frmIssue", kFirst);
    timeOpening<frmIssueTemplate>("frmIssueTemplate", kFirst);
    timeOpening<frmUser>("frmUser", gDB.LoginID());
    measure("frmIssueAction", [] {
        frmIssueAction form;
        form.Init(kFirst, kFirst, frmIssueAction::View);
        show(form);
    });
    gDB.CloseDB();
    return 0;
}
