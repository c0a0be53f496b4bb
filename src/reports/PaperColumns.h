// How wide the columns of a report stand on paper, where they have less room than on the screen.
#pragma once

#include <QList>

class QFont;
class ReportTable;

// The pixels of a letter of middling width between two columns.
int betweenColumns(const QFont &font);

// `widths`: what each column takes on the screen to show all its texts, with betweenColumns();
// `room`: what there is on paper for all of them, in the same pixels. Columns give way where it
// harms least.
QList<int> paperWidths(const ReportTable &table, const QFont &font, const QList<int> &widths,
                       int room);
