// Asks how to find a customer. Modal; accepted once the search is one that may be run.
#pragma once

#include <QDialog>

#include <memory>

namespace Ui
{
class frmLookupCustomer;
}

// The search types, by the identifiers kept in the preferences.
enum CustomerSearch : qint32 {
    SearchLastName = 1,
    SearchCompany = 2,
    SearchNumber = 3,
    SearchWorkPhone = 4,
    SearchId = 5,
    SearchAddress = 6
};

class frmLookupCustomer : public QDialog
{
    Q_OBJECT
public:
    explicit frmLookupCustomer(QWidget *parent = nullptr);
    ~frmLookupCustomer() override;

    // What was asked for; valid once the dialog was accepted.
    const QString &searchStr() const { return m_SearchStr; }
    qint32 searchType() const { return m_SearchType; }

    void accept() override;

private:
    void loadTypes();
    void refuse(const QString &reason);

    std::unique_ptr<Ui::frmLookupCustomer> ui;
    QString m_SearchStr;
    qint32 m_SearchType = SearchLastName;
};
