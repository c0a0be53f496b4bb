#include "admin/frmPreferences.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/HelpTopics.h"
#include "common/base/Hourglass.h"
#include "common/ui/Controls.h"
#include "db/clsCustomLabels.h"
#include "db/clsDB.h"
#include "db/TableUse.h"
#include "ui_frmPreferences.h"

#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>

namespace
{

constexpr int kCaptionLength = 80;
constexpr int DefaultName = 1; // columns
constexpr int CustomName = 2;
const QString NameOrder = QStringLiteral("CUSTOMERNAME_DISPLAY");

// The renameable fields of a window, in the order of its grid.
QStringList fieldsOf(schema::Table table)
{
    switch (table) {
    case schema::Table::Customer:
        return {"custno",    "firstname",  "lastname",  "company",    "title",
                "address1",  "address2",   "city",      "state",      "postalcode",
                "country",   "workphone",  "homephone", "mobilphone", "faxphone",
                "emailname", "emailname2", "custcat",   "custom1",    "custom2"};
    case schema::Table::Customer2PS:
        return {"shortdesc", "contno",   "trackno", "conttype", "contdur",
                "dateinit",  "dateterm", "custom1", "custom2"};
    default:
        return {"issuecat", "custom1", "custom2"};
    }
}

// Plain text of bearable length on a control that takes "&" for an access key.
QString captionText(const QString &text)
{
    return clsSystem::StrTruncate(text, kCaptionLength).replace(u'&', QLatin1String("&&"));
}

} // namespace

frmPreferences::frmPreferences(QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmPreferences>())
{
    m_ui->setupUi(this);
    setProperty("helpTopic", help::Customizations);
    const auto name = [this](QDialogButtonBox::StandardButton button, const char *objectName) {
        m_ui->buttonBox->button(button)->setObjectName(QLatin1String(objectName));
    };
    name(QDialogButtonBox::Ok, "OKButton");
    name(QDialogButtonBox::Cancel, "CancelButton");
    name(QDialogButtonBox::Apply, "cmdApply");

    connect(m_ui->buttonBox->button(QDialogButtonBox::Apply), &QPushButton::clicked, this,
            &frmPreferences::SaveData);
    connect(m_ui->cmdReset, &QPushButton::clicked, this, &frmPreferences::reset);
    connect(m_ui->cboWindow, &QComboBox::currentIndexChanged, this, &frmPreferences::windowChosen);
    connect(m_ui->grdCustom, &Grid::cellEdited, this, [this] { m_changed = true; });
    for (QRadioButton *option : {m_ui->optCustName0, m_ui->optCustName1})
        connect(option, &QRadioButton::clicked, this, [this] { m_changed = true; });

    InitControls();
    LoadData();
    resize(size().boundedTo(screen()->availableSize() * 9 / 10));
}

frmPreferences::~frmPreferences() = default;

void frmPreferences::InitControls()
{
    const QScopedValueRollback<bool> loading(m_loading, true);
    const auto addWindow = [this](const QString &name, schema::Table table) {
        cboAddItem(m_ui->cboWindow, name + tr(" Window"), static_cast<qint32>(table));
    };
    addWindow(tr("Customer"), schema::Table::Customer);
    addWindow(tr("Product/Service"), schema::Table::Customer2PS);
    addWindow(tr("Issue"), schema::Table::Issues);
    cboSelectAtIndex(m_ui->cboWindow, 0);

    m_ui->grdCustom->setColumns({{tr("Internal Name"), 270}, {tr("Custom Display Name"), 160}});
    m_ui->grdCustom->setColumnEditable(DefaultName, false);
    m_ui->grdCustom->setRowNumbersVisible(false);

    const auto label = [](const char *field) {
        return CustomLabels.GetCustomerLabelName(QLatin1String(field));
    };
    const QString fullName = label("lastname") % u", " % label("firstname");
    m_ui->optCustName0->setText(captionText(label("company") % u" (" % fullName % u')'));
    m_ui->optCustName1->setText(captionText(fullName));
}

QString frmPreferences::GetCurrentWindow() const
{
    const auto table = static_cast<schema::Table>(cboGetItemID(m_ui->cboWindow));
    return schema::table(table).dataFile();
}

void frmPreferences::LoadData()
{
    guarded("frmPreferences_LoadData", [this] {
        const Hourglass busy;
        const clsDB::TellOnce tellOnce(gDB);
        const QStringList fields =
            fieldsOf(static_cast<schema::Table>(cboGetItemID(m_ui->cboWindow)));
        m_window = m_ui->cboWindow->currentIndex();
        m_ui->grdCustom->setRows(static_cast<int>(fields.size()));
        m_ui->grdCustom->setText(0, DefaultName,
                                 m_ui->cboWindow->currentText() + tr(" Default Names"));
        for (int at = 0; at < fields.size(); ++at)
            AddF2G(at + 1, GetCurrentWindow(), fields[at]);
        const bool nameAlone = gDB.GetParamValue(NameOrder) == u"1";
        (nameAlone ? m_ui->optCustName1 : m_ui->optCustName0)->setChecked(true);
        m_ui->grdCustom->setCurrentIndex(m_ui->grdCustom->model()->index(0, CustomName - 1));
        m_changed = false;
    });
}

void frmPreferences::AddF2G(int row, const QString &tableFile, const QString &field)
{
    const QString parameter = clsDB::MakeCustomFieldParamName(tableFile, field);
    m_ui->grdCustom->setRowData(row, parameter);
    m_ui->grdCustom->setText(row, DefaultName,
                             u"  " % clsCustomLabels::GetDefaultLabelName(tableFile, field));
    m_ui->grdCustom->setText(row, CustomName, gDB.GetParamValue(parameter));
}

bool frmPreferences::SaveData()
{
    return guarded("frmPreferences_SaveData", false, [this] {
        const Hourglass busy;
        const clsDB::TellOnce tellOnce(gDB);
        const LockAttempts tenAttempts(gDB.CBEngine());
        m_ui->grdCustom->finishEditing();
        bool stored = true;
        for (int row = 1; stored && row <= m_ui->grdCustom->rows(); ++row)
            stored = gDB.SetParamValue(m_ui->grdCustom->rowData(row).toString(),
                                       m_ui->grdCustom->text(row, CustomName));
        stored = stored && gDB.SetParamValue(NameOrder, m_ui->optCustName1->isChecked()
                                                            ? QStringLiteral("1")
                                                            : QStringLiteral("0"));
        if (stored)
            m_changed = false;
        return stored;
    });
}

// What could not be stored stays on the screen.
void frmPreferences::windowChosen()
{
    if (m_loading)
        return;
    m_ui->grdCustom->finishEditing();
    const prompts::Message question{.kind = prompts::Kind::Question,
                                    .title = tr("Save Changes?"),
                                    .text = tr("Do you want to save changes for this window?"),
                                    .buttons = {prompts::Answer::Yes, prompts::Answer::No},
                                    .preset = prompts::Answer::No};
    if (m_changed && prompts::message(question) == prompts::Answer::Yes && !SaveData()) {
        const QScopedValueRollback<bool> loading(m_loading, true);
        cboSelectAtIndex(m_ui->cboWindow, m_window);
        return;
    }
    LoadData();
}

void frmPreferences::reset()
{
    m_ui->grdCustom->finishEditing();
    for (int row = 1; row <= m_ui->grdCustom->rows(); ++row)
        m_ui->grdCustom->setText(row, CustomName, QString());
    m_changed = true;
}

void frmPreferences::accept()
{
    if (SaveData())
        QDialog::accept();
}
