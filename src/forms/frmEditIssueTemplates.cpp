#include "forms/frmEditIssueTemplates.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/HelpTopics.h"
#include "common/ui/ListView.h"
#include "common/ui/Printing.h"
#include "forms/TemplateList.h"
#include "ui_frmEditIssueTemplates.h"

#include <QKeyEvent>

frmEditIssueTemplates::frmEditIssueTemplates(QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmEditIssueTemplates>())
{
    m_ui->setupUi(this);
    setProperty("tag", QStringLiteral("EDIT_ISSUETEMPLATES"));
    setProperty("helpTopic", help::IssueTemplates);
    templates::setUp(m_ui->lv);
    m_ui->lv->setEmptyText(tr("There are no issue templates yet. Press New to add one."));
    connectControls();
    m_wasEnabled = templates::enabled();
    m_ui->ckEnableIssueTemplate->setChecked(m_wasEnabled);
    LoadData();
}

frmEditIssueTemplates::~frmEditIssueTemplates() = default;

void frmEditIssueTemplates::connectControls()
{
    const auto onClick = [this](QPushButton *button, void (frmEditIssueTemplates::*body)()) {
        connect(button, &QPushButton::clicked, this, [this, button, body] {
            m_ui->lv->finishEditing();
            const QByteArray context =
                "frmEditIssueTemplates_" + button->objectName().toLatin1() + "_Click";
            guarded(context.constData(), [this, body] { (this->*body)(); });
        });
    };
    onClick(m_ui->cmdNew, &frmEditIssueTemplates::newTemplate);
    onClick(m_ui->cmdEdit, &frmEditIssueTemplates::editTemplate);
    onClick(m_ui->cmdPrint, &frmEditIssueTemplates::print);
    onClick(m_ui->cmdRefresh, &frmEditIssueTemplates::LoadData);
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &QDialog::accept);
    m_ui->lv->setLabelEditing(
        [this](const QString &key, const QString &text) {
            return guarded("frmEditIssueTemplates_lv_AfterLabelEdit", std::optional<QString>(),
                           [&] { return UpdateDesc(key, text); });
        },
        templates::kNameLength);
    connect(m_ui->lv, &ListView::itemSelectionChanged, this, &frmEditIssueTemplates::SetUI);
    connect(m_ui->lv, &ListView::itemActivated, m_ui->cmdEdit, &QPushButton::click);
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

void frmEditIssueTemplates::newTemplate()
{
    const QString name = tr("Untitled %1").arg(++m_untitled).left(templates::kNameLength);
    const qint32 id = gDB.AddUpdateItem(templates::table(), -1, name);
    if (id < 1)
        return;
    m_ui->lv->addItem(templates::keyOf(id), {name});
    LvSelectItem(m_ui->lv, templates::keyOf(id));
    m_ui->lv->setFocus();
    m_ui->lv->editLabel(templates::keyOf(id));
}

std::optional<QString> frmEditIssueTemplates::UpdateDesc(const QString &key, const QString &text)
{
    const QString name = clsSystem::Trim(text).left(templates::kNameLength);
    if (name.isEmpty() || gDB.AddUpdateItem(templates::table(), templates::idOf(key), name) < 1)
        return std::nullopt;
    return name;
}

void frmEditIssueTemplates::editTemplate()
{
    m_toEdit = templates::idOf(LvGetSelectedItemKey(m_ui->lv));
    accept();
}

void frmEditIssueTemplates::print()
{
    ListViewPrint_GetPrinter(*m_ui->lv, windowTitle());
}

void frmEditIssueTemplates::done(int result)
{
    m_ui->lv->finishEditing();
    guarded("frmEditIssueTemplates_Form_Unload", [this] { storeEnabled(); });
    QDialog::done(result);
}

// Who only looks at a list that takes no changes is not told so on leaving.
void frmEditIssueTemplates::storeEnabled()
{
    const bool enabled = m_ui->ckEnableIssueTemplate->isChecked();
    if (enabled != m_wasEnabled || !gDB.IsReadOnly())
        templates::setEnabled(enabled);
}

void frmEditIssueTemplates::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F5)
        m_ui->cmdRefresh->click();
    else
        QDialog::keyPressEvent(event);
}
