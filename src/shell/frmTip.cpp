#include "shell/frmTip.h"

#include "common/base/AppInfo.h"
#include "common/base/HelpTopics.h"
#include "common/base/Host.h"
#include "common/base/Preferences.h"
#include "common/ui/Icons.h"
#include "ui_frmTip.h"

#include <QFile>
#include <QShortcut>
#include <QTextStream>

namespace
{

const QString startPreference = QStringLiteral("TipsShowAtStartup"); // 1 turns the tip off
const QString tipFile = QStringLiteral("TIPOFDAY.TXT");
constexpr qint64 longestFile = 1 << 20; // bytes; more is no file of tips

QStringList linesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QTextStream text(file.read(longestFile));
    QStringList lines;
    while (!text.atEnd())
        lines.append(text.readLine());
    return lines;
}

} // namespace

bool tipWantedAtStartup()
{
    return GetPrefLong(startPreference) != 1;
}

frmTip::frmTip(QWidget *parent)
    : FormWindow(parent),
      ui(std::make_unique<Ui::frmTip>()),
      m_random(static_cast<quint32>(host().now().toMSecsSinceEpoch()))
{
    ui->setupUi(this);
    setWindowFlags(Qt::Dialog | Qt::WindowCloseButtonHint);
    setHelpTopic(help::MainWindow);
    setTagText(QStringLiteral("TIPOFDAY"));
    ui->imgTip->setPixmap(icon(QStringLiteral("tip")).pixmap(QSize(48, 48)));
    QFont heading = ui->lblHeading->font();
    heading.setPointSizeF(heading.pointSizeF() * 1.3);
    heading.setBold(true);
    ui->lblHeading->setFont(heading);
    ui->chkLoadTipsAtStartup->setChecked(tipWantedAtStartup());
    connect(ui->chkLoadTipsAtStartup, &QCheckBox::toggled, this,
            [](bool wanted) { SetPrefLong(startPreference, wanted ? 0 : 1); });
    connect(ui->cmdNextTip, &QPushButton::clicked, this, &frmTip::showNextTip);
    connect(ui->cmdOK, &QPushButton::clicked, this, &QWidget::close);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    LoadTips(app::programFolder() + u'/' + tipFile);
}

frmTip::~frmTip() = default;

bool frmTip::LoadTips(const QString &file)
{
    m_tips = linesOf(file);
    ui->cmdNextTip->setEnabled(!m_tips.isEmpty());
    if (m_tips.isEmpty()) {
        ui->lblTipText->setText(tr("Create a text file named ") + tipFile +
                                tr(" using NotePad with 1 tip per line. ") +
                                tr("Then place it in the same directory as the application. "));
        return false;
    }
    showNextTip();
    return true;
}

// A repeat is allowed.
void frmTip::showNextTip()
{
    if (m_tips.isEmpty())
        return;
    m_current = m_random.bounded(static_cast<int>(m_tips.size()));
    DisplayCurrentTip();
}

void frmTip::DisplayCurrentTip()
{
    ui->lblTipText->setText(m_tips.value(m_current));
}
