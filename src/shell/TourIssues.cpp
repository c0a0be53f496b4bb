// The steps of the tour on issues: one is prepared as a template, logged, worked on, closed and
// found again.
#include "common/ui/ListView.h"
#include "db/clsDB.h"
#include "forms/frmCustomer.h"
#include "forms/frmIssue.h"
#include "forms/frmIssueTemplate.h"
#include "search/frmIssueList.h"
#include "search/frmMyIssues.h"
#include "shell/TourHands.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>

using hands::typeInto;

namespace
{

constexpr int issuesPage = 3; // of a customer
constexpr int actionsPage = 1;
constexpr int resolutionPage = 3;

} // namespace

void Tour::prepareTemplate()
{
    m_visitor->expect(QStringLiteral("frmEditIssueTemplates"), [this](QWidget *list) {
        control<QPushButton>(list, "cmdNew")->click();
        auto *name = control<ListView>(list, "lv")->findChild<QLineEdit *>();
        need(name != nullptr, QStringLiteral("a new template cannot be named"));
        typeInto(name, QStringLiteral("Paper jam"));
        control<QCheckBox>(list, "ckEnableIssueTemplate")->setChecked(true);
        shoot(QStringLiteral("issue-templates"));
        control<QPushButton>(list, "cmdEdit")->click();
    });
    pressAndAnswer(QStringLiteral("ADITEMP"));
    auto *form = newestForm<frmIssueTemplate>();
    need(form->inEditMode() && form->windowTitle().contains(QLatin1String("Paper jam")),
         QStringLiteral("the template is not open for editing"));
    control<QComboBox>(form, "cboPS")->setCurrentText(QStringLiteral("Office Copier OC-45"));
    control<QComboBox>(form, "cboIssueCategory")->setCurrentText(QStringLiteral("Problem"));
    typeInto(control<QLineEdit>(form, "txtShortDesc"), QStringLiteral("Paper jam"));
    control<QPlainTextEdit>(form, "txtDesc")
        ->setPlainText(QStringLiteral("Which tray? How many sheets between two jams?"));
    shoot(QStringLiteral("issue-template"));
    control<QPushButton>(form, "OKButton")->click();
}

void Tour::workOnIssue()
{
    auto *customer = newestForm<frmCustomer>();
    auto *pages = control<QTabWidget>(customer, "tabs");
    pages->setCurrentIndex(issuesPage);
    shoot(QStringLiteral("customer-no-issues"));
    m_visitor->expect(QStringLiteral("frmSelectIssueTemplate"), [this](QWidget *choice) {
        need(LvSelectItemByText(control<ListView>(choice, "lv"), QStringLiteral("Paper jam")),
             QStringLiteral("the template is not offered"));
        shoot(QStringLiteral("choose-template"));
        control<QPushButton>(choice, "cmdOK")->click();
    });
    control<QPushButton>(customer, "cmdNewIssue")->click();
    m_visitor->check();
    auto *form = newestForm<frmIssue>();
    need(form->inEditMode() &&
             control<QLineEdit>(form, "txtShortDesc")->text() == QLatin1String("Paper jam"),
         QStringLiteral("the new issue does not start from its template"));
    shoot(QStringLiteral("new-issue"));
    control<QPushButton>(form, "cmdApply")->click();
    need(form->rowid() >= 1000, QStringLiteral("the issue was not saved"));
    control<QPushButton>(form, "lblEdit")->click();
    noteAction(form);
    closeIssue(form);
    auto *list = control<ListView>(customer, "lvIssues");
    need(list->itemCount() == 1 && list->itemText(0, 1) == QLatin1String("Closed"),
         QStringLiteral("the customer's list does not show the closed issue"));
    shoot(QStringLiteral("customer-issues"));
    pages->setCurrentIndex(0);
}

