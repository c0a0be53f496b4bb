#include "reports/ReportWindow.h"

#include "common/base/AppInfo.h"
#include "common/base/HelpTopics.h"
#include "common/base/Host.h"
#include "common/base/Hourglass.h"
#include "common/ui/BusyWindow.h"
#include "common/ui/Controls.h"
#include "common/ui/GridFind.h"
#include "common/ui/GridSaving.h"
#include "common/ui/PrintDoor.h"
#include "common/ui/Printing.h"
#include "reports/PaperColumns.h"
#include "reports/ReportModel.h"
#include "ui_ReportWindow.h"

#include <QPagedPaintDevice>

#include <algorithm>

namespace
{

constexpr int kMargin = 720; // twips

PrintedTable printed(const ReportGrid &grid, const QPagedPaintDevice &device)
{
    const int dots = grid.logicalDpiX();
    const qreal points = device.pageLayout().fullRect(QPageLayout::Point).width();
    const int room = static_cast<int>(points * dots / 72) - 2 * kMargin * dots / 1440;
    const ReportTable &table = grid.report().table();
    PrintedTable printed{.headings = {},
                         .widths = {},
                         .rows = static_cast<int>(table.rows.size()),
                         .text =
                             [&table](int row, int column) {
                                 return table.cell(static_cast<std::size_t>(row),
                                                   static_cast<std::size_t>(column));
                             },
                         .font = grid.font()};
    for (std::size_t column = 0; column < table.columns.size(); ++column) {
        printed.headings.append(table.columns[column].heading);
        printed.widths.append(grid.shownWidth(static_cast<int>(column)) +
                              betweenColumns(grid.font()));
    }
    printed.widths = paperWidths(table, grid.font(), printed.widths, room);
    return printed;
}

} // namespace

ReportWindow::ReportWindow(QWidget *parent)
    : FormWindow(parent), ui(std::make_unique<Ui::ReportWindow>()), m_model(new ReportModel(this))
{
    ui->setupUi(this);
    ui->grd->setModel(m_model);
    shortcutFor(this, QKeySequence::Find, ui->cmdFind);
    shortcutFor(this, QKeySequence::Refresh, ui->cmdRefresh);
    shortcutFor(this, QKeySequence::Save, ui->cmdSaveAs);
    shortcutFor(this, QKeySequence::Print, ui->cmdPrint);
    connect(ui->grd, &ReportGrid::headingClicked, this, &ReportWindow::sortBy);
    connect(ui->grd, &ReportGrid::rowActivated, this, &ReportWindow::zoomIn);
    connect(ui->cmdFind, &QPushButton::clicked, this, &ReportWindow::openFind);
    connect(ui->cmdZoomIn, &QPushButton::clicked, this, &ReportWindow::zoomIn);
    connect(ui->cmdRefresh, &QPushButton::clicked, this, &ReportWindow::reload);
    connect(ui->cmdSaveAs, &QPushButton::clicked, this, &ReportWindow::saveAs);
    connect(ui->cmdPrint, &QPushButton::clicked, this, &ReportWindow::print);
    connect(ui->CancelButton, &QPushButton::clicked, this, &QWidget::close);
}

ReportWindow::~ReportWindow() = default;

const ReportTable &ReportWindow::report() const
{
    return m_model->table();
}

// A page of rows, and room for a few columns and for the number of rows, which is not known yet and
// would push the buttons together.
QSize ReportWindow::sizeHint() const
{
    const int letter = fontMetrics().averageCharWidth();
    const QSize controls = FormWindow::sizeHint() + QSize(10 * letter, 0);
    return controls.expandedTo({130 * letter, controls.height()}) +
           QSize(0, 14 * fontMetrics().height());
}

void ReportWindow::SetUI() {}

void ReportWindow::reload()
{
    LoadData();
    SetUI();
}

void ReportWindow::InitGrid(const std::vector<ReportTable::Column> &columns)
{
    ReportTable empty;
    empty.columns = columns;
    m_model->setTable(std::move(empty));
    ui->grd->showColumns();
}

void ReportWindow::DisplayReportData(std::vector<ReportTable::Column> columns, const Walk &walk)
{
    InitGrid(columns);
    ReportTable table;
    table.columns = std::move(columns);
    const std::size_t first = table.firstDataColumn();
    if (table.columns.size() == first) {
        prompts::critical(tr("Report definition does not specify any columns to display!"));
        return;
    }
    const std::optional<qint32> found = DisplayRowData(table, walk);
    {
        const Hourglass hourglass;
        table.deliver(suppresses());
        const bool any = !table.rows.empty();
        m_model->setTable(std::move(table));
        ui->grd->fitColumns();
        if (any) {
            ui->grd->markSorted(static_cast<int>(first));
            ui->grd->selectCell(0, static_cast<int>(first));
        }
    }
    if (found)
        ui->lblCount->setText(QString::number(*found) + tr(" rows"));
    ui->grd->setFocus();
}

