#include "support/PdfPrinter.h"

#include <gtest/gtest.h>

#include <QPdfWriter>
#include <QProcess>

QStringList pdfPages(const QString &path)
{
    QProcess reader;
    reader.start("pdftotext", {"-layout", path, "-"});
    if (!reader.waitForFinished() || reader.exitCode() != 0) {
        ADD_FAILURE() << "pdftotext: " << reader.readAllStandardError().constData();
        return {};
    }
    QStringList pages = QString::fromUtf8(reader.readAllStandardOutput()).split(u'\f');
    pages.removeLast(); // behind the last page's end
    return pages;
}

PdfPrinter::PdfPrinter() : m_before(printing::backend())
{
    printing::backend().preview = [](const printing::Document &document) {
        printing::print(document);
    };
    printing::backend().options = [this](const printing::ListRequest &request) {
        return m_options.value_or(printing::ListOptions{.title = request.title});
    };
    printing::backend().dialog =
        [this](const printing::Document &document) -> std::optional<printing::Choice> {
        m_titles += document.name;
        if (m_cancels)
            return std::nullopt;
        auto device = std::make_shared<QPdfWriter>(path());
        device->setPageSize(QPageSize(QPageSize::A4));
        device->setPageOrientation(document.orientation);
        return printing::Choice{device, 1, path()};
    };
}

PdfPrinter::~PdfPrinter()
{
    printing::backend() = m_before;
}
