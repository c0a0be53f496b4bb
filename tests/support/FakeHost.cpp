#include "support/FakeHost.h"

FakeHost::FakeHost()
    : m_before(host()),
      m_now(QDate(2004, 3, 14), QTime(15, 5, 9)),
      m_computerName(QStringLiteral("STATION1")),
      m_locale(QLocale::English, QLocale::UnitedStates)
{
    Host &fake = host();
    fake.now = [this] { return m_now; };
    fake.ticks = [this] { return m_now.toMSecsSinceEpoch(); };
    fake.computerName = [this] { return m_computerName; };
    fake.locale = [this] { return m_locale; };
    fake.setBusy = [this](bool busy) { m_busy = busy; };
    fake.open = [this](const QString &item) {
        m_opened += item;
        return m_accepts;
    };
    fake.launch = [this](const QString &program, const QStringList &arguments) {
        m_launched.push_back({program, arguments});
        return m_accepts;
    };
    fake.handOver = [this](const QString &program, const QStringList &arguments, int) {
        m_launched.push_back({program, arguments});
        return m_accepts;
    };
}

FakeHost::~FakeHost()
{
    host() = m_before;
}
