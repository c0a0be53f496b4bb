#include "common/ui/frmCalendar.h"

#include "common/base/clsSystem.h"
#include "common/base/Host.h"
#include "ui_frmCalendar.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QTextCharFormat>

frmCalendar::frmCalendar(QWidget *parent) : QDialog(parent), ui(std::make_unique<Ui::frmCalendar>())
{
    ui->setupUi(this);
    ui->cal->setLocale(host().locale());
    ui->cal->setFirstDayOfWeek(host().locale().firstDayOfWeek());
    // The red that weekends come with is hard to read on a dark palette.
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday})
        ui->cal->setWeekdayTextFormat(day, QTextCharFormat());
    ui->buttonBox->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OKButton"));
    ui->buttonBox->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    connect(ui->cal, &QCalendarWidget::selectionChanged, this, &frmCalendar::showLongDate);
    connect(ui->cal, &QCalendarWidget::activated, this, &frmCalendar::accept);
    connect(ui->cmdToday, &QPushButton::clicked, this, &frmCalendar::goToToday);
    installEventFilter(this);
    for (QWidget *control : findChildren<QWidget *>())
        control->installEventFilter(this);
}

frmCalendar::~frmCalendar() = default;

void frmCalendar::Init(const QString &date, const QString &okText)
{
    ui->buttonBox->button(QDialogButtonBox::Ok)->setText(okText);
    if (clsSystem::IsDate(date))
        ui->cal->setSelectedDate(clsSystem::Str2Date(date));
    else
        goToToday();
    showLongDate();
    ui->cal->setFocus();
}

void frmCalendar::goToToday()
{
    ui->cal->setSelectedDate(host().now().date());
    ui->cal->showSelectedDate();
}

void frmCalendar::showLongDate()
{
    ui->lblDate->setText(clsSystem::FormatDate(ui->cal->selectedDate(), clsSystem::FmtLongDate()));
}

void frmCalendar::accept()
{
    m_picked = clsSystem::FormatDate(ui->cal->selectedDate(), clsSystem::FmtShortDate());
    QDialog::accept();
}

bool frmCalendar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<const QKeyEvent *>(event);
        m_keyPressed = m_keyPressed || !key->isAutoRepeat();
        if (!m_keyPressed)
            return true;
    }
    return QDialog::eventFilter(watched, event);
}
