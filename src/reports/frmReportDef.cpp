#include "reports/frmReportDef.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/HelpTopics.h"
#include "common/base/Numbers.h"
#include "common/ui/Controls.h"
#include "common/ui/Switchboard.h"
#include "db/report/clsRepDefParser.h"
#include "reports/frmRptDisplayColumns.h"
#include "reports/frmRptFilterColumns.h"
#include "reports/ReportNames.h"
#include "ui_frmReportDef.h"

namespace
{

constexpr int kWindowCharacters = 116;
constexpr int kWindowLines = 30;

RecordSpec reportSpec()
{
    return {.tagPrefix = QStringLiteral("REPORTDEF"),
            .table = schema::Table::Report,
            .recordType = QStringLiteral("_rptdef"),
            .captionPrefix = frmReportDef::tr("Report Definition: "),
            .newCaption = {},
            .helpTopic = help::ReportDefinition,
            .permission = &clsDB::Perm_Reports};
}

} // namespace

frmReportDef::frmReportDef(QWidget *parent)
    : RecordForm(reportSpec(), parent), m_ui(std::make_unique<Ui::frmReportDef>())
{
    m_ui->setupUi(this);
    setWindowTitle(tr("Report Definition"));
    takeControls(m_ui.get());
    setNewRecordHint(m_ui->lblNewReport);
    bindFields();
    connectControls();
}

frmReportDef::~frmReportDef() = default;

// In the order in which the fields are saved.
void frmReportDef::bindFields()
{
    bind(QStringLiteral("title"), m_ui->txtRptTitle);
    bindCustom(
        QStringLiteral("type"), m_ui->lblType,
        [this](const QVariant &value) {
            m_type = value.toString();
            showType();
        },
        [this] { return QVariant(m_type); });
    bindCustom(
        QStringLiteral("def"), m_ui->lstColumns,
        [this](const QVariant &value) { SetRptGroupColsAndFilters(value.toString()); },
        [this] { return QVariant(FormRptDef()); });
    bind(QStringLiteral("notes"), m_ui->txtNote);
}

void frmReportDef::connectControls()
{
    const auto onClick = [this](QPushButton *button, auto body) {
        connect(button, &QPushButton::clicked, this, [button, body] {
            const QByteArray context = "frmReportDef_" + button->objectName().toLatin1() + "_Click";
            guarded(context.constData(), body);
        });
    };
    onClick(m_ui->cmdDisplayCols, [this] { addColumns(); });
    onClick(m_ui->cmdDelDispCol, [this] { LBRemoveCurSelected(m_ui->lstColumns); });
    onClick(m_ui->cmdDispColUp, [this] { moveColumn(-1); });
    onClick(m_ui->cmdDispColDown, [this] { moveColumn(1); });
    onClick(m_ui->cmdAddFilter, [this] { addCriterion(); });
    onClick(m_ui->cmdDelFilter, [this] { LBRemoveCurSelected(m_ui->lstFilters); });
    onClick(m_ui->cmdDTStamp_Notes, [this] { insertStamp(m_ui->txtNote); });
}

QSize frmReportDef::sizeHint() const
{
    return RecordForm::sizeHint().expandedTo({kWindowCharacters * fontMetrics().averageCharWidth(),
                                              kWindowLines * fontMetrics().height()});
}

void frmReportDef::showType()
{
    m_ui->lblType->setText(reports::typeName(m_type));
}

void frmReportDef::startNew()
{
    showType();
    m_ui->optOrientation_0->setChecked(true);
    m_ui->ckShowRowNum->setChecked(true);
    m_ui->ckGroupByFirstCol->setChecked(false);
}

QString frmReportDef::description() const
{
    const QString title = reports::shortTitle(m_ui->txtRptTitle->text());
    return title.isEmpty() ? tr("New") : title;
}

QString frmReportDef::firstProblem()
{
    QString faults;
    if (clsSystem::Trim(m_ui->txtRptTitle->text()).isEmpty())
        faults += tr("  - REPORT TITLE must be entered.") + u'\n';
    if (m_ui->lstColumns->count() == 0)
        faults += tr("  - Please select at least one column to display.") + u'\n';
    if (faults.isEmpty())
        return {};
    return tr("Please correct the following data entry fields:") + u"\n\n" + faults;
}

