#include "search/frmSearchIssues.h"

#include "common/base/clsSystem.h"
#include "common/base/HelpTopics.h"
#include "common/base/Preferences.h"
#include "common/form/ListSinks.h"
#include "common/ui/Controls.h"
#include "db/clsDB.h"
#include "db/LookupTypes.h"
#include "db/search/WordMatcher.h"
#include "ui_frmSearchIssues.h"

#include <QPushButton>

namespace
{

constexpr qint32 AllProducts = 0;

const QString LastText = QStringLiteral("LastIssueSearchStr");
const QString LastType = QStringLiteral("LastIssueSearchType");
const QString LastProduct = QStringLiteral("LastIssueSearchPSID");
const QString LastShortDesc = QStringLiteral("LastIssueSearchShortDesc");
const QString LastDesc = QStringLiteral("LastIssueSearchDesc");
const QString LastResolution = QStringLiteral("LastIssueSearchResolution");

} // namespace

frmSearchIssues::frmSearchIssues(QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::frmSearchIssues>())
{
    ui->setupUi(this);
    setProperty("helpTopic", help::FindIssues);
    ui->buttonBox->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OKButton"));
    ui->buttonBox->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    connect(ui->cmdReset, &QPushButton::clicked, this, &frmSearchIssues::Reset);
    connect(ui->cmdClear, &QPushButton::clicked, this, [this] {
        ui->txtSearch->clear();
        ui->txtSearch->setFocus();
    });
    loadLists();
    Reset();
    applyRemembered();
}

frmSearchIssues::~frmSearchIssues() = default;

void frmSearchIssues::loadLists()
{
    cboAddItem(ui->cboType, tr("ANY of these Words"), AnyOfTheWords);
    cboAddItem(ui->cboType, tr("ALL of these Words"), AllOfTheWords);
    cboAddItem(ui->cboPS, tr("All Products/Services"), AllProducts);
    ComboSink products(ui->cboPS);
    gDB.LoadCbo(products, gDB.CategoryTable(), QStringLiteral("rowid"), QStringLiteral("desc"),
                QStringLiteral("type"), lookup_type::Products);
}

void frmSearchIssues::Reset()
{
    ui->txtSearch->clear();
    cboSelectAtID(ui->cboType, AnyOfTheWords);
    cboSelectAtID(ui->cboPS, AllProducts);
    for (QCheckBox *box : {ui->ckSearchWhat_0, ui->ckSearchWhat_1, ui->ckSearchWhat_2})
        box->setChecked(false);
    ui->txtSearch->setFocus();
}

// A product that is gone from the list leaves the search to all of them.
void frmSearchIssues::applyRemembered()
{
    ui->txtSearch->setText(GetPrefStr(LastText));
    ui->txtSearch->selectAll();
    cboSelectAtID(ui->cboType, GetPrefLong(LastType));
    cboSelectAtID(ui->cboPS, GetPrefLong(LastProduct));
    ui->ckSearchWhat_0->setChecked(GetPrefLong(LastShortDesc) == 1);
    ui->ckSearchWhat_1->setChecked(GetPrefLong(LastDesc) == 1);
    ui->ckSearchWhat_2->setChecked(GetPrefLong(LastResolution) == 1);
}

void frmSearchIssues::accept()
{
    m_query = {.text = ui->txtSearch->text(),
               .type = cboGetItemID(ui->cboType),
               .psid = cboGetItemID(ui->cboPS),
               .inShortDesc = ui->ckSearchWhat_0->isChecked(),
               .inDesc = ui->ckSearchWhat_1->isChecked(),
               .inResolution = ui->ckSearchWhat_2->isChecked()};
    if (!m_query.inShortDesc && !m_query.inDesc && !m_query.inResolution) {
        clsSystem::ShowMsg(tr("Please check at least one item next to 'Search what'."));
        return;
    }
    remember();
    QDialog::accept();
}

void frmSearchIssues::remember() const
{
    SetPrefStr(LastText, m_query.text);
    SetPrefLong(LastType, m_query.type);
    SetPrefLong(LastProduct, m_query.psid);
    SetPrefLong(LastShortDesc, clsSystem::TrueFalse2ZeroOne(m_query.inShortDesc));
    SetPrefLong(LastDesc, clsSystem::TrueFalse2ZeroOne(m_query.inDesc));
    SetPrefLong(LastResolution, clsSystem::TrueFalse2ZeroOne(m_query.inResolution));
}
