#include "admin/ImportPreview.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Host.h"
#include "db/import/CsvReader.h"
#include "db/import/CsvText.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

#include <limits>

namespace
{

constexpr int kBlockRows = 64;
constexpr int kBlocksKept = 16;
constexpr int kRowsBetweenEvents = 100;
constexpr int kRowsMeasured = 100;     // for the width of a column
constexpr int kWidest = 260;           // pixels at 96 dpi
constexpr qsizetype kCellLength = 500; // what is behind that nobody reads in a grid

// Rows before the first and blank ones are not shown.
bool isShown(qint32 fileRow, const QString &line)
{
    return fileRow > 1 && !clsSystem::Trim(line).isEmpty();
}

// The heading of the row numbers; the view leaves its corner empty.
void nameCorner(QTableView *grid)
{
    auto *corner = grid->findChild<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly);
    if (corner == nullptr || corner->layout() != nullptr)
        return;
    auto *text = new QLabel(ImportPreview::tr("Row"), corner);
    text->setAlignment(Qt::AlignCenter);
    text->setAttribute(Qt::WA_TransparentForMouseEvents);
    QFont bold = text->font();
    bold.setBold(true);
    text->setFont(bold);
    auto *place = new QVBoxLayout(corner);
    place->setContentsMargins(2, 0, 2, 0);
    place->addWidget(text);
}

void fitColumns(QTableView *grid)
{
    QFont bold = grid->font();
    bold.setBold(true);
    QHeaderView *header = grid->horizontalHeader();
    header->setFont(bold);
    header->setResizeContentsPrecision(kRowsMeasured);
    header->setMaximumSectionSize(kWidest * grid->logicalDpiX() / 96);
    grid->resizeColumnsToContents();
    header->setMaximumSectionSize(-1);
    grid->verticalHeader()->setDefaultSectionSize(grid->verticalHeader()->minimumSectionSize());
    grid->verticalHeader()->setMinimumWidth(
        grid->fontMetrics().horizontalAdvance(QStringLiteral("00000000")));
}

} // namespace

ImportPreview::ImportPreview(QString path, const clsImportColDefs &columns, QStringList headings,
                             QObject *parent)
    : QAbstractTableModel(parent),
      m_path(std::move(path)),
      m_headings(std::move(headings)),
      m_blocks(kBlocksKept)
{
    for (qsizetype i = 0; i < m_headings.size(); ++i)
        if (ImportIsColumnRelevant(m_headings[i], columns))
            m_relevant += i;
}

void ImportPreview::load(qint32 fileRows)
{
    beginResetModel();
    guarded("clsSystem_ImportLoadPreviewGrid", [&] {
        CsvReader reader(m_path);
        if (reader.open())
            countRows(reader, fileRows);
        if (reader.failed())
            throw reader.failure();
    });
    endResetModel();
}

void ImportPreview::countRows(CsvReader &reader, qint32 fileRows)
{
    WaitDlg progress;
    clsSystem::WaitDlgShow(progress, tr("Import Data Preview"),
                           tr("Preparing preview of data. If you don't care to see a preview of "
                              "the entire file, you may press cancel to continue"),
                           true, true);
    Place place{reader.position(), 1};
    for (auto line = reader.readLine(); line && !progress->cancelled(); line = reader.readLine()) {
        if (isShown(place.fileRow, *line)) {
            if (m_rows % kBlockRows == 0)
                m_places.push_back(place);
            ++m_rows;
            m_lostLetters += reader.lineLostLetters() ? 1 : 0;
        }
        if (place.fileRow == std::numeric_limits<qint32>::max())
            break;
        clsSystem::WaitDlgUpdate(
            progress, static_cast<int>(qint64(place.fileRow) * 100 / (qint64(fileRows) + 1)));
        if (++place.fileRow % kRowsBetweenEvents == 0)
            host().pumpEvents();
        place.offset = reader.position();
    }
    clsSystem::WaitDlgRemove(progress);
}

int ImportPreview::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int ImportPreview::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_relevant.size());
}

QVariant ImportPreview::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    return rowAt(index.row()).values.value(index.column());
}

QVariant ImportPreview::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    if (orientation == Qt::Horizontal)
        return m_headings.value(m_relevant.value(section));
    const qint32 number = rowAt(section).number;
    return number > 0 ? QVariant(number - 1) : QVariant(QString());
}

// Empty when the file no longer has it.
ImportPreview::Row ImportPreview::rowAt(int row) const
{
    const int block = row / kBlockRows;
    if (const Block *rows = m_blocks.object(block))
        return rows->value(row % kBlockRows);
    auto rows = readBlock(block);
    Row found = rows->value(row % kBlockRows);
    m_blocks.insert(block, rows.release()); // which may throw it away at once
    return found;
}

std::unique_ptr<ImportPreview::Block> ImportPreview::readBlock(int block) const
{
    auto rows = std::make_unique<Block>();
    const Place &place = m_places.at(static_cast<std::size_t>(block));
    CsvReader reader(m_path);
    if (reader.open() && reader.seek(place.offset)) {
        qint32 fileRow = place.fileRow;
        for (auto line = reader.readLine(); line && rows->size() < kBlockRows;
             line = reader.readLine(), ++fileRow)
            if (isShown(fileRow, *line))
                rows->append({fileRow, shownValues(clsSystem::Trim(*line))});
    }
    return rows;
}

QStringList ImportPreview::shownValues(const QString &line) const
{
    const QStringList values = SplitCsvRow(line);
    if (values.size() > m_headings.size())
        return {};
    QStringList shown;
    for (const qsizetype at : m_relevant)
        shown += CSVField_GetValue(values.value(at)).left(kCellLength);
    return shown;
}

void ImportLoadPreviewGrid(QTableView *grid, const QString &path, const clsImportColDefs &columns,
                           const QStringList &headings, qint32 rowCount)
{
    clearPreviewGrid(grid);
    auto *rows = new ImportPreview(path, columns, headings, grid);
    rows->load(rowCount);
    showPreviewRows(grid, rows);
    if (rows->rowCount() > 0)
        grid->setCurrentIndex(rows->index(0, 0));
}

void showPreviewRows(QTableView *grid, QAbstractItemModel *rows)
{
    grid->setModel(rows);
    nameCorner(grid);
    fitColumns(grid);
}

qint32 previewLostLetters(const QTableView *grid)
{
    const auto *rows = qobject_cast<const ImportPreview *>(grid->model());
    return rows == nullptr ? 0 : rows->lostLetters();
}

void clearPreviewGrid(QTableView *grid)
{
    QAbstractItemModel *rows = grid->model();
    grid->setModel(nullptr);
    delete rows;
}
