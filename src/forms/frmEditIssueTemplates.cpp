#include "forms/frmEditIssueTemplates.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/HelpTopics.h"
#include "forms/TemplateList.h"
#include "ui_frmEditIssueTemplates.h"

frmEditIssueTemplates::frmEditIssueTemplates(QWidget *parent)
    : ItemListDialog(parent), m_ui(std::make_unique<Ui::frmEditIssueTemplates>())
{
    m_ui->setupUi(this);
    setProperty("tag", QStringLiteral("EDIT_ISSUETEMPLATES"));
    setProperty("helpTopic", help::IssueTemplates);
    templates::setUp(m_ui->lv);
    m_ui->lv->setEmptyText(tr("There are no issue templates yet. Press New to add one."));
    takeControls(m_ui.get(), templates::kNameLength);
    onClick(m_ui->cmdNew, [this] { addUntitled(++m_untitled); });
    onClick(m_ui->cmdEdit, [this] { editTemplate(); });
    connect(m_ui->lv, &ListView::itemActivated, m_ui->cmdEdit, &QPushButton::click);
    m_wasEnabled = templates::enabled();
    m_ui->ckEnableIssueTemplate->setChecked(m_wasEnabled);
    LoadData();
}

frmEditIssueTemplates::~frmEditIssueTemplates() = default;

clsDB::ListTable frmEditIssueTemplates::table() const
{
    return templates::table();
}

void frmEditIssueTemplates::LoadData()
{
    const QString selected = LvGetSelectedItemKey(m_ui->lv);
    m_ui->lv->clearItems();
    templates::addAll(m_ui->lv);
    LvSelectItem(m_ui->lv, selected);
    setWindowTitle(clsSystem::CurrDateTimeShort() + u" - " + tr("Edit Issue Templates"));
    SetUI();
}

void frmEditIssueTemplates::SetUI()
{
    m_ui->cmdEdit->setEnabled(LvIsItemSelected(m_ui->lv));
}

void frmEditIssueTemplates::editTemplate()
{
    m_toEdit = LvKeyId(LvGetSelectedItemKey(m_ui->lv));
    accept();
}

void frmEditIssueTemplates::done(int result)
{
    guarded("frmEditIssueTemplates_Form_Unload", [this] { storeEnabled(); });
    ItemListDialog::done(result);
}

// Who only looks at a list that takes no changes is not told so on leaving.
void frmEditIssueTemplates::storeEnabled()
{
    const bool enabled = m_ui->ckEnableIssueTemplate->isChecked();
    if (enabled != m_wasEnabled || !gDB.IsReadOnly())
        templates::setEnabled(enabled);
}
