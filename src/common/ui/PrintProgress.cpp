#include "common/ui/PrintProgress.h"

#include "common/ui/BusyWindow.h"

#include <QCoreApplication>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(PrintProgress)
};

constexpr int kLongDocument = 100; // pages; fewer are there at once
constexpr int kPagesAStep = 10;

} // namespace

bool PrintProgress::begins(int page)
{
    if (m_pages < kLongDocument || page % kPagesAStep != 1)
        return true;
    if (!m_wait)
        clsSystem::WaitDlgShow(m_wait, Words::tr("Print"),
                               Words::tr("Preparing pages. Please wait..."), true, true);
    m_wait->setMessage(Words::tr("Preparing page %1 of %2. Please wait...").arg(page).arg(m_pages));
    return WaitDlgGoesOn(m_wait, static_cast<int>(100LL * (page - 1) / m_pages));
}
