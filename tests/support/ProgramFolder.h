// A folder that is the whole search path for programs while it lives, for stand-ins written as
// shell scripts.
#pragma once

#include <QFile>
#include <QTemporaryDir>

class ProgramFolder
{
public:
    ProgramFolder() : m_path(qgetenv("PATH")) { qputenv("PATH", m_dir.path().toLocal8Bit()); }
    ~ProgramFolder() { qputenv("PATH", m_path); }
    ProgramFolder(const ProgramFolder &) = delete;
    ProgramFolder &operator=(const ProgramFolder &) = delete;

    QString filePath(const QString &name) const { return m_dir.filePath(name); }
    void add(const QString &name, const QByteArray &script)
    {
        QFile file(filePath(name));
        if (file.open(QIODevice::WriteOnly))
            file.write("#!/bin/sh\n" + script + "\n");
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

private:
    QTemporaryDir m_dir;
    QByteArray m_path;
};
