// The life of the program while a list is sorted: for a long one a wait dialog comes up, whose
// Cancel works, while the window of the list takes no other input.
#pragma once

#include "common/base/clsSystem.h"
#include "common/ui/BusyWindow.h"

#include <QElapsedTimer>

#include <optional>

class LongSort
{
public:
    LongSort(QWidget *list, int rows);
    ~LongSort();
    LongSort(const LongSort &) = delete;
    LongSort &operator=(const LongSort &) = delete;

    // To be asked again and again while it sorts; false when the person has pressed Cancel.
    bool goOn();

private:
    QWidget *m_list;
    bool m_long;
    QElapsedTimer m_time; // since events were let through
    std::optional<BusyWindow> m_busy;
    WaitDlg m_wait;
};
