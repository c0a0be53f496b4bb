#include "db/maintenance/Advice.h"

#include <algorithm>

namespace maintenance
{

using norvane::engine::Error;
using norvane::engine::ErrorKind;

namespace
{

QString sentence(ErrorKind kind)
{
    switch (kind) {
    case ErrorKind::NotFound:
        return QStringLiteral("the file or a part of it is missing");
    case ErrorKind::Locked:
        return QStringLiteral("another station holds it");
    case ErrorKind::ReadOnly:
        return QStringLiteral("it is read-only");
    case ErrorKind::Damaged:
        return QStringLiteral("the file is damaged");
    case ErrorKind::Refused:
        return QStringLiteral("the file is of a kind that Norvane does not read");
    case ErrorKind::NoSpace:
        return QStringLiteral("the disk is full");
    case ErrorKind::TooLarge:
        return QStringLiteral("the file is too large");
    case ErrorKind::Gone:
        return QStringLiteral("the file went away while it was read");
    case ErrorKind::NoMemory:
        return QStringLiteral("there is not enough memory");
    case ErrorKind::None:
    case ErrorKind::Misuse:
    case ErrorKind::Io:
        break;
    }
    return QStringLiteral("the file cannot be read");
}

QString restore()
{
    return QStringLiteral("Restore all files of the folder together from your last backup.");
}

// A sentence of its own, or one that goes on.
QString repair(bool begins = false)
{
    return (begins ? QStringLiteral("Close") : QStringLiteral("close")) +
           QStringLiteral(" the database at all stations, copy the folder, and run 'norvanectl "
                          "repair'.");
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
        text += QStringLiteral(" (at %1)").arg(error.place);
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
        return QStringLiteral("Check again when nobody is saving.");
    case ErrorKind::ReadOnly:
        return QStringLiteral("Ask for the right to read and write the folder.");
    case ErrorKind::Gone:
        return QStringLiteral("Check again when the computer that holds the folder is up.");
    case ErrorKind::Io:
        return QStringLiteral(
            "Look whether you may read the file and whether its disk is in order, "
            "and check again. Nothing says that data is lost.");
    case ErrorKind::Refused:
        return adviceForLayout();
    default:
        break;
    }
    if (isIndex(file))
        return QStringLiteral("No data is lost: ") + repair() +
               QStringLiteral(" This will rebuild the index from the rows.");
    const QString rest = QStringLiteral(" What that cannot put right is to be restored from your "
                                        "last backup, all files of the folder together.");
    if (isMemo(file))
        return QStringLiteral("Notes and other long texts may be lost. ") + repair(true) + rest;
    return repair(true) + rest;
}

QString adviceForMissing(const schema::TableInfo &table, const QString &file)
{
    if (isIndex(file))
        return QStringLiteral("No data is lost: ") + repair() +
               QStringLiteral(" This will build the index from the rows.");
    if (table.repairable)
        return QStringLiteral("Opening the database in Norvane puts an empty one in its place; if "
                              "it held data, restore it from your last backup first.");
    return restore();
}

QString adviceForLayout()
{
    return QStringLiteral("The table was made by another program or version. ") + restore();
}

QString adviceForIdentifiers()
{
    return QStringLiteral("Only one of the rows can be opened. Dump the table, and save the "
                          "record that is wrong anew or delete it.");
}

QString adviceForCounters()
{
    return QStringLiteral("Numbers that are in use are passed over. ") + repair(true);
}

} // namespace maintenance
