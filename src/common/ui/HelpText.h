// What a help window asks of the manual's text: its headings and its anchors.
#pragma once

#include <QList>
#include <QString>

class QTextDocument;

struct HelpHeading {
    int level = 1;
    QString text;
    QString anchor; // empty when the heading has none
    int position = 0;
};

// Headings of levels 1 to 3 in the order of the text.
QList<HelpHeading> helpHeadings(const QTextDocument &document);
// Position of the anchor in characters; -1 when the text has none of that name.
int findAnchor(const QTextDocument &document, const QString &anchor);
// The chapter that begins at the heading with that anchor, up to the next heading of its level or
// a higher one, as HTML; empty when there is none.
QString chapterHtml(QTextDocument &document, const QString &anchor);
