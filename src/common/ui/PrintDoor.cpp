#include "common/ui/PrintDoor.h"

#include "common/base/AppInfo.h"
#include "common/base/clsSystem.h"
#include "common/base/WholeFile.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QPagedPaintDevice>
#include <QPdfWriter>
#include <QRegularExpression>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(PrintDoor)
};

constexpr qsizetype kLongestName = 80;
constexpr int kPdfResolution = 1200; // dots to the inch

} // namespace

printing::Backend &printing::backend()
{
    // Without a graphical layer there is nobody to choose a printer.
    static Backend instance{[](const Document &) {},
                            [](const Document &) { return std::optional<Choice>(); },
                            [](const ListRequest &) { return std::optional<ListOptions>(); }};
    return instance;
}

std::optional<printing::ListOptions> printing::listOptions(const ListRequest &request)
{
    return backend().options(request);
}

void printing::preview(const Document &document)
{
    backend().preview(document);
}

std::optional<printing::Choice> printing::SetPrinter(const Document &document)
{
    return backend().dialog(document);
}

bool printing::print(const Document &document)
{
    const std::optional<Choice> choice = SetPrinter(document);
    if (!choice)
        return false;
    if (!choice->pdfFile.isEmpty())
        return writePdf(document, choice->printer->pageLayout(), choice->pdfFile);
    for (int copy = 0; copy < choice->copies; ++copy)
        if (!document.draw(*choice->printer))
            return false;
    return choice->copies > 0;
}

QString printing::fileName(const Document &document)
{
    static const QRegularExpression forbidden(QStringLiteral("[\\\\/:*?\"<>|\\x00-\\x1f]"));
    const QString name =
        QString(document.name).replace(forbidden, QStringLiteral(" ")).simplified();
    return name.isEmpty() ? app::title() : name.left(kLongestName);
}

QString printing::askForPdfFile(const Document &document)
{
    return gSys.GetSaveFileName(Words::tr("Save As"), Words::tr("PDF File (*.pdf)|*.pdf"),
                                fileName(document) + QLatin1String(".pdf"), QStringLiteral("pdf"));
}

bool printing::writePdf(const Document &document, const QPageLayout &page, const QString &path)
{
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    bool drawn = false;
    {
        QPdfWriter writer(&file);
        writer.setTitle(document.name);
        writer.setCreator(app::title());
        writer.setResolution(kPdfResolution);
        writer.setPageSize(page.pageSize());
        writer.setPageOrientation(page.orientation());
        drawn = document.draw(writer);
    }
    return drawn && writeWhole(path, file.data());
}