void Tour::noteAction(frmIssue *form)
{
    const QString duration = QLocale().toString(1.25); // hours, as people here write them
    control<QTabWidget>(form, "tabs")->setCurrentIndex(actionsPage);
    m_visitor->expect(QStringLiteral("frmIssueAction"), [this, duration](QWidget *dialog) {
        control<QComboBox>(dialog, "cboAction")->setCurrentText(QStringLiteral("Site Visit"));
        typeInto(control<QLineEdit>(dialog, "txtDesc"), QStringLiteral("New pick-up roller"));
        typeInto(control<QLineEdit>(dialog, "txtDuration"), duration);
        shoot(QStringLiteral("issue-action"));
        control<QPushButton>(dialog, "OKButton")->click();
    });
    control<QPushButton>(form, "cmdAdd")->click();
    m_visitor->check();
    need(control<QLabel>(form, "lblTotalDuration")->text().endsWith(duration),
         QStringLiteral("the action is not in the list"));
    shoot(QStringLiteral("issue-actions"));
}

void Tour::closeIssue(frmIssue *form)
{
    auto *pages = control<QTabWidget>(form, "tabs");
    pages->setCurrentIndex(resolutionPage);
    control<QPushButton>(form, "cmdDTStamp_Resolution")->click();
    control<QPlainTextEdit>(form, "txtResolution")
        ->appendPlainText(QStringLiteral("Roller in tray 2 replaced."));
    shoot(QStringLiteral("issue-resolution"));
    pages->setCurrentIndex(0);
    control<QComboBox>(form, "cboStatus")->setCurrentText(QStringLiteral("Closed"));
    typeInto(control<QLineEdit>(form, "txtDateResolution"),
             control<QLineEdit>(form, "txtDateSubmit")->text());
    shoot(QStringLiteral("issue-closed"));
    const qint32 issue = form->rowid();
    control<QPushButton>(form, "OKButton")->click();
    need(storedField(issue, QStringLiteral("resolution"), QStringLiteral("issues"))
             .contains(QLatin1String("tray 2")),
         QStringLiteral("the second workstation does not see the resolution"));
}

void Tour::findIssue()
{
    m_visitor->expect(QStringLiteral("frmSearchIssues"), [this](QWidget *dialog) {
        typeInto(control<QLineEdit>(dialog, "txtSearch"), QStringLiteral("roller drum"));
        control<QCheckBox>(dialog, "ckSearchWhat_0")->setChecked(true);
        control<QCheckBox>(dialog, "ckSearchWhat_2")->setChecked(true);
        shoot(QStringLiteral("search-issues"));
        hands::pressOk(dialog);
    });
    pressAndAnswer(QStringLiteral("SEARCHISSUES"));
    auto *found = newestForm<frmIssueList>();
    auto *hits = control<ListView>(found, "lv");
    need(hits->itemCount() == 1 && hits->itemText(0, 0) == QLatin1String("Paper jam"),
         QStringLiteral("the search does not find the issue by its resolution"));
    shoot(QStringLiteral("issues-found"));
    hands::pressEnter(hits);
    newestForm<frmIssue>()->close();
    found->close();
}

void Tour::seeMyIssues()
{
    press(QStringLiteral("MYISSUES"));
    auto *mine = newestForm<frmMyIssues>();
    need(control<ListView>(mine, "lv")->itemCount() == 1,
         QStringLiteral("the list of one's own issues does not show the issue"));
    shoot(QStringLiteral("my-issues"));
    auto *status = control<QComboBox>(mine, "cboStatus");
    status->setCurrentText(QStringLiteral("Open"));
    need(control<ListView>(mine, "lv")->itemCount() == 0,
         QStringLiteral("the closed issue is among the open ones"));
    shoot(QStringLiteral("my-open-issues"));
    status->setCurrentIndex(0);
    m_visitor->expect(QStringLiteral("frmRptOption"), [this](QWidget *options) {
        shoot(QStringLiteral("list-print-options"));
        control<QPushButton>(options, "OKButton")->click();
    });
    m_visitor->expect(QStringLiteral("frmPreview"), [this](QWidget *preview) {
        settle();
        shoot(QStringLiteral("list-preview"));
        preview->close();
    });
    control<QPushButton>(mine, "cmdPrint")->click();
    m_visitor->check();
    mine->close();
}
