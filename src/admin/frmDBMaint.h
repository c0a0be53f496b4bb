// Maintenance of the data files, one at a time: its index built anew from the rows, and a check
// that tells in plain words whether it is sound. Modal; no other window may be open, as a file is
// needed alone.
#pragma once

#include "db/clsDBFile.h"

#include <QDialog>
#include <QList>

#include <memory>

namespace maintenance
{
struct Finding;
}
namespace Ui
{
class frmDBMaint;
}

class frmDBMaint : public QDialog
{
    Q_OBJECT
public:
    explicit frmDBMaint(QWidget *parent = nullptr);
    ~frmDBMaint() override;

    void Filenames(const QList<clsDBFile> &files);

    void done(int result) override; // not while it works

private:
    class Work;

    void reindex();
    void check();
    // Null after a message when no file is selected.
    const clsDBFile *selectedFile() const;
    QString checked(const QList<maintenance::Finding> &findings, const QString &file) const;

    std::unique_ptr<Ui::frmDBMaint> ui;
    QList<clsDBFile> m_files;
    bool m_working = false;
};
