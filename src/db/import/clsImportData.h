// Reading and checking a CSV file of customers or lookup items before anything is written.
// Files are Windows-1252; one that starts with a UTF-8 byte-order mark is UTF-8.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// One importable column. Kinds: 0 text, 1 and 2 numeric, 3 yes/no, 4 date.
struct clsImportColDef {
    QString name; // upper case
    int kind = 0;
    bool required = false;
    bool blankAllowed = true;
    bool rangeCheck = false;
    double high = 0;
    double low = 0;
    QString target;     // field of the customer table, "desc" for a lookup list
    int lookupType = 0; // list that supplies the value, 0 none
};

using clsImportColDefs = QList<clsImportColDef>;

clsImportColDefs customerImportColumns();
clsImportColDefs lookupImportColumns();

class clsImportData
{
public:
    // Row 1: false and the reasons when a required heading is missing or one is not known.
    bool ValidateCols(const QString &path, const clsImportColDefs &columns, QStringList &headings,
                      QString &errors);
    // All later rows; false when one is bad (after 51 bad rows it stops) or Cancel was pressed.
    bool ValidateRows(const QString &path, const clsImportColDefs &columns,
                      const QStringList &headings, QString &errors, qint32 &rowCount);
    bool ValidateARow(qint32 rowNumber, const QString &row, const clsImportColDefs &columns,
                      const QStringList &headings, QString &errors);
    bool IsImportRelevant(const QString &heading, const clsImportColDefs &columns) const;
    static QString FmtRowNum(qint32 rowNumber);
};
