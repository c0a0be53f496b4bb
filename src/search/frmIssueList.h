// The issues found by words in their texts, from which one is opened. Any number of these windows
// may be open.
#pragma once

#include "db/search/IssueSearch.h"
#include "search/HitListWindow.h"

#include <memory>

class IssueTables;
namespace Ui
{
class frmIssueList;
}

class frmIssueList : public HitListWindow
{
    Q_OBJECT
public:
    explicit frmIssueList(QWidget *parent = nullptr);
    ~frmIssueList() override;

    // Which texts are searched; before Init. Without any of them it is the short description.
    void setSearchWhat(bool shortDesc, bool desc, bool resolution);
    // SearchType is one of WordSearch; nPSID below 1 means all products and services.
    void Init(const QString &sSearchStr, qint32 SearchType, qint32 nPSID);
    void LoadData();

protected:
    void reload() override { LoadData(); }
    void openRecord(qint32 rowid) override;

private:
    void setUpList();
    QString LoadIssues(IssueTables &tables);
    void AddLvItem(IssueTables &tables, const IssueHit &hit);
    void tellUnreadable() const;

    std::unique_ptr<Ui::frmIssueList> ui;
    IssueQuery m_query;
    qint32 m_unreadable = 0;
};
