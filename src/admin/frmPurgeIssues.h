// The wizard that deletes old issues of one status for good: a word about backups, the criteria,
// and a look at every issue that will go. What it deletes is the list that was looked at. One at
// most is open.
#pragma once

#include "common/ui/FormWindow.h"

#include <memory>

class IssueSearch;
class TableUse;
struct IssueHit;
namespace Ui
{
class frmPurgeIssues;
}

class frmPurgeIssues : public FormWindow
{
    Q_OBJECT
public:
    inline static const QString Tag = QStringLiteral("PURGEISSUES");

    // The advice is what a person is told about backups.
    explicit frmPurgeIssues(const QString &backupAdvice = {}, QWidget *parent = nullptr);
    ~frmPurgeIssues() override;

    QSize sizeHint() const override;

private:
    enum Step { BackUp = 0, ChooseIssues = 1, LookAtIssues = 2 };

    void setUpList();
    void connectControls();
    void DisplayFrame();
    void goNext();
    void goBack();
    void pickDate();
    void openIssue();
    bool Validate();
    void LoadLV();
    void LoadIssues(const TableUse &issues);
    void AddLvItem(const IssueHit &hit);
    void PurgeIssues();
    void DeleteIssues();
    void SetUI();

    std::unique_ptr<Ui::frmPurgeIssues> ui;
    int m_step = BackUp;
    bool m_done = false; // issues were deleted: there is nothing left but to close
};
