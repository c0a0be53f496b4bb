#include "db/import/clsImportData.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Host.h"
#include "db/import/CsvReader.h"
#include "db/import/CsvText.h"
#include "db/import/FileStamp.h"

#include <QCoreApplication>

#include <algorithm>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(clsImportData)
};

constexpr int maxBadRows = 50;
constexpr qsizetype maxLineShown = 10000; // characters; nobody reads more in a message
constexpr int rowsBetweenEvents = 100;

enum Kind { Text = 0, Numeric = 1, NumericToo = 2, YesNo = 3, Date = 4 };

const clsImportColDef *findColumn(const QString &name, const clsImportColDefs &columns)
{
    const auto found = std::find_if(columns.begin(), columns.end(),
                                    [&](const clsImportColDef &def) { return def.name == name; });
    return found == columns.end() ? nullptr : &*found;
}

// Bounds have four decimals; the zeros at their end are not shown.
QString boundText(double bound)
{
    QString text = QString::number(bound, 'f', 4);
    while (text.endsWith(u'0'))
        text.chop(1);
    if (text.endsWith(u'.'))
        text.chop(1);
    return text.replace(QLatin1String("."), host().locale().decimalPoint());
}

// What is wrong with a number, empty when nothing is.
QString numberFault(const QString &value, const clsImportColDef &def)
{
    if (!IsNumeric(value))
        return Words::tr("must be numeric.");
    const double number = Val(value);
    if (!def.rangeCheck || (number <= def.high && number >= def.low))
        return {};
    return Words::tr("must be between %1 and %2.").arg(boundText(def.high), boundText(def.low));
}

// The end of the message about a value that is not empty; empty when it is good.
QString valueFault(const QString &value, const clsImportColDef &def)
{
    switch (def.kind) {
    case Numeric:
    case NumericToo:
        return numberFault(value, def);
    case Date:
        return Words::tr("must be a valid date.");
    case YesNo:
        if (value != QLatin1String("N") && value != QLatin1String("Y"))
            return Words::tr("must be either 'Y' or 'N'.");
        return {};
    default:
        return {};
    }
}

// The whole message about one value; empty when it is good.
QString valueMessage(qint32 rowNumber, const QString &value, const clsImportColDef &def)
{
    const QString row = clsImportData::FmtRowNum(rowNumber);
    if (value.isEmpty()) {
        if (def.blankAllowed)
            return {};
        return Words::tr("%1: A value must be entered for column %2.").arg(row, def.name);
    }
    const QString fault = valueFault(value, def);
    if (fault.isEmpty())
        return {};
    return Words::tr("%1: The value [%2] entered for column %3 %4")
        .arg(row, value, def.name, fault);
}

QString missingData(qint32 rowNumber, const QString &row)
{
    return Words::tr("%1: Missing data. Number of entries on this row do NOT equal the number of "
                     "columns on the first row. LINE CONTENT: %2")
               .arg(clsImportData::FmtRowNum(rowNumber),
                    row.left(maxLineShown).replace(csvDelimiter, u',')) +
           clsSystem::CRLF();
}

QString headingFaults(const clsImportColDefs &columns, const QStringList &headings)
{
    QString errors;
    for (const clsImportColDef &def : columns) {
        if (def.required && !headings.contains(def.name)) {
            errors +=
                Words::tr("Required column '%1' is missing from the first row.").arg(def.name) +
                clsSystem::CRLF(2);
        }
    }
    for (const QString &heading : headings) {
        if (findColumn(heading, columns) == nullptr) {
            errors += Words::tr("Unrecognized column '%1' found on the first row.").arg(heading) +
                      clsSystem::CRLF(2);
        }
    }
    return errors;
}

} // namespace

bool clsImportData::ValidateCols(const QString &path, const clsImportColDefs &columns,
                                 QStringList &headings, QString &errors)
{
    clsSystem::WaitStart();
    const bool good = guarded("clsImportData_ValidateCols", false, [&] {
        errors.clear();
        QString row;
        if (!FileReadRowNum(path, 1, row)) {
            errors = Words::tr("Unable to read column headers from row 1 of file %1").arg(path) +
                     clsSystem::CRLF(2);
            return false;
        }
        headings = clsSystem::StrParse2Array(row, QStringLiteral(","), true);
        errors = headingFaults(columns, headings);
        return errors.isEmpty();
    });
    clsSystem::WaitEnd();
    return good;
}

bool clsImportData::ValidateRows(const QString &path, const clsImportColDefs &columns,
                                 const QStringList &headings, QString &errors, qint32 &rowCount)
{
    WaitDlg progress;
    clsSystem::WaitDlgShow(progress, Words::tr("Import Data"),
                           Words::tr("Validating Data. Please wait..."), false, true);
    const bool good = guarded("clsImportData_ValidateRows", false, [&] {
        const FileStamp before = FileStamp::of(path);
        CsvReader reader(path);
        reader.open();
        int badRows = 0;
        bool cancelled = false;
        qint32 rowNumber = 1;
        rowCount = 0;
        for (auto line = reader.readLine(); line && !cancelled; line = reader.readLine()) {
            if (rowNumber > 1) {
                ++rowCount;
                if (reader.lineWasCut())
                    errors += Words::tr("%1: The line is too long.").arg(FmtRowNum(rowNumber)) +
                              clsSystem::CRLF();
                if (reader.lineWasCut() ||
                    !ValidateARow(rowNumber, clsSystem::Trim(*line), columns, headings, errors))
                    ++badRows;
            }
            if (badRows > maxBadRows) {
                errors +=
                    Words::tr("MORE THAN 50 ERRORS ENCOUNTERED. ABORTING...") + clsSystem::CRLF(2);
                break;
            }
            ++rowNumber;
            if (rowNumber % rowsBetweenEvents == 0)
                host().pumpEvents();
            cancelled = progress->cancelled();
        }
        if (reader.failed())
            throw reader.failure();
        if (!cancelled && FileStamp::of(path) != before) {
            errors += Words::tr("The file changed while it was checked. Try again when no other "
                                "program writes to it.") +
                      clsSystem::CRLF();
            return false;
        }
        return badRows == 0 && !cancelled;
    });
    clsSystem::WaitDlgRemove(progress);
    return good;
}

bool clsImportData::ValidateARow(qint32 rowNumber, const QString &row,
                                 const clsImportColDefs &columns, const QStringList &headings,
                                 QString &errors)
{
    return guarded("clsImportData_ValidateARow", false, [&] {
        if (row.isEmpty())
            return true;
        const QStringList values = SplitCsvRow(row);
        if (values.size() > headings.size()) {
            errors += missingData(rowNumber, row);
            return false;
        }
        bool good = true;
        for (qsizetype i = 0; i < values.size(); ++i) {
            const clsImportColDef *def = findColumn(headings[i], columns);
            if (def == nullptr)
                continue;
            const QString fault = valueMessage(rowNumber, CSVField_GetValue(values[i]), *def);
            if (!fault.isEmpty()) {
                errors += fault + clsSystem::CRLF();
                good = false;
            }
        }
        return good;
    });
}

bool clsImportData::IsImportRelevant(const QString &heading, const clsImportColDefs &columns) const
{
    return findColumn(heading, columns) != nullptr;
}

QString clsImportData::FmtRowNum(qint32 rowNumber)
{
    return Words::tr("Row %1").arg(rowNumber);
}
