// Tells who is editing the wanted record, and asks whether to edit it anyway.
#pragma once

#include <QDialog>

#include <memory>

namespace Ui
{
class frmUnderEditMsg;
}

class frmUnderEditMsg : public QDialog
{
    Q_OBJECT
public:
    explicit frmUnderEditMsg(QWidget *parent = nullptr);
    ~frmUnderEditMsg() override;

    void Init(const QString &user, const QString &station);
    // Shows the question over the active window; true: edit the record anyway.
    static bool ask(const QString &user, const QString &station);

private:
    std::unique_ptr<Ui::frmUnderEditMsg> m_ui;
};
