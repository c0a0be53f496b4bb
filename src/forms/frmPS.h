// One product or service that a customer holds, with its contract.
#pragma once

#include "common/form/CustomerItemForm.h"

#include <memory>

namespace Ui
{
class frmPS;
}

class frmPS : public CustomerItemForm
{
    Q_OBJECT
public:
    explicit frmPS(QWidget *parent = nullptr);
    ~frmPS() override;

    // The record as plain text, a labelled line for each field.
    QString FormContent() override;
    // A contract that ends today still runs.
    void SetActiveStatus();

    QSize sizeHint() const override;

protected:
    QString description() const override;
    QString firstProblem() override;
    void startNew() override;
    void afterLoad() override;
    void afterSetUI() override;

private:
    void bindFields();
    void bindListEditors();
    void tellLengths();

    std::unique_ptr<Ui::frmPS> m_ui;
};
