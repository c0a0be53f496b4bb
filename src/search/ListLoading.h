// The wait dialog of a load, with a Cancel that lives: every hundredth row lets window events
// through.
#pragma once

#include "common/base/clsSystem.h"

class ListLoading
{
public:
    // Without a message there is no dialog, and nothing to cancel.
    explicit ListLoading(const QString &message);
    ~ListLoading();
    ListLoading(const ListLoading &) = delete;
    ListLoading &operator=(const ListLoading &) = delete;

    // Once for each row looked at; false when the person has pressed Cancel.
    bool goOn();

private:
    WaitDlg m_wait;
    qint32 m_count = 0;
};
