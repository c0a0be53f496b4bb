#include "shell/frmWelcome.h"

#include "common/base/AppInfo.h"
#include "common/base/clsSystem.h"
#include "common/base/HelpTopics.h"
#include "common/base/Preferences.h"
#include "common/ui/Icons.h"
#include "db/clsDB.h"
#include "ui_frmWelcome.h"

#include <QLabel>

#include <chrono>

namespace
{

const QString startPreference = QStringLiteral("WelcomeShowAtStartup"); // 1 keeps it away

} // namespace

bool welcomeWantedAtStartup()
{
    return GetPrefLong(startPreference) != 1;
}

frmWelcome::frmWelcome(const QList<WelcomeLink> &links, QWidget *parent)
    : FormWindow(parent), ui(std::make_unique<Ui::frmWelcome>())
{
    ui->setupUi(this);
    setTagText(QStringLiteral("MAIN_HELP"));
    setHelpTopic(help::MainWindow);
    ui->imgIcon->setPixmap(applicationIcon().pixmap(QSize(48, 48)));
    QFont heading = ui->lblTitle->font();
    heading.setPointSizeF(heading.pointSizeF() * 1.6);
    heading.setWeight(QFont::DemiBold);
    ui->lblTitle->setFont(heading);
    fillTexts();
    addLinks(links);
    ui->ckDontShowAtStartup->setChecked(!welcomeWantedAtStartup());
    connect(ui->CancelButton, &QPushButton::clicked, this, &QWidget::close);
    using namespace std::chrono_literals;
    m_timer.setInterval(45s);
    connect(&m_timer, &QTimer::timeout, this,
            [this] { ui->lblNow->setText(gSys.CurrDateTimeLong()); });
    m_timer.start();
}

frmWelcome::~frmWelcome() = default;

void frmWelcome::fillTexts()
{
    ui->lblTitle->setText(tr("Welcome to %1").arg(app::title()));
    ui->lblLogin->setText(tr("You are logged in as '%1' from machine '%2'")
                              .arg(gDB.LoginName(), gSys.GetLocalComputerName()));
    ui->lblDatabase->setText(
        tr("You are accessing %1 database located at: %2").arg(app::title(), gDB.DBPath()));
    ui->lblLogin->setVisible(gDB.IsOpen());
    ui->lblDatabase->setVisible(gDB.IsOpen());
    ui->lblVersion->setText(tr("Application Version: %1.%2 Rev. %3")
                                .arg(app::versionMajor())
                                .arg(app::versionMinor())
                                .arg(app::versionRevision()));
    ui->lblNow->setText(gSys.CurrDateTimeLong());
}

// Two columns, filled downwards; a link can be reached with Tab and followed with Enter.
void frmWelcome::addLinks(const QList<WelcomeLink> &links)
{
    const int rows = static_cast<int>((links.size() + 1) / 2);
    for (int at = 0; at < links.size(); ++at) {
        const WelcomeLink &link = links[at];
        auto *picture = new QLabel(this);
        picture->setPixmap(icon(link.icon).pixmap(QSize(24, 24)));
        auto *label = new QLabel(QLatin1String("<a href=\"#\">") + link.text.toHtmlEscaped() +
                                     QLatin1String("</a>"),
                                 this);
        label->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
        label->setFocusPolicy(Qt::StrongFocus);
        label->setAccessibleName(link.text);
        label->setEnabled(!link.needsDatabase || gDB.IsOpen());
        connect(label, &QLabel::linkActivated, this, [open = link.open] { open(); });
        const int column = at / rows * 3;
        ui->layLinks->addWidget(picture, at % rows, column);
        ui->layLinks->addWidget(label, at % rows, column + 1);
    }
    ui->layLinks->setColumnMinimumWidth(2, fontMetrics().averageCharWidth() * 4);
    ui->layLinks->setColumnStretch(5, 1);
}

void frmWelcome::closeEvent(QCloseEvent *event)
{
    SetPrefLong(startPreference, ui->ckDontShowAtStartup->isChecked() ? 1 : 0);
    FormWindow::closeEvent(event);
}
