#include "common/form/StatisticCtl.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/ui/Controls.h"
#include "db/clsDB.h"
#include "ui_StatisticCtl.h"

#include <QEvent>

namespace
{

const QString AlwaysLocked = QStringLiteral("readonly");

} // namespace

StatisticCtl::StatisticCtl(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::StatisticCtl>())
{
    m_ui->setupUi(this);
    LockControls(this, true, AlwaysLocked);
    Clear();
}

StatisticCtl::~StatisticCtl() = default;

void StatisticCtl::Init(const QString &tablepath, const QString &tablename, qint32 rowid)
{
    guarded("StatisticCtl_Init", [&] {
        RecColl record(tablepath, tablename, rowid, QStringLiteral("_lastedit"));
        if (!gDB.ReadRecord(record))
            return;
        SetValue(gDB.GetUsername(record.number(QStringLiteral("lastmodby"))),
                 gSys.DBDateToDislayDate(record.text(QStringLiteral("lastmoddt")),
                                         clsSystem::FmtLongDate()),
                 gSys.DBTimeToDislayTime(record.text(QStringLiteral("lastmodtm"))));
    });
}

void StatisticCtl::SetValue(const QString &by, const QString &on, const QString &at)
{
    m_ui->txtModifiedBy->setText(by);
    m_ui->txtModifiedOn->setText(on);
    m_ui->txtModifiedAt->setText(at);
}

void StatisticCtl::Clear()
{
    SetValue({}, {}, {});
}

// The read-only colour is worked out from the palette, so it follows a change of it.
void StatisticCtl::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        LockControls(this, true, AlwaysLocked);
}

QString StatisticCtl::ModifiedBy() const
{
    return m_ui->txtModifiedBy->text();
}

QString StatisticCtl::ModifiedOn() const
{
    return m_ui->txtModifiedOn->text();
}

QString StatisticCtl::ModifiedAt() const
{
    return m_ui->txtModifiedAt->text();
}
