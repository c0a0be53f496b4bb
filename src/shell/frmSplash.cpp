#include "shell/frmSplash.h"

#include "common/base/AppInfo.h"
#include "common/base/clsSystem.h"
#include "common/ui/Icons.h"
#include "ui_frmSplash.h"

#include <QMouseEvent>

frmSplash::frmSplash(QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), ui(std::make_unique<Ui::frmSplash>())
{
    ui->setupUi(this);
    // The program must not end with the splash, before the main window shows.
    setAttribute(Qt::WA_QuitOnClose, false);
    ui->fraEdge->setBackgroundRole(QPalette::Base);
    fillLabels();
    m_timer.setTimerType(Qt::PreciseTimer); // a coarse one may be early
    m_timer.setInterval(minimumTime);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        if (m_bSmartUnload)
            m_bTimePassed = true;
    });
    m_timer.start();
}

frmSplash::~frmSplash() = default;

void frmSplash::fillLabels()
{
    setWindowTitle(tr("About %1").arg(app::title()));
    ui->imgIcon->setPixmap(applicationIcon().pixmap(QSize(96, 96)));
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 2.4);
    large.setWeight(QFont::DemiBold);
    ui->lblTitle->setFont(large);
    ui->lblTitle->setText(app::title());
    ui->lblCompany->setText(app::company());
    ui->lblVersion->setText(tr("Multi-User version ") + QString::number(app::versionMajor()) +
                            u'.' + QString::number(app::versionMinor()) + tr("  Rev. ") +
                            QString::number(app::versionRevision()));
    ui->lblWebsite->setText(app::website());
    ui->lblWebsite->setForegroundRole(QPalette::Link);
    ui->lblWebsite->setCursor(Qt::PointingHandCursor);
}

void frmSplash::setSmartUnload(bool on)
{
    m_bSmartUnload = on;
    m_bTimePassed = false;
    ui->lblWebsite->setCursor(on ? Qt::ArrowCursor : Qt::PointingHandCursor);
    m_timer.start();
}

// Esc.
void frmSplash::reject()
{
    if (!m_bSmartUnload)
        QDialog::reject();
}

// The labels let the mouse through, so every click arrives here.
void frmSplash::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_bSmartUnload || !rect().contains(event->position().toPoint()))
        return;
    const bool onWebsite = childAt(event->position().toPoint()) == ui->lblWebsite;
    accept();
    if (onWebsite)
        gSys.GotoDVWebsite();
}
