#include "admin/ImportTargets.h"

#include "common/base/AppInfo.h"
#include "db/clsCustomLabels.h"
#include "db/import/ImportRun.h"

#include <QCoreApplication>
#include <QDir>
#include <QStringList>

namespace
{

const QString customersCode = QStringLiteral("MAIN_NEWCUSTOMER");

struct Words {
    Q_DECLARE_TR_FUNCTIONS(ImportTargets)
};

QString label(const char *field)
{
    return CustomLabels.GetCustomerLabelName(QLatin1String(field));
}

QString sampleFile(const char *name)
{
    return Words::tr(
               "A sample import file called '%1' is available in %2 to get you started. You can "
               "open this file with MS Excel.")
        .arg(QLatin1String(name), QDir::toNativeSeparators(app::programFolder()));
}

QString fileFormat()
{
    return Words::tr(
        "The import file format required is a Comma Separated Value file, usually prepared "
        "in MS Excel and Saved, As 'CSV (Comma Delimited)' file.");
}

QString looksLike()
{
    return Words::tr("Here's how an import file should look like when opened with Windows Notepad "
                     "Application:");
}

QStringList listHelp()
{
    return {
        Words::tr("%1 allows you to import items into this list from a file. ").arg(app::title()) +
            fileFormat(),
        Words::tr("The first row (Row 1) of the import file must contain column headings. The only "
                  "column heading required for this import is:"),
        QStringLiteral("DESCRIPTION"),
        Words::tr(
            "All rows (except the first row which must contain the column heading) in the import "
            "file are added as NEW items into the list. Description for each item should appear "
            "starting from Row 2. We recommend preparing this file in MS Excel and saving as 'CSV "
            "(Comma Delimited)' file."),
        looksLike(),
        QStringLiteral("DESCRIPTION\nItem Desc 1\nItem Desc 2"),
        sampleFile("Sample Lookup List Import.csv"),
    };
}

QStringList customerHelp()
{
    QStringList headings;
    for (const clsImportColDef &column : customerImportColumns())
        headings += column.name;
    return {
        Words::tr("%1 allows you to import Customer information into its database from a file. ")
                .arg(app::title()) +
            fileFormat(),
        Words::tr(
            "The first row (Row 1) of the import file must contain column headings. The only "
            "column headings required for this import file are LASTNAME and COMPANY. The rest of "
            "the columns are optional. Here's a list of all the recognized/importable column "
            "headings:"),
        headings.join(u'\n'),
        Words::tr(
            "Each column heading must appear in a separate column. All rows (except the first row "
            "which must contain the column heading) in the import file are added as NEW customers. "
            "Data for each customer should appear starting from Row 2. We recommend preparing this "
            "file in MS Excel and saving as 'CSV (Comma Delimited)' file."),
        looksLike(),
        QStringLiteral("FIRSTNAME, LASTNAME, COMPANY, WORKPHONE\n"
                       "John, Smith, JS Company, 800-123-5678\n"
                       "Jane, Doe, , 217-234-9000"),
        sampleFile("Sample Customer Import.csv"),
    };
}

} // namespace

qint32 ImportTarget::number() const
{
    return code == customersCode ? ImportRun::NewCustomers : code.toInt();
}

QList<ImportTarget> importTargets()
{
    const QString list = Words::tr("Lookup List: ");
    return {
        {Words::tr("Customers"), customersCode},
        {list + Words::tr("Customer %1").arg(label("custcat")), 1},
        {list + Words::tr("Products & Services"), 2},
        {list + Words::tr("Contract Types"), 103},
        {list + Words::tr("Contract Durations"), 104},
        {list + label("state"), 3},
        {list + label("country"), 4},
        {list + Words::tr("Issue Statuses"), 101},
        {list + Words::tr("Issue Actions"), 106},
        {list + Words::tr("Issue Priorities"), 102},
        {list +
             Words::tr("Issue %1").arg(CustomLabels.GetIssueLabelName(QStringLiteral("issuecat"))),
         105},
    };
}

QString importFormatHelp(const ImportTarget &target)
{
    QStringList paragraphs{Words::tr("IMPORT - %1").arg(target.text)};
    paragraphs += target.number() == ImportRun::NewCustomers ? customerHelp() : listHelp();
    return paragraphs.join(QLatin1String("\n\n"));
}
