#include "house/SourceTree.h"
#include "TestPlaces.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

QString SourceFile::folder() const
{
    return path.section(u'/', 0, -2);
}

std::vector<SourceFile> sourceFiles(const QString &below)
{
    const QDir root(QStringLiteral(NORVANE_SOURCE_DIR));
    std::vector<SourceFile> files;
    QDirIterator walk(root.filePath(below), {"*.h", "*.cpp"}, QDir::Files,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        QFile file(walk.next());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        files.push_back({root.relativeFilePath(file.fileName()),
                         QString::fromUtf8(file.readAll()).split(u'\n')});
    }
    return files;
}

QString codeOnly(const QString &line)
{
    static const QRegularExpression quoted(QStringLiteral("\"(?:[^\"\\\\]|\\\\.)*\""));
    static const QRegularExpression comment(QStringLiteral("//.*$"));
    return QString(line).remove(quoted).remove(comment);
}
