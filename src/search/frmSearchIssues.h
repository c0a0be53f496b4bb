// Asks for the words, the product and the texts of an issue search. Modal; accepted once there is
// something to search in.
#pragma once

#include "db/search/IssueSearch.h"

#include <QDialog>

#include <memory>

namespace Ui
{
class frmSearchIssues;
}

class frmSearchIssues : public QDialog
{
    Q_OBJECT
public:
    explicit frmSearchIssues(QWidget *parent = nullptr);
    ~frmSearchIssues() override;

    // No words, any of them, all products and services, no text to search in.
    void Reset();
    // What was asked for; valid once the dialog was accepted.
    const IssueQuery &query() const { return m_query; }

    void accept() override;

private:
    void loadLists();
    void applyRemembered();
    void remember() const;

    std::unique_ptr<Ui::frmSearchIssues> ui;
    IssueQuery m_query;
};
