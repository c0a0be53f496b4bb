// Door to the printer: the options of a list, the preview window and the print dialog. One
// replaceable backend stands behind them, as with prompts::; the real one is in GuiPrinting.cpp.
#pragma once

#include <QPageLayout>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class QPagedPaintDevice;

namespace printing
{

// What a print command wants on paper.
struct Document {
    QString name; // of the print job, and the name proposed for a PDF file
    std::function<bool(QPagedPaintDevice &)> draw; // one copy; false: refused or cancelled
    QPageLayout::Orientation orientation = QPageLayout::Portrait;
};

// What the print dialog gave.
struct Choice {
    std::shared_ptr<QPagedPaintDevice> printer;
    int copies = 1;
    QString pdfFile; // not empty: a file is wanted, with the page layout of `printer`
};

// A list that is to be printed, before the person was asked how.
struct ListRequest {
    QString title;            // proposed
    QString titleKey;         // of the setting that keeps a title given instead; empty: none does
    bool rowSelected = false; // so that it can be printed alone
};

// How it is to be printed.
struct ListOptions {
    QString title;
    QPageLayout::Orientation orientation = QPageLayout::Portrait;
    bool selectedOnly = false;
    bool dateStamp = false;
};

struct Backend {
    std::function<void(const Document &)> preview;
    std::function<std::optional<Choice>(const Document &)> dialog;
    std::function<std::optional<ListOptions>(const ListRequest &)> options;
};

Backend &backend();

// Asks how a list is to be printed (frmRptOption); nothing when cancelled.
std::optional<ListOptions> listOptions(const ListRequest &request);
// Shows the document; the preview offers to print it.
void preview(const Document &document);
// The print dialog, titled "Print"; nothing when cancelled.
std::optional<Choice> SetPrinter(const Document &document);
// Asks for the printer and gives it one document a copy. False when nothing was printed.
bool print(const Document &document);
// The name of the document as that of a file, without characters that a file name cannot have.
QString fileName(const Document &document);
QString askForPdfFile(const Document &document); // empty when cancelled
// One copy in a PDF file, whole or not at all. False when that failed, which is told.
bool writePdf(const Document &document, const QPageLayout &page, const QString &path);

} // namespace printing
