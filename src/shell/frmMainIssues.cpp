// What opens lists of issues: those found by words, and a person's own.
#include "shell/frmMain.h"

#include "common/ui/FormWindow.h"
#include "search/frmIssueList.h"
#include "search/frmMyIssues.h"
#include "search/frmSearchIssues.h"

void frmMain::SearchIssues()
{
    frmSearchIssues search(this);
    if (search.exec() != QDialog::Accepted)
        return;
    const IssueQuery &query = search.query();
    auto list = std::make_unique<frmIssueList>();
    list->setSearchWhat(query.inShortDesc, query.inDesc, query.inResolution);
    list->Init(query.text, query.type, query.psid);
    showChild(list.release());
}

void frmMain::MyIssues()
{
    if (IsFormLoaded(frmMyIssues::Tag)) {
        BringFormToTop(frmMyIssues::Tag);
        return;
    }
    auto list = std::make_unique<frmMyIssues>();
    list->Init();
    showChild(list.release());
}
