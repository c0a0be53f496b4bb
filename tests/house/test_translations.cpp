// The files of translations/ know the texts of the sources, and say them whole in their language.
#include "TestPlaces.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QXmlStreamReader>

namespace
{

struct Translated {
    QString text;
    bool finished;
};
using Texts = QMap<QString, Translated>; // by context and source

Texts textsOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    QXmlStreamReader xml(&file);
    Texts texts;
    QString context;
    QString source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"name") {
            context = xml.readElementText();
        } else if (xml.name() == u"source") {
            source = xml.readElementText();
        } else if (xml.name() == u"translation") {
            const bool finished = !xml.attributes().hasAttribute(QLatin1String("type"));
            const QString text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            texts.insert(context + u'|' + source, {text, finished});
        }
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
    return texts;
}

QSet<QString> sources(const QString &path)
{
    const QStringList keys = textsOf(path).keys();
    return {keys.begin(), keys.end()};
}

QDir folder()
{
    return {QStringLiteral(NORVANE_SOURCE_DIR "/translations")};
}

// What a translation has to keep: placeholders, what the end says, whether there is an access key,
// how many lines and choices of files there are.
QStringList keptParts(const QString &text)
{
    static const QRegularExpression placeholder(QStringLiteral("%(n|\\d)"));
    static const QRegularExpression accessKey(QStringLiteral("(?<!&)&(?![& ])"));
    QSet<QString> places;
    for (auto it = placeholder.globalMatch(text); it.hasNext();)
        places.insert(it.next().captured());
    QStringList parts = places.values();
    parts.sort();
    const QString end = text.trimmed();
    if (end.endsWith(QLatin1String("...")))
        parts.append(QStringLiteral("goes on"));
    if (end.endsWith(u':'))
        parts.append(QStringLiteral("colon"));
    if (text.contains(accessKey))
        parts.append(QStringLiteral("access key"));
    if (text.endsWith(u' '))
        parts.append(QStringLiteral("blank"));
    parts.append(QStringLiteral("%1 lines, %2 bars").arg(text.count(u'\n')).arg(text.count(u'|')));
    return parts;
}

} // namespace

TEST(Translations, KnowTheTextsOfTheSources)
{
    const QString lupdate = QStandardPaths::findExecutable(
        QStringLiteral("lupdate"), {QLibraryInfo::path(QLibraryInfo::BinariesPath)});
    if (lupdate.isEmpty())
        GTEST_SKIP() << "lupdate is not installed";
    const QTemporaryDir work;
    const QString now = work.filePath(QStringLiteral("now.ts"));
    QProcess process;
    process.start(lupdate,
                  {"-silent", "-locations", "none", NORVANE_SOURCE_DIR "/src", "-ts", now});
    ASSERT_TRUE(process.waitForFinished(60000));
    const QSet<QString> wanted = sources(now);
    ASSERT_GT(wanted.size(), 1000);
    for (const QString &name : folder().entryList({"norvane_*.ts"})) {
        const QSet<QString> there = sources(folder().filePath(name));
        EXPECT_EQ(QStringList((wanted - there).values()), QStringList()) << qPrintable(name);
        EXPECT_EQ(QStringList((there - wanted).values()), QStringList()) << qPrintable(name);
    }
}

TEST(Translations, SayEverythingAndKeepWhatTheProgramNeeds)
{
    for (const QString &name : folder().entryList({"norvane_*.ts"})) {
        if (name == u"norvane_template.ts")
            continue;
        const Texts texts = textsOf(folder().filePath(name));
        for (auto it = texts.begin(); it != texts.end(); ++it) {
            const QString source = it.key().section(u'|', 1);
            const QString where = name + u' ' + it.key();
            EXPECT_TRUE(it->finished && !it->text.isEmpty()) << qPrintable(where);
            EXPECT_EQ(keptParts(it->text), keptParts(source)) << qPrintable(where);
        }
    }
}
