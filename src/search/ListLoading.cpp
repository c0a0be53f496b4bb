#include "search/ListLoading.h"

#include "common/base/AppInfo.h"
#include "common/base/Host.h"

ListLoading::ListLoading(const QString &message)
{
    if (!message.isEmpty())
        clsSystem::WaitDlgShow(m_wait, app::title(), message, false, true);
    host().pumpEvents();
}

ListLoading::~ListLoading()
{
    clsSystem::WaitDlgRemove(m_wait);
}

bool ListLoading::goOn()
{
    clsSystem::IncL(m_count);
    if (m_count % 100 == 0)
        host().pumpEvents();
    return !(m_wait && m_wait->cancelled());
}
