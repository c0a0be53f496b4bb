// Which way messages take to the mail program, kept as a setting of this user on this machine.
#pragma once

#include <QDialog>

#include <memory>

namespace Ui
{
class frmOptions;
}

class frmOptions : public QDialog
{
    Q_OBJECT
public:
    explicit frmOptions(QWidget *parent = nullptr);
    ~frmOptions() override;

    void InitControls();
    void LoadData();
    // Stores nothing while neither is chosen.
    void SaveData();

private:
    std::unique_ptr<Ui::frmOptions> ui;
};
