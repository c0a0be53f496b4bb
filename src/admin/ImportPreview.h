// The rows of an import file as the import will read them. Only where every so many rows begin is
// kept; what is on view is read again from the file, so that the preview of a large one is small.
#pragma once

#include "db/import/clsImportData.h"

#include <QAbstractTableModel>
#include <QCache>

#include <memory>
#include <vector>

class CsvReader;
class QTableView;

class ImportPreview : public QAbstractTableModel
{
    Q_OBJECT
public:
    ImportPreview(QString path, const clsImportColDefs &columns, QStringList headings,
                  QObject *parent = nullptr);

    // Goes through the file behind a progress window; Cancel ends that early, which is no failure.
    // `fileRows` as ValidateRows counted them.
    void load(qint32 fileRows);

    // Rows with letters that cannot be stored, as far as the file was read.
    qint32 lostLetters() const { return m_lostLetters; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Place {
        qint64 offset = 0;  // in the file, of the first line of a block
        qint32 fileRow = 0; // its number there, from 1
    };
    struct Row {
        qint32 number = 0;
        QStringList values; // one for each column shown
    };
    using Block = QList<Row>;

    void countRows(CsvReader &reader, qint32 fileRows);
    Row rowAt(int row) const;
    std::unique_ptr<Block> readBlock(int block) const;
    QStringList shownValues(const QString &line) const;

    QString m_path;
    QStringList m_headings;
    QList<qsizetype> m_relevant; // places of the headings that are shown
    std::vector<Place> m_places; // one for each block
    int m_rows = 0;
    qint32 m_lostLetters = 0;
    mutable QCache<int, Block> m_blocks;
};

// Fills the grid, which owns the rows until clearPreviewGrid.
void ImportLoadPreviewGrid(QTableView *grid, const QString &path, const clsImportColDefs &columns,
                           const QStringList &headings, qint32 rowCount);
// Rows that the grid does not come to own: those of another one.
void showPreviewRows(QTableView *grid, QAbstractItemModel *rows);
qint32 previewLostLetters(const QTableView *grid);
void clearPreviewGrid(QTableView *grid);
