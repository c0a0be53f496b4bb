#include "common/ui/frmMessage.h"

#include "ui_frmMessage.h"

#include "common/base/AppInfo.h"
#include "common/ui/FixedFont.h"
#include "common/ui/Icons.h"

#include <QClipboard>
#include <QGuiApplication>
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
    ui->txtMsg->setMinimumSize(0, 0);

    const QSize textSize =
        fixedPitchSize(this, ui->txtMsg->toPlainText(), QSize(48, 6), QSize(100, 28));
    const QSize around = sizeHint() - ui->txtMsg->sizeHint();
    resize(textSize + around.expandedTo(QSize(0, 0)));
}

void frmMessage::showPicture(prompts::Kind kind)
{
    ui->ImageInfo->setVisible(kind == prompts::Kind::Information ||
                              kind == prompts::Kind::Question);
    ui->imgWarn->setVisible(kind == prompts::Kind::Warning);
    ui->imageCritical->setVisible(kind == prompts::Kind::Critical);
    ui->imgLocked->setVisible(kind == prompts::Kind::Locked);
}
