#include "common/ui/HelpText.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>

namespace
{

QStringList anchorsIn(const QTextBlock &block)
{
    QStringList anchors;
    for (auto part = block.begin(); !part.atEnd(); ++part)
        anchors.append(part.fragment().charFormat().anchorNames());
    return anchors;
}

} // namespace

QList<HelpHeading> helpHeadings(const QTextDocument &document)
{
    QList<HelpHeading> headings;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level >= 1 && level <= 3)
            headings.append({level, block.text(), anchorsIn(block).value(0), block.position()});
    }
    return headings;
}

int findAnchor(const QTextDocument &document, const QString &anchor)
{
    if (anchor.isEmpty())
        return -1;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (anchorsIn(block).contains(anchor))
            return block.position();
    }
    return -1;
}

QString chapterHtml(QTextDocument &document, const QString &anchor)
{
    const int start = findAnchor(document, anchor);
    if (start < 0)
        return {};
    const int level = document.findBlock(start).blockFormat().headingLevel();
    int end = document.characterCount() - 1;
    for (const HelpHeading &heading : helpHeadings(document)) {
        if (heading.position > start && heading.level <= level) {
            end = heading.position - 1;
            break;
        }
    }
    QTextCursor chapter(&document);
    chapter.setPosition(start);
    chapter.setPosition(end, QTextCursor::KeepAnchor);
    return chapter.selection().toHtml();
}
