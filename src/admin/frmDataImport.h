// The wizard that brings a spreadsheet's rows into the database: what to import, from which file,
// and a look at the rows before they go in. Everything is checked before anything is written.
// Modal.
#pragma once

#include "admin/ImportTargets.h"
#include "db/import/clsImportData.h"
#include "db/import/FileStamp.h"

#include <QDialog>

#include <memory>

class QTableWidgetItem;
struct ImportResult;
namespace Ui
{
class frmDataImport;
}

class frmDataImport : public QDialog
{
    Q_OBJECT
public:
    explicit frmDataImport(QWidget *parent = nullptr);
    ~frmDataImport() override;

    void done(int result) override;

private:
    enum Step { ChooseTarget = 0, ChooseFile = 1, LookAtRows = 2 };

    void fillTargets();
    void connectControls();
    void DisplayFrame();
    void goNext();
    void goBack();
    void browse();
    void showLargerView();
    void showFormatHelp(int row);
    bool Validate();
    bool ValidateData();
    void ImportData();
    bool ImportData_Detail(ImportResult &result);
    void InitDataImportStructures();
    void SetupColumns();
    QString outcome(const ImportResult &result) const;
    static QString lostLetters(qint32 rows);
    const ImportTarget &target() const;
    QString fileName() const;

    std::unique_ptr<Ui::frmDataImport> ui;
    const QList<ImportTarget> m_targets = importTargets();
    int m_step = ChooseTarget;
    clsImportData m_import;
    clsImportColDefs m_columns;
    QStringList m_headings;
    QString m_errors;
    qint32 m_rowCount = 0;
    FileStamp m_checked;
};
