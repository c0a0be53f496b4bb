// Asks for a password: first for the one in force, then, on the same form, for a new one twice.
// Modal; stays until what was typed is right, or it is cancelled.
#pragma once

#include <QDialog>

#include <memory>

class QLineEdit;
namespace Ui
{
class frmChangePWD;
}

class frmChangePWD : public QDialog
{
    Q_OBJECT
public:
    explicit frmChangePWD(QWidget *parent = nullptr);
    ~frmChangePWD() override;

    // One box: accepted when the password is typed, in capitals or not.
    void EnterMode(const QString &caption, const QString &password);
    // Two boxes: accepted when both hold the same password and it is one that may be used.
    void NewMode(const QString &caption);
    // What was typed into the first box.
    QString password() const;

    void accept() override;

private:
    void startMode(const QString &caption, bool isNew);
    QString problem() const; // of what was typed; empty when there is none
    void tellHelp();

    std::unique_ptr<Ui::frmChangePWD> ui;
    QString m_current;
    bool m_isNew = false;
};
