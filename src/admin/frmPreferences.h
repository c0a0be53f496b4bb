// "Customizations": what the fields of the customer, product/service and issue screens are called
// in this database, and in which order a customer's names are shown. Modal.
#pragma once

#include <QDialog>

#include <memory>

namespace Ui
{
class frmPreferences;
}

class frmPreferences : public QDialog
{
    Q_OBJECT
public:
    explicit frmPreferences(QWidget *parent = nullptr);
    ~frmPreferences() override;

    // Stores the names of the window shown. False when one was not stored, which was told.
    bool SaveData();

    void accept() override; // OK: closes when all was stored

private:
    void InitControls();
    void LoadData();
    void AddF2G(int row, const QString &tableFile, const QString &field);
    QString GetCurrentWindow() const;
    void windowChosen();
    void reset();

    std::unique_ptr<Ui::frmPreferences> m_ui;
    int m_window = 0;       // the entry of cboWindow whose names are in the grid
    bool m_changed = false; // since they were loaded
    bool m_loading = false;
};
