// A long message in a scrollable box of fixed-pitch text, modal, with the picture of its kind.
#pragma once

#include "common/base/Prompts.h"

#include <QDialog>

#include <memory>

namespace Ui
{
class frmMessage;
}

class frmMessage : public QDialog
{
    Q_OBJECT
public:
    explicit frmMessage(QWidget *parent = nullptr);
    ~frmMessage() override;

    // A help context below 1 gives the form none.
    void Init(const QString &text, prompts::Kind kind, int helpContext);

private:
    void showPicture(prompts::Kind kind);

    std::unique_ptr<Ui::frmMessage> ui;
};
