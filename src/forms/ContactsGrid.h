// The further contacts of a customer: always 50 rows of five cells, kept in one memo with a
// character between cells and one behind each row.
#pragma once

#include <QList>
#include <QString>

class Grid;

namespace contacts
{

struct Contact {
    QString name, title, address, telephone, email;
};

void setUp(Grid *grid);
// From and to the memo's text. Rows and cells beyond the grid are dropped.
void show(Grid *grid, const QString &memo);
QString text(const Grid *grid);
QList<Contact> all(const Grid *grid); // every row, empty ones too
// Read-only or open for typing, in the colour that says so.
void setLocked(Grid *grid, bool locked);

} // namespace contacts