void frmReportDef::afterStore()
{
    switchboard().NotifyReportList(rowid());
}

bool frmReportDef::removeRecord()
{
    const bool removed = RecordForm::removeRecord();
    if (removed)
        switchboard().NotifyReportList(rowid());
    return removed;
}

QString frmReportDef::deleteQuestion() const
{
    return tr("Are you sure you want to *DELETE*  '%1'?").arg(m_ui->txtRptTitle->text());
}

void frmReportDef::addColumns()
{
    frmRptDisplayColumns choice(this);
    choice.Init(m_type, m_ui->lstColumns);
    if (choice.exec() == QDialog::Accepted) {
        choice.addSelectedTo(m_ui->lstColumns);
        m_ui->lstColumns->setCurrentRow(m_ui->lstColumns->count() - 1);
    }
    m_ui->lstColumns->setFocus();
}

void frmReportDef::addCriterion()
{
    frmRptFilterColumns choice(this);
    choice.Init(m_type, m_ui->lstFilters);
    if (choice.exec() == QDialog::Accepted) {
        addCriterionRow(choice.m_nColID, choice.m_sCol, choice.m_sOper, choice.m_nValID,
                        choice.m_sVal);
        m_ui->lstFilters->setCurrentRow(m_ui->lstFilters->count() - 1);
    }
    m_ui->lstFilters->setFocus();
}

void frmReportDef::moveColumn(int rows)
{
    const int current = m_ui->lstColumns->currentRow();
    LBSwapItems(m_ui->lstColumns, current, current + rows);
}

QString frmReportDef::FormConditionString(const QString &sCol, const QString &sOper,
                                          const QString &sVal, qint32 nFilterVal)
{
    return sCol % u' ' % sOper % u" '" % sVal % u"' [" % QString::number(nFilterVal) % u']';
}

// The row keeps what the definition is made of; its tip says it in words.
void frmReportDef::addCriterionRow(qint32 column, const QString &label, const QString &oper,
                                   qint32 value, const QString &valueText)
{
    lbAddItem(m_ui->lstFilters, FormConditionString(label, oper, valueText, value), column);
    const QString words = oper == u"#" ? tr("%1 is not %2") : tr("%1 is %2");
    m_ui->lstFilters->item(m_ui->lstFilters->count() - 1)
        ->setToolTip(words.arg(label, valueText).toHtmlEscaped());
}

void frmReportDef::SetRptGroupColsAndFilters(const QString &sRptDef)
{
    clsRepDefParser definition;
    definition.InitFromRptDef(sRptDef);
    m_ui->ckGroupByFirstCol->setChecked(definition.m_bGroupByFirstCol);
    m_ui->ckShowRowNum->setChecked(definition.m_bShowRowNum);
    m_ui->optOrientation_1->setChecked(true);
    if (definition.m_bLandscape)
        m_ui->optOrientation_0->setChecked(true);
    m_ui->lstColumns->clear();
    for (const clsRepDispCol &column : definition.m_RptCols)
        lbAddItem(m_ui->lstColumns,
                  column.m_sName.isEmpty() ? tr("Unknown column [%1]").arg(column.m_nColID)
                                           : column.m_sName,
                  column.m_nColID);
    m_ui->lstFilters->clear();
    for (const clsRepFilter &filter : definition.m_RptFilters) {
        const std::optional<double> number = NumberInText(filter.m_sVal);
        const std::optional<qint32> value = number ? RoundToLong(*number) : std::nullopt;
        if (value)
            addCriterionRow(filter.m_nColID, gDB.RptColumnName(filter.m_nColID), filter.m_sOper,
                            *value, gDB.GetCategoryDesc(*value));
    }
}

QString frmReportDef::FormRptDef() const
{
    clsRepDefParser definition;
    definition.Init(CK2TrueFalse(m_ui->ckGroupByFirstCol), m_ui->optOrientation_0->isChecked(),
                    CK2TrueFalse(m_ui->ckShowRowNum));
    for (int row = 0; row < m_ui->lstColumns->count(); ++row)
        definition.AddDisplayColumn(lbItemID(m_ui->lstColumns, row));
    for (int row = 0; row < m_ui->lstFilters->count(); ++row)
        definition.AddFilter(lbItemID(m_ui->lstFilters, row), m_ui->lstFilters->item(row)->text());
    return definition.GetRptDefBuffer();
}
