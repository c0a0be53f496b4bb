#include "forms/frmSelectIssueTemplate.h"

#include "common/base/HelpTopics.h"
#include "common/ui/ListView.h"
#include "forms/TemplateList.h"
#include "ui_frmSelectIssueTemplate.h"

#include <QKeyEvent>

namespace
{

constexpr qint32 kBlank = -1;

} // namespace

frmSelectIssueTemplate::frmSelectIssueTemplate(QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmSelectIssueTemplate>())
{
    m_ui->setupUi(this);
    setProperty("tag", QStringLiteral("EDIT_ISSUETEMPLATES"));
    setProperty("helpTopic", help::IssueTemplates);
    templates::setUp(m_ui->lv);
    m_ui->lv->setSelectionMode(QAbstractItemView::SingleSelection);
    connect(m_ui->lv, &ListView::itemSelectionChanged, this, &frmSelectIssueTemplate::SetUI);
    connect(m_ui->lv, &ListView::itemActivated, this, &QDialog::accept);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_ui->cmdRefresh, &QPushButton::clicked, this, &frmSelectIssueTemplate::LoadData);
    LoadData();
    LvSelectFirstItem(m_ui->lv);
    m_ui->lv->setFocus();
}

frmSelectIssueTemplate::~frmSelectIssueTemplate() = default;

void frmSelectIssueTemplate::LoadData()
{
    const QString selected = LvGetSelectedItemKey(m_ui->lv);
    m_ui->lv->clearItems();
    m_ui->lv->addItem(LvKey(kBlank), {tr("Blank Issue")});
    templates::addAll(m_ui->lv);
    LvSelectItem(m_ui->lv, selected);
    SetUI();
}

void frmSelectIssueTemplate::SetUI()
{
    m_ui->cmdOK->setEnabled(LvIsItemSelected(m_ui->lv));
}

qint32 frmSelectIssueTemplate::templateId() const
{
    const QString key = LvGetSelectedItemKey(m_ui->lv);
    return key.isEmpty() ? kBlank : LvKeyId(key);
}

void frmSelectIssueTemplate::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F5)
        m_ui->cmdRefresh->click();
    else
        QDialog::keyPressEvent(event);
}
