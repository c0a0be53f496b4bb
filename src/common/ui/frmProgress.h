// What a long operation shows while it runs: a message, a bar where the end is known, and Cancel.
// Not modal; the operation lets events through and reads the flag at its own pace.
#pragma once

#include <QDialog>

#include <memory>

namespace Ui
{
class frmProgress;
}

class frmProgress : public QDialog
{
    Q_OBJECT
public:
    explicit frmProgress(QWidget *parent = nullptr);
    ~frmProgress() override;

    void Init(const QString &title, const QString &message, bool bar, bool cancel);
    // Clears the flag and shows the form in front, painted at once.
    void Display();
    void setPercent(int percent); // outside 0 to 100: ignored
    void setMessage(const QString &message);

    // Esc and the frame's close button count as Cancel; the form stays until it is deleted.
    void reject() override;

    bool m_bCancel = false;

private:
    std::unique_ptr<Ui::frmProgress> ui;
};
