// The page of fields that an issue and an issue template share.
#pragma once

#include <QWidget>

#include <memory>

namespace Ui
{
class IssueFieldsCtl;
}

class IssueFieldsCtl : public QWidget
{
    Q_OBJECT
public:
    explicit IssueFieldsCtl(QWidget *parent = nullptr);
    ~IssueFieldsCtl() override;

    // Its controls, under the names that they have in the Designer file.
    const Ui::IssueFieldsCtl &ui() const { return *m_ui; }
    // A template has neither customer nor dates. Those controls are gone afterwards.
    void leaveOutCustomerAndDates();

private:
    std::unique_ptr<Ui::IssueFieldsCtl> m_ui;
};
