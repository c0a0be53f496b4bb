// Rows of an import file and the values in them. The checks, the preview and the import all cut a
// row the same way.
#pragma once

#include "db/import/clsImportData.h"

#include <QString>
#include <QStringList>

// The character that takes the place of a comma between values; a value that holds it is cut.
constexpr QChar csvDelimiter(u'\xFE');

// Row `row`, from 1, without blanks around it; false when the file does not reach that far or
// cannot be read.
bool FileReadRowNum(const QString &path, qint32 row, QString &text);
// A raw value without its surrounding quotes, doubled quotes inside made single.
QString CSVField_GetValue(const QString &raw);
bool ImportIsColumnRelevant(const QString &heading, const clsImportColDefs &columns);
// The raw values of a row; commas inside quotes belong to the value.
QStringList SplitCsvRow(const QString &row);
// The values as they are stored: every quotation mark is gone, doubled ones too.
QStringList SplitCsvRowForStoring(const QString &row);
