#include "db/templates/SeedFile.h"

#include "common/base/Failure.h"

#include <QFile>
#include <QFileInfo>

namespace
{

constexpr int BadSeed = 321;

QString lineFeeds(QString value)
{
    return value.replace(QLatin1String("\\n"), QLatin1String("\n"));
}

// The values of one line. A quote inside quotes is doubled.
QStringList splitLine(const QString &line)
{
    QStringList values{QString()};
    bool quoted = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        const QChar c = line.at(i);
        const bool doubled = quoted && c == u'"' && i + 1 < line.size() && line.at(i + 1) == u'"';
        if (doubled)
            values.last() += line.at(++i);
        else if (c == u'"')
            quoted = !quoted;
        else if (c == u',' && !quoted)
            values.append(QString());
        else
            values.last() += c;
    }
    for (QString &value : values)
        value = lineFeeds(value);
    return values;
}

} // namespace

SeedFile SeedFile::read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        throw Failure(BadSeed, path, QStringLiteral("cannot be read"));
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');

    SeedFile seed;
    seed.fields = splitLine(lines.first());
    for (qsizetype i = 1; i < lines.size(); ++i) {
        if (lines.at(i).isEmpty())
            continue;
        SeedRow row{QStringLiteral("%1, line %2").arg(QFileInfo(path).fileName()).arg(i + 1),
                    splitLine(lines.at(i))};
        if (row.values.size() != seed.fields.size())
            throw Failure(BadSeed, row.place, QStringLiteral("not as many values as headings"));
        seed.rows.push_back(std::move(row));
    }
    return seed;
}
