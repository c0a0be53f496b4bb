#include "admin/frmDataImport.h"

#include "admin/frmImportPreview.h"
#include "admin/ImportPreview.h"
#include "common/base/AppInfo.h"
#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/HelpTopics.h"
#include "common/base/Host.h"
#include "common/ui/BusyWindow.h"
#include "db/clsDB.h"
#include "db/import/ImportRun.h"
#include "ui_frmDataImport.h"

#include <QShortcut>

#include <algorithm>

namespace
{

constexpr qint32 kManyRows = 5000; // from here on it is asked whether there is time for it
constexpr int kTextColumn = 0;
constexpr int kHelpColumn = 1;

} // namespace

frmDataImport::frmDataImport(QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::frmDataImport>())
{
    ui->setupUi(this);
    setProperty("tag", QStringLiteral("IMPORTDATA"));
    setProperty("helpTopic", help::DataImport);
    ui->lblWelcome->setText(tr("This wizard will guide you through importing data into %1. Please "
                               "select the data you would like to import from the following list:")
                                .arg(app::title()));
    QSizePolicy hint = ui->lblImportNow->sizePolicy();
    hint.setRetainSizeWhenHidden(true); // the rows above it stay as they are
    ui->lblImportNow->setSizePolicy(hint);
    fillTargets();
    connectControls();
    DisplayFrame();
}

frmDataImport::~frmDataImport() = default;

void frmDataImport::fillTargets()
{
    QTableWidget *grid = ui->grdImport;
    QFont underlined = grid->font();
    underlined.setUnderline(true);
    grid->setRowCount(static_cast<int>(m_targets.size()));
    for (int row = 0; row < grid->rowCount(); ++row) {
        auto *text = new QTableWidgetItem(m_targets[row].text);
        text->setData(Qt::UserRole, m_targets[row].code);
        auto *link = new QTableWidgetItem(tr("Format Help"));
        link->setForeground(palette().link());
        link->setFont(underlined);
        link->setToolTip(tr("What a file for this row looks like (Space)"));
        grid->setItem(row, kTextColumn, text);
        grid->setItem(row, kHelpColumn, link);
    }
    grid->horizontalHeader()->setSectionResizeMode(kTextColumn, QHeaderView::Stretch);
    grid->horizontalHeader()->setSectionResizeMode(kHelpColumn, QHeaderView::ResizeToContents);
    grid->setCurrentCell(0, kTextColumn);
}

