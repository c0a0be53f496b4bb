// The customer's products, services and issues: two lists, from which those records are opened.
#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Hourglass.h"
#include "common/ui/Controls.h"
#include "common/ui/Printing.h"
#include "common/ui/Switchboard.h"
#include "db/clsCustomLabels.h"
#include "db/CustomerLists.h"
#include "forms/frmCustomer.h"
#include "forms/Subscription.h"
#include "forms/TemplateList.h"
#include "ui_frmCustomer.h"

#include <QPushButton>
#include <QShortcut>

namespace
{

constexpr int kIdDigits = 6; // padded to these, numbers sort as texts
// Columns
constexpr int kSubmitDate = 4;
constexpr int kDateSort = 5;

QString paddedId(qint32 rowid)
{
    const QString text = QString::number(rowid);
    return text.size() < kIdDigits
               ? clsSystem::PadChar(text, kIdDigits, QStringLiteral(" "), clsSystem::Side::Front)
               : text;
}

ListView::Row rowOf(const CustomerSubscription &held)
{
    return {LvKey(held.rowid),
            {held.product, held.shortDescription, held.initiated, held.terminated,
             isActiveUntil(held.terminated) ? frmCustomer::tr("Yes") : frmCustomer::tr("NO")}};
}

ListView::Row rowOf(const CustomerIssue &issue)
{
    return {LvKey(issue.rowid),
            {paddedId(issue.rowid), issue.status, issue.shortDescription, issue.product,
             issue.submitted, issue.submitDate}};
}

// The rows by the first column, and on them the selection that was there or is asked for.
template <class Rows>
void fill(ListView *list, const Rows &rows, qint32 selectId)
{
    const QString selected = LvGetSelectedItemKey(list);
    QList<ListView::Row> shown;
    shown.reserve(static_cast<qsizetype>(rows.size()));
    for (const auto &row : rows)
        shown.append(rowOf(row));
    list->clearItems();
    list->beginLoad();
    list->addItems(shown);
    list->sortBy(0, Qt::AscendingOrder);
    list->endLoad();
    LvSelectFirstItem(list);
    LvSelectItem(list, selected);
    if (selectId > 0)
        LvSelectItem(list, LvKey(selectId));
}

} // namespace

void frmCustomer::LV_AddColHeaders()
{
    const clsDB::TellOnce tellOnce(gDB);
    const auto label = [](const char *field) {
        return CustomLabels.GetPSLabelName(QString::fromLatin1(field), false);
    };
    m_ui->lvPS->setColumns({{tr("Product/Service"), {}, 130},
                            {label("shortdesc"), {}, 130},
                            {label("dateinit"), {}, 90},
                            {label("dateterm"), {}, 90},
                            {tr("Active?"), {}, 60}});
    m_ui->lvIssues->setColumns({{tr("ID"), {}, 60},
                                {tr("Status"), {}, 90},
                                {tr("Short Description"), {}, 130},
                                {tr("Product/Service"), {}, 130},
                                {tr("Submit Date"), {}, 90},
                                {tr("Date Sort"), {}, 0, true}});
    m_ui->lvPS->setShares({26, 0, 13, 13, 10});
    m_ui->lvIssues->setShares({9, 13, 0, 26, 13});
    m_ui->lvIssues->setSortSubstitute(kSubmitDate, kDateSort);
    for (ListView *list : {m_ui->lvPS, m_ui->lvIssues})
        list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_ui->lvPS->setEmptyText(
        tr("This customer has no product or service yet. Press New to add one."));
    m_ui->lvIssues->setEmptyText(tr("This customer has no issue yet. Press New to log one."));
}

void frmCustomer::connectLists()
{
    connect(m_ui->lvPS, &ListView::itemActivated, m_ui->cmdPropertiesPS, &QPushButton::click);
    connect(m_ui->cmdPropertiesPS, &QPushButton::clicked, this, &frmCustomer::openSubscription);
    connect(m_ui->cmdNewPS, &QPushButton::clicked, this, &frmCustomer::newSubscription);
    connect(m_ui->cmdPrintPS, &QPushButton::clicked, this, &frmCustomer::printSubscriptions);
    connect(m_ui->lvIssues, &ListView::itemActivated, m_ui->cmdPropertiesIssues,
            &QPushButton::click);
    connect(m_ui->cmdPropertiesIssues, &QPushButton::clicked, this, &frmCustomer::openIssue);
    connect(m_ui->cmdNewIssue, &QPushButton::clicked, this, &frmCustomer::newIssue);
    connect(m_ui->cmdPrintIssues, &QPushButton::clicked, this, &frmCustomer::printIssues);
    shortcutFor(this, QKeySequence::Print, m_ui->cmdPrint);
    auto *insert = new QShortcut(Qt::Key_Insert, m_ui->tabs);
    insert->setContext(Qt::WidgetWithChildrenShortcut);
    connect(insert, &QShortcut::activated, this, [this] {
        for (const auto &[button, list] : {std::pair{m_ui->cmdNewPS, m_ui->lvPS},
                                           std::pair{m_ui->cmdNewIssue, m_ui->lvIssues}}) {
            if (!button->isVisible())
                continue;
            list->setFocus(); // where the person comes back to, the new row selected
            button->click();
        }
    });
}

void frmCustomer::LV_LoadPS(int selectId)
{
    guarded("frmCustomer_LV_LoadPS", [&] {
        const Hourglass busy;
        fill(m_ui->lvPS, customerSubscriptions(gDB, rowid()), selectId);
        m_ui->lblPS->setText(tr("%1 products/services").arg(m_ui->lvPS->itemCount()));
    });
}

void frmCustomer::LV_LoadIssues(int selectId)
{
    guarded("frmCustomer_LV_LoadIssues", [&] {
        const Hourglass busy;
        fill(m_ui->lvIssues, customerIssues(gDB, rowid()), selectId);
        m_ui->lblIssues->setText(tr("%1 issues").arg(m_ui->lvIssues->itemCount()));
    });
}

void frmCustomer::newSubscription()
{
    if (gDB.Perm_PS() && gDB.MayWrite())
        switchboard().ShowPS(-1, rowid(), true);
}

void frmCustomer::openSubscription()
{
    const QString key = LvGetSelectedItemKey(m_ui->lvPS);
    if (key.isEmpty())
        prompts::warn(
            tr("No Product/Service is currently selected. Please make a selection first."));
    else
        switchboard().ShowPS(LvKeyId(key), rowid(), false);
}

// With templates switched on, the person says first which one to start from.
void frmCustomer::newIssue()
{
    if (!gDB.Perm_Issues() || !gDB.MayWrite())
        return;
    qint32 templateId = -1;
    if (templates::enabled() && !switchboard().GetIssueTemplateID(templateId))
        return;
    switchboard().ShowIssue(-1, rowid(), true, templateId);
}

void frmCustomer::openIssue()
{
    const QString key = LvGetSelectedItemKey(m_ui->lvIssues);
    if (key.isEmpty())
        prompts::warn(tr("No Issue is currently selected. Please make a selection first."));
    else
        switchboard().ShowIssue(LvKeyId(key), rowid(), false, -1);
}

void frmCustomer::printSubscriptions()
{
    ListViewPrint_GetPrinter(*m_ui->lvPS,
                             tr("Product/Services List for %1").arg(MakeCustomerName()));
}

void frmCustomer::printIssues()
{
    ListViewPrint_GetPrinter(*m_ui->lvIssues, tr("Issue List for %1").arg(MakeCustomerName()));
}
