// A CSV file of a test's own, with the bytes given.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>

class ImportFile
{
public:
    explicit ImportFile(const QByteArray &bytes = {}) { write(bytes); }
    void write(const QByteArray &bytes) const
    {
        QFile file(path());
        if (file.open(QIODevice::WriteOnly))
            file.write(bytes);
    }
    QString path() const { return m_dir.filePath(QStringLiteral("import.csv")); }

private:
    QTemporaryDir m_dir;
};
