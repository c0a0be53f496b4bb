// The users of the open database in a sortable list: added, looked at, made inactive, and given
// their first password again. Modal.
#pragma once

#include <QDialog>

#include <memory>

namespace Ui
{
class frmUsers;
}

class frmUsers : public QDialog
{
    Q_OBJECT
public:
    explicit frmUsers(QWidget *parent = nullptr); // loaded
    ~frmUsers() override;

    // Reads the users again; the selected one stays selected.
    void LoadData();
    void SetUI();
    QSize sizeHint() const override;

private:
    void addShortcut(const QKeySequence &keys, void (frmUsers::*command)());
    QString selectedLogin() const;
    qint32 selectedId() const; // 0 when none is
    bool selectedExists() const;

    void refresh();
    void addUser();
    void showProperties();
    void removeUser();
    void resetPassword();

    std::unique_ptr<Ui::frmUsers> ui;
    int m_columnsWidth = 0; // pixels at 96 dpi
};
