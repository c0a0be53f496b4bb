#include "common/ui/frmPreview.h"

#include "ui_frmPreview.h"

#include "common/base/AppInfo.h"
#include "common/base/HelpTopics.h"
#include "common/ui/BusyWindow.h"
#include "common/ui/Controls.h"
#include "common/ui/Icons.h"

#include <QPrinter>
#include <QPrintPreviewWidget>
#include <QScreen>
#include <QTimer>

#include <utility>

frmPreview::frmPreview(printing::Document document, QWidget *parent)
    : QDialog(parent),
      m_document(std::move(document)),
      ui(std::make_unique<Ui::frmPreview>()),
      m_printer(std::make_unique<QPrinter>(QPrinter::HighResolution)),
      m_pages(new QPrintPreviewWidget(m_printer.get(), this))
{
    ui->setupUi(this);
    setProperty("helpTopic", help::Printing);
    setWindowTitle(m_document.name.isEmpty() ? tr("Print Preview")
                                             : tr("Print Preview - %1").arg(m_document.name));
    setWindowIcon(icon(QStringLiteral("preview")));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    m_printer->setPageOrientation(m_document.orientation);
    ui->ckLandscape->setChecked(m_document.orientation == QPageLayout::Landscape);
    m_pages->setAccessibleName(tr("Pages"));
    ui->layoutPages->addWidget(m_pages);
    // Events are let through while pages are drawn.
    m_document.draw = [this, draw = m_document.draw](QPagedPaintDevice &device) {
        const BusyWindow busy(this);
        return draw(device);
    };
    connectCommands();
    m_pages->fitToWidth();

    const QSize most = screen()->availableSize() * 4 / 5;
    const int character = fontMetrics().averageCharWidth();
    resize(QSize(130 * character, most.height()).boundedTo(most));
    ui->cmdPrint->setFocus();
}

frmPreview::~frmPreview() = default;

void frmPreview::connectCommands()
{
    const auto command = [this](QAbstractButton *button, const char *picture, const auto &action) {
        button->setIcon(icon(QLatin1String(picture)));
        connect(button, &QAbstractButton::clicked, this, action);
    };
    command(ui->cmdPrint, "print", [this] { printing::print(m_document); });
    command(ui->cmdSavePdf, "save", [this] { savePdf(); });
    command(ui->cmdPrevious, "previous", [this] { turn(-1); });
    command(ui->cmdNext, "next", [this] { turn(1); });
    command(ui->cmdZoomIn, "zoom-in", [this] { m_pages->zoomIn(); });
    command(ui->cmdZoomOut, "zoom-out", [this] { m_pages->zoomOut(); });
    command(ui->cmdFitWidth, "fit-width", [this] { m_pages->fitToWidth(); });
    command(ui->cmdFitPage, "fit-page", [this] { m_pages->fitInView(); });
    connect(ui->cmdClose, &QPushButton::clicked, this, &QDialog::reject);
    connect(ui->ckLandscape, &QCheckBox::toggled, this, [this](bool landscape) {
        m_document.orientation = landscape ? QPageLayout::Landscape : QPageLayout::Portrait;
        m_pages->setOrientation(m_document.orientation);
    });
    connect(m_pages, &QPrintPreviewWidget::paintRequested, this,
            [this](QPrinter *printer) { layOut(*printer); });
    connect(m_pages, &QPrintPreviewWidget::previewChanged, this, &frmPreview::showPageNumber);
    shortcutFor(this, QKeySequence::Print, ui->cmdPrint);
    shortcutFor(this, QKeySequence::Save, ui->cmdSavePdf);
    shortcutFor(this, QKeySequence::ZoomIn, ui->cmdZoomIn);
    shortcutFor(this, QKeySequence::ZoomOut, ui->cmdZoomOut);
}

// The pages come once the window stands, so that what takes long is shown over it.
void frmPreview::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    QTimer::singleShot(0, this, [this] {
        if (std::exchange(m_canBeSeen, true))
            return;
        m_pages->updatePreview();
    });
}

// Without its pages the window is of no use.
void frmPreview::layOut(QPrinter &printer)
{
    if (m_canBeSeen && !m_document.draw(printer))
        QMetaObject::invokeMethod(this, &QDialog::reject, Qt::QueuedConnection);
}

// The pages tell of a change by scrolling, but not of this one.
void frmPreview::turn(int pages)
{
    m_pages->setCurrentPage(m_pages->currentPage() + pages);
    showPageNumber();
}

void frmPreview::showPageNumber()
{
    const int page = m_pages->currentPage();
    const int pages = m_pages->pageCount();
    ui->lblPage->setText(pages == 0 ? QString() : tr("Page %1 of %2").arg(page).arg(pages));
    ui->cmdPrevious->setEnabled(page > 1);
    ui->cmdNext->setEnabled(page < pages);
}

void frmPreview::savePdf()
{
    const QString file = printing::askForPdfFile(m_document);
    if (!file.isEmpty())
        printing::writePdf(m_document, m_printer->pageLayout(), file);
}
