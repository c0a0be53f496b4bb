// What goes on paper: lists and texts. Lengths are twips, 1440 to the inch, counted from the edge
// of what the printer can print on.
#pragma once

#include <QFont>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

class ListView;
class QPagedPaintDevice;
class QPlainTextEdit;

// The print command of a list: its options, a preview, from there the print dialog, then one
// document a copy. An empty list says so instead. A title that the person gives in place of this
// one is kept in the setting of that name and comes back the next time; without a name it is not.
void ListViewPrint_GetPrinter(const ListView &lv, const QString &title,
                              const QString &titleKey = {});
// One document, all columns side by side: the title and the headings on every page, one line a
// row, a page number below. An empty list prints nothing. False when the device refused or
// the person cancelled.
bool ListViewPrint(const ListView &lv, QPagedPaintDevice &device, int left, int top, int right,
                   int bottom, const QString &title);

// A table of texts as it goes on paper, whatever shows it on the screen.
struct PrintedTable {
    QStringList headings; // one a column
    QList<int> widths;    // of the columns in their proportions; 0: not printed
    int rows = 0;
    std::function<QString(int row, int column)> text; // both from 0
    QFont font;
};
// As ListViewPrint prints a list.
bool TablePrint(const PrintedTable &table, QPagedPaintDevice &device, int left, int top, int right,
                int bottom, const QString &title);

// The list as text in fixed-pitch columns, 80 characters in all, for mail and files.
QString LVContent(const ListView &lv);

// The same for a text, in the font of its box; the header, when there is one, stands at the head
// of every page.
void RTBPrint_GetPrinter(const QPlainTextEdit &box, const QString &header);
bool RTBPrint(const QPlainTextEdit &box, QPagedPaintDevice &device, int left, int top, int right,
              int bottom, const QString &header);