std::optional<qint32> ReportWindow::DisplayRowData(ReportTable &table, const Walk &walk)
{
    const BusyWindow oneAtATime(this);
    WaitDlg wait;
    gSys.WaitDlgShow(wait, tr("Preparing Report"), tr("Please wait..."), false, true);
    host().pumpEvents();
    int lookedAt = 0;
    const std::optional<qint32> found = walk(table, [&](qint32) {
        if (++lookedAt % 100 == 0)
            host().pumpEvents();
        return !(wait && wait->cancelled());
    });
    gSys.WaitDlgRemove(wait);
    host().pumpEvents();
    return found;
}

void ReportWindow::sortBy(int column)
{
    const bool inGrid = column >= 0 && column < m_model->columnCount();
    if (m_model->rowCount() == 0) {
        ui->grd->markSorted(-1); // the heading has turned its arrow by itself
    } else if (suppresses()) {
        ui->grd->markSorted(static_cast<int>(report().firstDataColumn()));
        prompts::message(
            {.kind = prompts::Kind::Information,
             .title = app::title(),
             .text = tr("This report cannot be re-sorted because the report definition 'Suppresses "
                        "repeating values' in the first column of the report!"),
             .helpContext = help::ReportDefinition});
    } else if (inGrid) {
        const Hourglass hourglass;
        m_model->sortBy(column);
        ui->grd->markSorted(column);
        ui->grd->selectCell(0, column);
    }
}

void ReportWindow::zoomIn()
{
    const int row = ui->grd->currentRow();
    if (row < 0)
        prompts::warn(tr("Please select a row first!"));
    else if (m_model->rowid(row) > 0)
        openRecord(row);
}

void ReportWindow::openFind()
{
    if (m_find == nullptr) {
        m_find = new frmFind(this);
        m_find->setOwner([this](const frmFind::Request &request) {
            Find(request.text, request.wholeWordOnly, request.matchCase, request.directionUp);
        });
    }
    m_find->setTitle(tr("Find in ") + title());
    m_find->start();
}

// Rows count from 1. All columns are searched, those of the row numbers too.
bool ReportWindow::findFrom(const frmFind::Request &request, int row)
{
    const FoundCell found = FindCell(
        m_model->rowCount(), m_model->columnCount(),
        [this](int at, int column) {
            return report().cell(static_cast<std::size_t>(at - 1),
                                 static_cast<std::size_t>(column - 1));
        },
        request, row);
    const auto first = static_cast<int>(report().firstDataColumn());
    if (found.row > 0)
        ui->grd->selectCell(found.row - 1, std::max(found.column - 1, first));
    return found.row > 0;
}

void ReportWindow::Find(const QString &strFind, bool bWholeWordOnly, bool bMatchCase,
                        bool bDirectionUp)
{
    const int began = ui->grd->currentRow() + 1;
    frmFind::Request request{strFind, bWholeWordOnly, bMatchCase, bDirectionUp};
    if (findFrom(request, began))
        return;
    const QString none = tr("No occurences of '%1' found!").arg(strFind);
    if (began <= 1) {
        prompts::inform(none);
        return;
    }
    if (prompts::ask(tr("No more occurences of '%1' found! Would you like to search from the top "
                        "of this view?")
                         .arg(strFind)) != prompts::Answer::Yes)
        return;
    request.directionUp = false; // there is nothing above the top
    bool found = false;
    if (m_model->columnCount() > 1) {
        ui->grd->selectCell(0, static_cast<int>(report().firstDataColumn()));
        found = findFrom(request, 1);
    }
    if (!found || ui->grd->currentRow() + 1 == began)
        prompts::inform(none);
}

void ReportWindow::saveAs()
{
    const auto text = [this](int row, int column) {
        const auto at = static_cast<std::size_t>(column);
        return row == 0 ? report().columns[at].heading
                        : report().cell(static_cast<std::size_t>(row - 1), at);
    };
    SaveGridTexts(text, 0, m_model->rowCount(), 0, m_model->columnCount() - 1);
}

void ReportWindow::print()
{
    if (m_model->rowCount() == 0) {
        prompts::inform(tr("The report is empty. There is nothing to print."));
        return;
    }
    const QString name = title() + u" - " + clsSystem::CurrDateTimeShort();
    printing::preview(
        {.name = name,
         .draw =
             [this, name](QPagedPaintDevice &device) {
                 return TablePrint(printed(*ui->grd, device), device, kMargin, kMargin, kMargin,
                                   kMargin, name);
             },
         .orientation = landscape() ? QPageLayout::Landscape : QPageLayout::Portrait});
}
