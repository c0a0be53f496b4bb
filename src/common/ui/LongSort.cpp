#include "common/ui/LongSort.h"

#include "common/base/AppInfo.h"
#include "common/base/Host.h"

#include <QCoreApplication>
#include <QWidget>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(LongSort)
};

constexpr int LongList = 50000;      // rows; shorter ones are sorted at once
constexpr qint64 BetweenEvents = 40; // milliseconds

} // namespace

LongSort::LongSort(QWidget *list, int rows) : m_list(list), m_long(rows > LongList) {}

LongSort::~LongSort()
{
    clsSystem::WaitDlgRemove(m_wait);
}

bool LongSort::goOn()
{
    if (!m_long)
        return true;
    if (!m_wait) {
        m_busy.emplace(m_list->window());
        clsSystem::WaitDlgShow(m_wait, app::title(), Words::tr("Sorting the list. Please wait..."),
                               false, true);
    }
    if (!m_time.isValid() || m_time.elapsed() >= BetweenEvents) {
        host().pumpEvents();
        m_time.start();
    }
    return !m_wait->cancelled();
}