void frmDataImport::connectControls()
{
    const auto onClick = [this](QPushButton *button, void (frmDataImport::*body)()) {
        connect(button, &QPushButton::clicked, this, [this, button, body] {
            const QByteArray context =
                "frmDataImport_" + button->objectName().toLatin1() + "_Click";
            guarded(context.constData(), [this, body] { (this->*body)(); });
        });
    };
    onClick(ui->cmdNext, &frmDataImport::goNext);
    onClick(ui->cmdPrevious, &frmDataImport::goBack);
    onClick(ui->cmdBrowse, &frmDataImport::browse);
    onClick(ui->cmdLargerView, &frmDataImport::showLargerView);
    connect(ui->CancelButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(ui->grdImport, &QTableWidget::cellClicked, this, [this](int row, int column) {
        if (column == kHelpColumn)
            showFormatHelp(row);
    });
    connect(ui->grdImport, &QTableWidget::cellDoubleClicked, this, [this](int, int column) {
        if (column == kTextColumn)
            ui->cmdNext->click();
    });
    auto *space = new QShortcut(Qt::Key_Space, ui->grdImport, nullptr, nullptr, Qt::WidgetShortcut);
    connect(space, &QShortcut::activated, this,
            [this] { showFormatHelp(ui->grdImport->currentRow()); });
}

void frmDataImport::DisplayFrame()
{
    ui->pages->setCurrentIndex(m_step);
    ui->cmdPrevious->setEnabled(m_step != ChooseTarget);
    ui->cmdNext->setText(m_step == LookAtRows ? tr("Import &Now") : tr("&Next >>"));
    if (m_step != LookAtRows)
        clearPreviewGrid(ui->grdPreview);
    switch (m_step) {
    case ChooseTarget:
        ui->grdImport->setFocus();
        break;
    case ChooseFile:
        ui->lblFile->setText(tr("Please enter or browse to the file that contains data for '%1' :")
                                 .arg(target().text));
        ui->txtFilename->setFocus();
        break;
    default:
        ui->lblCriteria->setText(
            tr("You are about to import '%1' from file: '%2'").arg(target().text, fileName()));
        {
            const BusyWindow oneAtATime(this);
            ImportLoadPreviewGrid(ui->grdPreview, fileName(), m_columns, m_headings, m_rowCount);
        }
        ui->lblLostLetters->setText(lostLetters(previewLostLetters(ui->grdPreview)));
        ui->lblLostLetters->setVisible(!ui->lblLostLetters->text().isEmpty());
        ui->cmdNext->setFocus();
    }
}

void frmDataImport::goNext()
{
    if (!Validate())
        return;
    if (m_step == LookAtRows) {
        ImportData();
        return;
    }
    ++m_step;
    DisplayFrame();
}

void frmDataImport::goBack()
{
    m_step = std::max(m_step - 1, int(ChooseTarget));
    DisplayFrame();
}

void frmDataImport::browse()
{
    QString path = fileName();
    if (clsSystem::GetFilenameOpen(path, tr("Open Data Import File"),
                                   tr("MS Excel Comma Delimited File (*.csv)|*.csv|"
                                      "Text Files (*.txt)|*.txt|All Files (*.*)|*.*"),
                                   path))
        ui->txtFilename->setText(path);
    ui->txtFilename->setFocus();
}

void frmDataImport::showLargerView()
{
    if (PreviewData(*ui->grdPreview, this))
        ImportData();
}

void frmDataImport::showFormatHelp(int row)
{
    if (row >= 0 && row < m_targets.size())
        clsSystem::ShowMsg(importFormatHelp(m_targets[row]), prompts::Kind::Information,
                           help::DataImport);
}

bool frmDataImport::Validate()
{
    if (m_step != ChooseFile)
        return true;
    const QString file = fileName();
    if (!file.isEmpty() && clsSystem::FileExists(file))
        return ValidateData();
    clsSystem::ShowMsg(file.isEmpty() ? tr("Please enter the name of the data file to import.")
                                      : tr("'%1' does not exist!").arg(file),
                       prompts::Kind::Critical, help::DataImport);
    ui->txtFilename->setFocus();
    return false;
}

bool frmDataImport::ValidateData()
{
    InitDataImportStructures();
    SetupColumns();
    m_checked = FileStamp::of(fileName());
    {
        const BusyWindow oneAtATime(this);
        host().pumpEvents();
        if (m_import.ValidateCols(fileName(), m_columns, m_headings, m_errors) &&
            m_import.ValidateRows(fileName(), m_columns, m_headings, m_errors, m_rowCount))
            return true;
    }
    if (m_errors.isEmpty())
        m_errors = tr("The check did not reach the end of the file.");
    clsSystem::ShowMsg(tr("IMPORT FAILED FROM FILE %1!").arg(fileName()) + clsSystem::CRLF(2) +
                           m_errors,
                       prompts::Kind::Critical, help::DataImport);
    ui->txtFilename->setFocus();
    return false;
}

void frmDataImport::ImportData()
{
    if (m_rowCount > kManyRows &&
        prompts::ask(
            tr("The data file you are about to import contains %1 rows of data and may take a "
               "long time to import. We suggest importing this file when you will NOT be using "
               "your computer for a FEW HOURS (such as overnight). Do you still wish to continue "
               "now?")
                .arg(clsSystem::CommafyNoDec(m_rowCount)),
            prompts::Answer::No) != prompts::Answer::Yes)
        return;
    // A second run would add everything again, so what went in is told in any case.
    ImportResult result;
    if (!ImportData_Detail(result)) {
        prompts::critical(tr("Unable to import data!") + outcome(result));
        return;
    }
    ui->cmdNext->setEnabled(false);
    ui->cmdPrevious->setEnabled(false);
    ui->cmdLargerView->setEnabled(false);
    ui->lblImportNow->hide();
    ui->CancelButton->setText(tr("&Finish"));
    ui->CancelButton->setFocus();
    prompts::inform(tr("Imported %1 Records!").arg(result.tried) + outcome(result));
}

bool frmDataImport::ImportData_Detail(ImportResult &result)
{
    const BusyWindow oneAtATime(this);
    ImportRun run(gDB, target().number(), m_headings, m_rowCount);
    result = run.ImportData_Detail(fileName());
    return result.ok;
}

QString frmDataImport::outcome(const ImportResult &result) const
{
    QString text = QLatin1String("\n\n") + tr("%1 rows tried, %2 stored, %3 skipped")
                                               .arg(clsSystem::CommafyNoDec(result.tried),
                                                    clsSystem::CommafyNoDec(result.stored),
                                                    clsSystem::CommafyNoDec(result.skipped));
    if (result.skipped > 0)
        text += tr(" because the list has them already");
    text += u'.';
    const qint32 failed = result.tried - result.stored - result.skipped;
    if (failed > 0)
        text += u'\n' + tr("%1 rows could not be stored.").arg(clsSystem::CommafyNoDec(failed));
    if (result.lostLetters > 0)
        text += u'\n' + lostLetters(result.lostLetters);
    if (FileStamp::of(fileName()) != m_checked)
        text += u'\n' + tr("The file has changed since it was checked.");
    return text;
}

// Empty when every letter of the file can be stored.
QString frmDataImport::lostLetters(qint32 rows)
{
    return rows == 0 ? QString()
                     : tr("%1 rows hold letters that cannot be stored; a ? stands for each.")
                           .arg(clsSystem::CommafyNoDec(rows));
}

void frmDataImport::InitDataImportStructures()
{
    m_columns.clear();
    m_headings.clear();
    m_errors.clear();
    m_rowCount = 0;
}

void frmDataImport::SetupColumns()
{
    m_columns = ImportRun::columns(target().number());
}

const ImportTarget &frmDataImport::target() const
{
    return m_targets[std::max(ui->grdImport->currentRow(), 0)];
}

QString frmDataImport::fileName() const
{
    return clsSystem::Trim(ui->txtFilename->text());
}

void frmDataImport::done(int result)
{
    InitDataImportStructures();
    QDialog::done(result);
}
