#include "db/import/CsvText.h"

#include "common/base/clsSystem.h"
#include "db/import/CsvReader.h"

namespace
{

QString readRow(const QString &path, qint32 row, bool &found)
{
    found = false;
    CsvReader reader(path);
    if (!reader.open())
        return {};
    std::optional<QString> line;
    for (qint32 i = 0; i < row; ++i) {
        line = reader.readLine();
        if (!line)
            return {};
    }
    found = line.has_value();
    return found ? clsSystem::Trim(*line) : QString();
}

QString commasToDelimiter(const QString &row)
{
    return clsSystem::StrReplaceChar(row, u',', csvDelimiter, false);
}

} // namespace

bool FileReadRowNum(const QString &path, qint32 row, QString &text)
{
    clsSystem::WaitStart();
    bool found = false;
    const QString line = readRow(path, row, found);
    if (found)
        text = line;
    clsSystem::WaitEnd();
    return found;
}

QString CSVField_GetValue(const QString &raw)
{
    const QString value = clsSystem::Trim(raw);
    if (value == QLatin1String("\"\""))
        return {};
    if (value.size() <= 2 || value.front() != u'"' || value.back() != u'"')
        return value;
    return value.mid(1, value.size() - 2).replace(QLatin1String("\"\""), QLatin1String("\""));
}

bool ImportIsColumnRelevant(const QString &heading, const clsImportColDefs &columns)
{
    return clsImportData().IsImportRelevant(heading, columns);
}

QStringList SplitCsvRow(const QString &row)
{
    return clsSystem::StrParse2Array(commasToDelimiter(row), csvDelimiter);
}

QStringList SplitCsvRowForStoring(const QString &row)
{
    return clsSystem::StrParse2Array(clsSystem::RemoveChar(commasToDelimiter(row), u'"'),
                                     csvDelimiter);
}
