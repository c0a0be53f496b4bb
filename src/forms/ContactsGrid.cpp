#include "forms/ContactsGrid.h"

#include "common/ui/Controls.h"
#include "common/ui/Grid.h"

#include <QCoreApplication>

namespace
{

constexpr int kRows = 50;
constexpr QChar kCellEnd(254);
constexpr QChar kRowEnd(u'\r');

// Design widths are in twips, 15 to a pixel at 96 dpi.
constexpr int pixels(int twips)
{
    return twips / 15;
}

struct Words {
    Q_DECLARE_TR_FUNCTIONS(ContactsGrid)
};
} // namespace

namespace contacts
{

void setUp(Grid *grid)
{
    grid->setColumns({{Words::tr("Name"), pixels(2000)},
                      {Words::tr("Title"), pixels(1440)},
                      {Words::tr("Address"), pixels(3500)},
                      {Words::tr("Telephone"), pixels(1440)},
                      {Words::tr("Email"), pixels(2000)}});
    grid->setRows(kRows);
    for (int row = 1; row <= kRows; ++row)
        grid->setText(row, 0, QString::number(row));
    grid->setClipSeparators(kCellEnd, kRowEnd);
}

void show(Grid *grid, const QString &memo)
{
    GridSetFromDelimBuffer(grid, memo, kCellEnd, kRowEnd);
}

QString text(const Grid *grid)
{
    return GridDelimBuffer(grid, kCellEnd, kRowEnd);
}

QList<Contact> all(const Grid *grid)
{
    QList<Contact> list;
    for (int row = 1; row <= grid->rows(); ++row)
        list.append({grid->text(row, 1), grid->text(row, 2), grid->text(row, 3), grid->text(row, 4),
                     grid->text(row, 5)});
    return list;
}

void setLocked(Grid *grid, bool locked)
{
    grid->setEditable(!locked);
    grid->setBackColour(locked ? readOnlyColour(grid) : editableColour(grid));
}

} // namespace contacts
