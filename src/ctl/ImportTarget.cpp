#include "ctl/ImportTarget.h"

#include "db/clsDB.h"
#include "db/import/FileStamp.h"
#include "db/import/ImportRun.h"
#include "db/LookupTypes.h"

namespace ctl
{

namespace
{

// False with everything that is wrong with the file.
bool checkFile(const QString &path, const clsImportColDefs &columns, QStringList &headings,
               qint32 &rowCount, QString &errors)
{
    clsImportData data;
    return data.ValidateCols(path, columns, headings, errors) &&
           data.ValidateRows(path, columns, headings, errors, rowCount);
}

} // namespace

const QList<ImportTarget> &importTargets()
{
    static const QList<ImportTarget> all{
        {QStringLiteral("customers"), 0, QStringLiteral("customers")},
        {QStringLiteral("categories"), lookup_type::CustomerCategories,
         QStringLiteral("customer categories")},
        {QStringLiteral("products"), lookup_type::Products,
         QStringLiteral("products and services")},
        {QStringLiteral("states"), lookup_type::States, QStringLiteral("states and provinces")},
        {QStringLiteral("countries"), lookup_type::Countries, QStringLiteral("countries")},
        {QStringLiteral("statuses"), lookup_type::IssueStatuses, QStringLiteral("issue statuses")},
        {QStringLiteral("priorities"), lookup_type::IssuePriorities,
         QStringLiteral("issue priorities")},
        {QStringLiteral("contracttypes"), lookup_type::ContractTypes,
         QStringLiteral("contract types")},
        {QStringLiteral("contractdurations"), lookup_type::ContractDurations,
         QStringLiteral("contract durations")},
        {QStringLiteral("issuecategories"), lookup_type::IssueCategories,
         QStringLiteral("issue categories")},
        {QStringLiteral("actions"), lookup_type::IssueActions, QStringLiteral("issue actions")},
    };
    return all;
}

std::optional<ImportTarget> importTarget(const QString &name)
{
    for (const ImportTarget &target : importTargets())
        if (target.name.compare(name, Qt::CaseInsensitive) == 0)
            return target;
    return std::nullopt;
}

QStringList importTargetNames()
{
    QStringList names;
    for (const ImportTarget &target : importTargets())
        names << target.name;
    return names;
}

std::optional<qint32> importFile(clsDB &db, const ImportTarget &target, const QString &path,
                                 const std::function<void(qint32)> &eachRow, Console &console)
{
    QStringList headings;
    qint32 rowCount = 0;
    QString errors;
    const FileStamp checked = FileStamp::of(path);
    if (!checkFile(path, ImportRun::columns(target.listType), headings, rowCount, errors)) {
        console.err
            << QStringLiteral("IMPORT FAILED FROM FILE %1!\n\n%2\n").arg(path, errors.trimmed());
        return std::nullopt;
    }
    ImportRun run(db, target.listType, headings, rowCount);
    run.onStored(eachRow);
    const ImportResult result = run.ImportData_Detail(path);
    if (FileStamp::of(path) != checked)
        console.err << QStringLiteral("The file has changed since it was checked.\n");
    if (result.lostLetters > 0)
        console.err << QStringLiteral("%1 rows hold letters that cannot be stored; a ? stands for "
                                      "each.\n")
                           .arg(result.lostLetters);
    if (result.ok && result.stored + result.skipped == result.tried)
        return result.tried;
    console.err << QStringLiteral("Unable to import data! %1 of %2 rows were stored.\n")
                       .arg(result.stored + result.skipped)
                       .arg(result.tried);
    return std::nullopt;
}

} // namespace ctl
