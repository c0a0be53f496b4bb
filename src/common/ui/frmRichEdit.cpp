#include "common/ui/frmRichEdit.h"

#include "ui_frmRichEdit.h"

#include "common/ui/FixedFont.h"
#include "common/ui/Icons.h"

frmRichEdit::frmRichEdit(QWidget *parent)
    : FormWindow(parent), ui(std::make_unique<Ui::frmRichEdit>())
{
    ui->setupUi(this);
    setWindowIcon(icon(QStringLiteral("preview")));
    ui->cmdCopyToClipboard->setIcon(icon(QStringLiteral("copy")));
    connect(ui->cmdCopyToClipboard, &QPushButton::clicked, this, [this] {
        ui->txtRichEdit->selectAll();
        ui->txtRichEdit->copy();
    });
    connect(ui->CancelButton, &QPushButton::clicked, this, &QWidget::close);
}

frmRichEdit::~frmRichEdit() = default;

void frmRichEdit::Init(const QString &title, const QString &text)
{
    ui->txtRichEdit->clear();
    setWindowTitle(title);
    ui->txtRichEdit->setPlainText(text);
    ui->txtRichEdit->setFont(fixedPitchFont());
    ui->txtRichEdit->document()->setDocumentMargin(fontMetrics().averageCharWidth());
    ui->txtRichEdit->moveCursor(QTextCursor::Start);
    resize(sizeHint());
}

QSize frmRichEdit::sizeHint() const
{
    const QSize textSize =
        fixedPitchSize(this, ui->txtRichEdit->toPlainText(), QSize(60, 12), QSize(90, 32));
    return textSize + QSize(0, ui->BtnBar->sizeHint().height());
}
