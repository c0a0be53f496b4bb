#include "common/ui/frmMessage.h"

#include "ui_frmMessage.h"

#include "common/base/AppInfo.h"
#include "common/base/clsSystem.h"
#include "common/ui/Controls.h"
#include "common/ui/FixedFont.h"
#include "common/ui/frmFind.h"
#include "common/ui/Icons.h"
#include "common/ui/Printing.h"
#include "common/ui/TextSaving.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLayout>
#include <QScreen>
#include <QStyle>

frmMessage::frmMessage(QWidget *parent) : QDialog(parent), ui(std::make_unique<Ui::frmMessage>())
{
    ui->setupUi(this);
    setWindowTitle(app::title());
    ui->txtMsg->setFont(fixedPitchFont());
    ui->cmdCopy->setIcon(icon(QStringLiteral("copy")));

    const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    const qreal ratio = devicePixelRatioF();
    const auto paint = [size, ratio](QLabel *label, const QString &name) {
        label->setPixmap(icon(name).pixmap(QSize(size, size), ratio));
    };
    paint(ui->ImageInfo, QStringLiteral("info"));
    paint(ui->imgWarn, QStringLiteral("warning"));
    paint(ui->imageCritical, QStringLiteral("critical"));
    paint(ui->imgLocked, QStringLiteral("locked"));

    ui->cmdPrint->setIcon(icon(QStringLiteral("print")));
    ui->cmdSaveAs->setIcon(icon(QStringLiteral("save")));
    ui->cmdEmail->setIcon(icon(QStringLiteral("email")));
    connect(ui->cmdPrint, &QPushButton::clicked, this,
            [this] { RTBPrint_GetPrinter(*ui->txtMsg, windowTitle()); });
    connect(ui->cmdSaveAs, &QPushButton::clicked, this,
            [this] { SaveRTB_GetFileName(*ui->txtMsg); });
    connect(ui->cmdEmail, &QPushButton::clicked, this,
            [this] { clsSystem::EmailMsg(ui->txtMsg->toPlainText()); });
    shortcutFor(this, QKeySequence::Print, ui->cmdPrint);
    shortcutFor(this, QKeySequence::Save, ui->cmdSaveAs);
    installFind(this, ui->txtMsg);
    connect(ui->cmdClose, &QPushButton::clicked, this, &QDialog::accept);
    connect(ui->cmdCopy, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(ui->txtMsg->toPlainText()); });
}

frmMessage::~frmMessage() = default;

void frmMessage::Init(const QString &text, prompts::Kind kind, int helpContext)
{
    showPicture(kind);
    ui->txtMsg->setPlainText(text);
    setProperty("helpTopic", helpContext > 0 ? helpContext : QVariant());

    const QSize textSize =
        fixedPitchSize(this, ui->txtMsg->toPlainText(), QSize(48, 6), QSize(100, 28));
    ui->txtMsg->setFixedSize(textSize); // its own wish would leave a short text in a large window
    const QSize wanted = sizeHint();
    ui->txtMsg->setMinimumSize(0, 0);
    ui->txtMsg->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    layout()->activate();
    resize(wanted.boundedTo(screen()->availableSize()));
}

void frmMessage::showPicture(prompts::Kind kind)
{
    ui->ImageInfo->setVisible(kind == prompts::Kind::Information ||
                              kind == prompts::Kind::Question);
    ui->imgWarn->setVisible(kind == prompts::Kind::Warning);
    ui->imageCritical->setVisible(kind == prompts::Kind::Critical);
    ui->imgLocked->setVisible(kind == prompts::Kind::Locked);
}
