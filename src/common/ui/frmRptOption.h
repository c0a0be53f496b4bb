// How a list is to be printed. The answers, but for the title, are kept as settings of this user
// on this machine; a title only under a name that the caller gives.
#pragma once

#include "common/ui/PrintDoor.h"

#include <QDialog>

#include <memory>

namespace Ui
{
class frmRptOption;
}

class frmRptOption : public QDialog
{
    Q_OBJECT
public:
    explicit frmRptOption(QWidget *parent = nullptr);
    ~frmRptOption() override;

    // The title proposed; to be called before RestoreRptTitle.
    void setTitle(const QString &title);
    // Without a selected row there is only the entire view to print.
    void setRowSelected(bool selected);
    // Shows the title kept under that name, when there is one. OK keeps what is there then, unless
    // it is the title proposed, which may tell the time or what was searched for.
    void RestoreRptTitle(const QString &sTitleKey);
    void SetPageOrientation(int eOrientation); // 1: portrait, else landscape
    printing::ListOptions options() const;     // as they were when OK was pressed
    void accept() override;

    // What OK leaves.
    bool m_bOK = false;
    int m_nOrientation = 1; // 1 portrait, 2 landscape
    int m_nRowOnly = 0;     // 1 selected row only, 0 entire view
    int m_nDTStamp = 0;     // 1 with date and time
    QString m_sTitleKey;

private:
    void keepSettings() const;

    std::unique_ptr<Ui::frmRptOption> ui;
    QString m_proposed;
};
