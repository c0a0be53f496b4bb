// What a start takes up again: the windows that were open when the person last left.
#include "shell/frmMain.h"

#include "common/base/Preferences.h"
#include "common/ui/FormWindow.h"
#include "db/clsDB.h"
#include "forms/frmPS.h"
#include "search/frmMyIssues.h"
#include "ui_frmMain.h"

#include <QMdiSubWindow>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace
{

constexpr qsizetype MostWindows = 12; // more would keep the person from beginning
const QString WindowsPref = QStringLiteral("openwindows");
const QString OwnerPref = QStringLiteral("openwindowsof");
const QString ReportsTag = QStringLiteral("REPORTS");

// A name to open it again by; empty for a window that is not taken up: a new record, hits, results.
QString nameOf(const QWidget *form)
{
    const auto *window = qobject_cast<const FormWindow *>(form);
    if (window == nullptr)
        return {};
    if (window->tagText() == frmMyIssues::Tag || window->tagText() == ReportsTag)
        return window->tagText();
    static const QRegularExpression record(QStringLiteral("^[CPI][1-9][0-9]*$"));
    if (!record.match(window->tagText()).hasMatch())
        return {};
    const auto *subscription = qobject_cast<const frmPS *>(form);
    return subscription == nullptr
               ? window->tagText()
               : window->tagText() + u'/' + QString::number(subscription->custid());
}

bool isThere(schema::Table which, qint32 rowid)
{
    return gDB.CheckIfRecExists(gDB.TablePath(which), schema::table(which).dataFile(), rowid, true);
}

} // namespace

QStringList frmMain::namesOfOpenWindows() const
{
    QStringList names;
    for (const QMdiSubWindow *window : ui->mdiArea->subWindowList(QMdiArea::StackingOrder)) {
        const QString name = nameOf(window->widget());
        if (!name.isEmpty())
            names.append(name);
    }
    return names.mid(std::max<qsizetype>(0, names.size() - MostWindows));
}

// They are another's when the folder or the login is.
QString frmMain::ownerOfWindows()
{
    return gDB.IsOpen() ? gDB.DBPath() + u'|' + gDB.LoginName() : QString();
}

void frmMain::rememberWindows(const QStringList &names, const QString &owner)
{
    SetPrefStr(WindowsPref, names.join(u' '));
    SetPrefStr(OwnerPref, owner);
}

void frmMain::reopenWindows()
{
    if (!gDB.IsOpen() || GetPrefStr(OwnerPref) != ownerOfWindows())
        return;
    const clsDB::TellOnce tellOnce(gDB);
    const QStringList names = GetPrefStr(WindowsPref).split(u' ', Qt::SkipEmptyParts);
    for (const QString &name : names.mid(0, MostWindows))
        reopenWindow(name);
}

// A record that is gone by now is passed over without a word.
void frmMain::reopenWindow(const QString &name)
{
    if (name == frmMyIssues::Tag)
        return MyIssues();
    if (name == ReportsTag)
        return Reports();
    const QStringList parts = name.mid(1).split(u'/');
    const qint32 rowid = parts.value(0).toInt();
    if (name.startsWith(u'C') && isThere(schema::Table::Customer, rowid))
        ShowCustomer(rowid, false);
    else if (name.startsWith(u'I') && isThere(schema::Table::Issues, rowid))
        ShowIssue(rowid, -1, false, -1);
    else if (name.startsWith(u'P') && isThere(schema::Table::Customer2PS, rowid) &&
             isThere(schema::Table::Customer, parts.value(1).toInt()))
        ShowPS(rowid, parts.value(1).toInt(), false);
}
