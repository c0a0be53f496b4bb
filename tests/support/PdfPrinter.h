// A printer of the test's own: every print command goes past the preview and the dialogs straight
// into a PDF file, which can be read back.
#pragma once

#include "common/ui/PrintDoor.h"

#include <QStringList>
#include <QTemporaryDir>

// The text of each page as it is laid out.
QStringList pdfPages(const QString &path);

class PdfPrinter
{
public:
    PdfPrinter();
    ~PdfPrinter();
    PdfPrinter(const PdfPrinter &) = delete;
    PdfPrinter &operator=(const PdfPrinter &) = delete;

    void setCancels(bool cancels) { m_cancels = cancels; } // the print dialog
    // How lists are wanted; when nothing was said: as proposed, upright, all of it.
    void setOptions(const printing::ListOptions &options) { m_options = options; }
    const QStringList &titles() const { return m_titles; } // of the documents, in order
    QString path() const { return m_folder.filePath("printed.pdf"); }
    QStringList pages() const { return pdfPages(path()); } // of the last one

private:
    QTemporaryDir m_folder;
    printing::Backend m_before;
    QStringList m_titles;
    bool m_cancels = false;
    std::optional<printing::ListOptions> m_options;
};
