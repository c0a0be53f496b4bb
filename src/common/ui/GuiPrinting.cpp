#include "common/ui/GuiPrinting.h"

#include "common/base/AppInfo.h"
#include "common/base/Prompts.h"
#include "common/ui/frmPreview.h"
#include "common/ui/frmRptOption.h"
#include "common/ui/GuiDialogs.h"

#include <QCoreApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(GuiPrinting)
};

// The toolkit's own dialog, shown where the desktop has none, offers a PDF file beside the
// printers.
#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
constexpr bool dialogOffersPdf = false;
#else
constexpr bool dialogOffersPdf = true;
#endif

std::optional<printing::Choice> pdfInstead(const printing::Document &document,
                                           std::shared_ptr<QPrinter> printer)
{
    const QString question = QStringLiteral(
        "No printer is installed on this computer. Do you want to save a PDF file instead?");
    if (prompts::ask(question) != prompts::Answer::Yes)
        return std::nullopt;
    const QString file = printing::askForPdfFile(document);
    if (file.isEmpty())
        return std::nullopt;
    return printing::Choice{std::move(printer), 1, file};
}

} // namespace

void guiprinting::preview(const printing::Document &document)
{
    const guidialogs::CursorPause pause;
    frmPreview window(document, guidialogs::windowInUse());
    window.exec();
}

std::optional<printing::Choice> guiprinting::dialog(const printing::Document &document)
{
    const guidialogs::CursorPause pause;
    auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    const QString name = printing::fileName(document);
    printer->setDocName(name);
    printer->setCreator(app::title());
    printer->setPageOrientation(document.orientation);
    if (!dialogOffersPdf && QPrinterInfo::availablePrinterNames().isEmpty())
        return pdfInstead(document, std::move(printer));

    // Without a printer it is a file from the start, so one is proposed.
    if (printer->outputFormat() == QPrinter::PdfFormat)
        printer->setOutputFileName(
            QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + u'/' + name +
            QLatin1String(".pdf"));

    QPrintDialog dialog(printer.get(), guidialogs::windowInUse());
    dialog.setWindowTitle(Words::tr("Print"));
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false); // documents print as a whole
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    printing::Choice choice{printer, std::max(1, printer->copyCount()), {}};
    printer->setCopyCount(1); // each copy is a document of its own
    if (printer->outputFormat() == QPrinter::PdfFormat)
        choice.pdfFile = printer->outputFileName();
    return choice;
}

std::optional<printing::ListOptions> guiprinting::options(const printing::ListRequest &request)
{
    const guidialogs::CursorPause pause;
    frmRptOption form(guidialogs::windowInUse());
    form.setTitle(request.title);
    form.setRowSelected(request.rowSelected);
    form.RestoreRptTitle(request.titleKey);
    form.exec();
    if (!form.m_bOK)
        return std::nullopt;
    return form.options();
}
