// The issues assigned to one person, of one status or of all: a work list that may refresh itself
// at the five-minute marks of the clock. One at most is open.
#pragma once

#include "db/clsDB.h"
#include "db/search/IssueSearch.h"
#include "search/HitListWindow.h"

#include <QTimer>

#include <memory>

class IssueTables;
namespace Ui
{
class frmMyIssues;
}

class frmMyIssues : public HitListWindow
{
    Q_OBJECT
public:
    inline static const QString Tag = QStringLiteral("MYISSUES");

    explicit frmMyIssues(QWidget *parent = nullptr);
    ~frmMyIssues() override;

    // Begins with the issues of whoever is logged in, and the filter of last time.
    void Init();
    // An automatic refresh shows no dialog and leaves the list where it was scrolled to.
    void LoadData(bool bAutoRefresh);
    void SetUI() override;

protected:
    void reload() override { LoadData(false); }
    void openRecord(qint32 rowid) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void setUpList();
    void loadFilters();
    void filterChanged();
    void setAutoRefresh(bool on);
    void tick();
    QString LoadIssues(IssueTables &tables, bool bAutoRefresh);
    void AddLvItem(IssueTables &tables, const IssueHit &hit);

    std::unique_ptr<Ui::frmMyIssues> ui;
    QTimer m_tmRefresh;
    bool m_bAutoRefresh = false;
    // From an automatic refresh that could not read the tables on: the next ones are silent.
    std::unique_ptr<clsDB::TellOnce> m_toldOnce;
};
