#include "common/ui/frmRichEdit.h"

#include "ui_frmRichEdit.h"

#include "common/ui/Controls.h"
#include "common/ui/FixedFont.h"
#include "common/ui/frmFind.h"
#include "common/ui/Icons.h"
#include "common/ui/Printing.h"
#include "common/ui/TextSaving.h"

frmRichEdit::frmRichEdit(QWidget *parent)
    : FormWindow(parent), ui(std::make_unique<Ui::frmRichEdit>())
{
    ui->setupUi(this);
    setWindowIcon(icon(QStringLiteral("preview")));
    ui->cmdCopyToClipboard->setIcon(icon(QStringLiteral("copy")));
    ui->cmdPrint->setIcon(icon(QStringLiteral("print")));
    ui->cmdSaveAs->setIcon(icon(QStringLiteral("save")));
    connect(ui->cmdPrint, &QPushButton::clicked, this,
            [this] { RTBPrint_GetPrinter(*ui->txtRichEdit, windowTitle()); });
    connect(ui->cmdSaveAs, &QPushButton::clicked, this,
            [this] { SaveRTB_GetFileName(*ui->txtRichEdit); });
    shortcutFor(this, QKeySequence::Print, ui->cmdPrint);
    shortcutFor(this, QKeySequence::Save, ui->cmdSaveAs);
    installFind(this, ui->txtRichEdit);
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
