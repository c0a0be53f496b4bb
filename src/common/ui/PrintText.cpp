// Texts on paper.
#include "common/base/Failure.h"
#include "common/base/Hourglass.h"
#include "common/ui/PrintDoor.h"
#include "common/ui/Printing.h"
#include "common/ui/PrintPages.h"
#include "common/ui/PrintProgress.h"

#include <QAbstractTextDocumentLayout>
#include <QPlainTextEdit>
#include <QTextDocument>

namespace
{

constexpr int kMargin = 1000;
constexpr int kTabCharacters = 8;

// The text, broken into pages of that size in twips.
std::unique_ptr<QTextDocument> paginated(const QString &text, const PrintFont &font, QSizeF page)
{
    auto document = std::make_unique<QTextDocument>();
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTabStopDistance(kTabCharacters * font.width(QStringLiteral(" ")));
    document->setDefaultTextOption(option);
    document->setDefaultFont(font.font());
    document->setDocumentMargin(0);
    document->setPlainText(text);
    document->setPageSize(page);
    return document;
}

void drawPage(QPainter &painter, const QTextDocument &document, int page, QPointF corner)
{
    const QSizeF size = document.pageSize();
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, Qt::black); // on paper, whatever the screen has
    const QRectF part(QPointF(0, page * size.height()), size);
    context.clip = part.adjusted(0, 1, 0, -1); // without the lines that only touch the page
    painter.save();
    painter.translate(corner - part.topLeft());
    painter.setClipRect(part);
    document.documentLayout()->draw(&painter, context);
    painter.restore();
}

} // namespace

bool RTBPrint(const QPlainTextEdit &box, QPagedPaintDevice &device, int left, int top, int right,
              int bottom, const QString &header)
{
    return guarded("clsSystem_RTBPrint", false, [&] {
        const Hourglass hourglass;
        PrintPages pages(device);
        const PrintFont font(box.font());
        const QSizeF room(std::max<qreal>(pages.width() - left - right, 1),
                          std::max(pages.height() - top - bottom, font.lineHeight()));
        const auto document = paginated(box.toPlainText(), font, room);
        const int count = document->pageCount();
        PrintProgress progress(count);
        for (int page = 0; page < count; ++page) {
            if (!progress.begins(page + 1)) {
                pages.abandon();
                return false;
            }
            if (page > 0)
                pages.newPage();
            if (!header.isEmpty())
                pages.text(left, top / 4.0, font, font.fitted(header, room.width()));
            drawPage(pages.painter(), *document, page, QPointF(left, top));
        }
        return true;
    });
}

void RTBPrint_GetPrinter(const QPlainTextEdit &box, const QString &header)
{
    printing::preview({.name = header, .draw = [&box, header](QPagedPaintDevice &device) {
                           return RTBPrint(box, device, kMargin, kMargin, kMargin, kMargin, header);
                       }});
}
