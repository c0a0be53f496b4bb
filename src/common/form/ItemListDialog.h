// A dialog over the named rows of one table: new rows, names typed in place, printing. The form
// says which table, and has the buttons that are its own.
#pragma once

#include "common/ui/ListView.h"
#include "db/clsDB.h"

#include <QDialog>
#include <QPushButton>

#include <functional>
#include <optional>

class ItemListDialog : public QDialog
{
    Q_OBJECT
public:
    // However the window closes: a name that is being typed is stored.
    void done(int result) override;

protected:
    using QDialog::QDialog;

    // Takes over the controls that such dialogs have, by their names in the Designer file. To be
    // called once, right behind setupUi. The length is the table's, in characters of one byte.
    template <class Ui>
    void takeControls(Ui *ui, int nameLength)
    {
        m_lv = ui->lv;
        m_nameLength = nameLength;
        m_refresh = ui->cmdRefresh;
        connectControls(ui->cmdPrint, ui->cmdClose);
    }
    // Behind the name that is being typed. Failures are told under the button's name.
    void onClick(QPushButton *button, std::function<void()> body);
    // Adds "Untitled" and the number at the end, ready to be typed over.
    void addUntitled(int number);

    virtual clsDB::ListTable table() const = 0;
    virtual void LoadData() = 0;
    virtual void SetUI() = 0;
    // Of the setting that keeps the title under which the person prints this list.
    virtual QString titleKey() const = 0;

    void keyPressEvent(QKeyEvent *event) override;

private:
    void connectControls(QPushButton *cmdPrint, QPushButton *cmdClose);
    QString nameAsStored(QString text) const;
    std::optional<QString> storeName(const QString &key, const QString &text) const;

    ListView *m_lv = nullptr;
    QPushButton *m_refresh = nullptr;
    int m_nameLength = 0;
};
