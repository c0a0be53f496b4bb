// Shown while a long document is laid out: how far it is, and Cancel.
#pragma once

#include "common/base/clsSystem.h"

class PrintProgress
{
public:
    explicit PrintProgress(int pages) : m_pages(pages) {}

    // Before each page, from 1: false when the person has cancelled.
    bool begins(int page);

private:
    int m_pages;
    WaitDlg m_wait;
};
