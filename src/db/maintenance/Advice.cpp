#include "db/maintenance/Advice.h"

#include <QCoreApplication>

#include <algorithm>

namespace maintenance
{

using norvane::engine::Error;
using norvane::engine::ErrorKind;

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(Advice)
};

QString sentence(ErrorKind kind)
{
    switch (kind) {
    case ErrorKind::NotFound:
        return Words::tr("the file or a part of it is missing");
    case ErrorKind::Locked:
        return Words::tr("another station holds it");
    case ErrorKind::ReadOnly:
        return Words::tr("it is read-only");
    case ErrorKind::Damaged:
        return Words::tr("the file is damaged");
    case ErrorKind::Refused:
        return Words::tr("the file is of a kind that Norvane does not read");
    case ErrorKind::NoSpace:
        return Words::tr("the disk is full");
    case ErrorKind::TooLarge:
        return Words::tr("the file is too large");
    case ErrorKind::Gone:
        return Words::tr("the file went away while it was read");
    case ErrorKind::NoMemory:
        return Words::tr("there is not enough memory");
    case ErrorKind::None:
    case ErrorKind::Misuse:
    case ErrorKind::Io:
        break;
    }
    return Words::tr("the file cannot be read");
}

QString restore()
{
    return Words::tr("Restore all files of the folder together from your last backup.");
}

QString repair()
{
    return Words::tr(
        "Close the database at all stations, copy the folder, and run 'norvanectl repair'.");
}

QString nothingLost()
{
    return Words::tr("No data is lost: close the database at all stations, copy the folder, and "
                     "run 'norvanectl repair'.");
}

// "row 17, NOTES: ..."
bool namesMemoField(const QString &line, const schema::TableInfo &table)
{
    return std::any_of(table.def.fields.begin(), table.def.fields.end(), [&](const auto &field) {
        const QString name = QString::fromStdString(field.name);
        return field.type == 'M' && line.contains(QString(u", " + name + u':'));
    });
}

bool isIndex(const QString &file)
{
    return file.endsWith(QLatin1String(".cdx"), Qt::CaseInsensitive);
}

bool isMemo(const QString &file)
{
    return file.endsWith(QLatin1String(".fpt"), Qt::CaseInsensitive);
}

} // namespace

QString failureText(const Error &error)
{
    QString text = sentence(error.kind);
    if (!error.detail.empty())
        text += QStringLiteral(": %1").arg(QString::fromStdString(error.detail));
    if (error.place >= 0)
        text += Words::tr(" (at %1)").arg(error.place);
    return text;
}

ExplainedLine explainLine(const QString &line, const schema::TableInfo &table)
{
    // "C:\...\nvncat.cdx: what is wrong"
    const QStringList files = table.files();
    for (const QString &file : files) {
        const qsizetype name = line.indexOf(file + u": ", 0, Qt::CaseInsensitive);
        if (name >= 0)
            return {file, line.mid(name + file.size() + 2)};
    }
    if (line.startsWith(QLatin1String("tag ")) || line.contains(QLatin1String("index")))
        return {table.indexFile(), line};
    if (table.hasMemo && (line.contains(QLatin1String("memo")) || namesMemoField(line, table)))
        return {table.memoFile(), line};
    return {table.dataFile(), line};
}

QString adviceFor(const QString &file, ErrorKind kind)
{
    const bool foreignIndex = kind == ErrorKind::Refused && isIndex(file);
    switch (foreignIndex ? ErrorKind::Damaged : kind) {
    case ErrorKind::Locked:
        return Words::tr("Check again when nobody is saving.");
    case ErrorKind::ReadOnly:
        return Words::tr("Ask for the right to read and write the folder.");
    case ErrorKind::Gone:
        return Words::tr("Check again when the computer that holds the folder is up.");
    case ErrorKind::Io:
        return Words::tr("Look whether you may read the file and whether its disk is in order, "
                         "and check again. Nothing says that data is lost.");
    case ErrorKind::Refused:
        return adviceForLayout();
    default:
        break;
    }
    if (isIndex(file))
        return nothingLost() + Words::tr(" This will rebuild the index from the rows.");
    const QString rest = Words::tr(" What that cannot put right is to be restored from your "
                                   "last backup, all files of the folder together.");
    if (isMemo(file))
        return Words::tr("Notes and other long texts may be lost. ") + repair() + rest;
    return repair() + rest;
}

QString adviceForMissing(const schema::TableInfo &table, const QString &file)
{
    if (isIndex(file))
        return nothingLost() + Words::tr(" This will build the index from the rows.");
    if (table.repairable)
        return Words::tr("Opening the database in Norvane puts an empty one in its place; if "
                         "it held data, restore it from your last backup first.");
    return restore();
}

QString adviceForLayout()
{
    return Words::tr("The table was made by another program or version. ") + restore();
}

QString adviceForIdentifiers()
{
    return Words::tr("Only one of the rows can be opened. Dump the table, and save the "
                     "record that is wrong anew or delete it.");
}

QString adviceForCounters()
{
    return Words::tr("Numbers that are in use are passed over. ") + repair();
}

} // namespace maintenance
