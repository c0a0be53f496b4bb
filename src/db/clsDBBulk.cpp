// Made-up issues for trials of how a database behaves when it is very large.
#include "db/clsDB.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Host.h"
#include "db/SoleUse.h"
#include "db/volume/RowAdder.h"

#include <QCoreApplication>

#include <string>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(clsDBBulk)
};

constexpr qint32 Issues = 1000000;
constexpr qint32 RowsBetweenLooks = 10000;
constexpr qint32 FirstProduct = 1001;
constexpr qint32 LastProduct = 1999;
constexpr qint32 LastCustomer = 130000;
constexpr qint32 EvenStatus = 400;
constexpr qint32 OddStatus = 401;

// The numbers first to last over and over again, from the issue numbered 1 on.
qint32 inTurn(qint32 number, qint32 first, qint32 last)
{
    return first + (number - 1) % (last - first + 1);
}

bool addIssue(volume::RowAdder &rows, qint32 number)
{
    const std::string name = std::to_string(number) + " : issue ";
    rows.begin(number);
    rows.number("psid", inTurn(number, FirstProduct, LastProduct));
    rows.number("custid", inTurn(number, 1, LastCustomer));
    rows.text("shortdesc", name + "short desc");
    rows.memo("desc", name + "memo description");
    rows.number("status", number % 2 == 0 ? EvenStatus : OddStatus);
    return rows.store();
}

} // namespace

void clsDB::AddBulkIssues()
{
    guarded("clsDB_AddBulkIssues", [this] {
        if (!MayWrite())
            return;
        const SoleUse alone(m_hSession, SoleUse::Locks::NotNeeded);
        volume::RowAdder rows(*this, schema::Table::Issues);
        if (!rows)
            return;
        WaitDlg progress;
        clsSystem::WaitDlgShow(progress, Words::tr("Adding issues"), Words::tr("Please wait..."),
                               true, true);
        for (qint32 number = 1; number <= Issues && addIssue(rows, number); ++number) {
            if (number % RowsBetweenLooks != 0)
                continue;
            clsSystem::WaitDlgUpdate(progress, number / (Issues / 100));
            host().pumpEvents();
            if (progress->cancelled())
                break;
        }
        clsSystem::WaitDlgRemove(progress);
    });
}
