// The program's own source files, for the tests that read them.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

struct SourceFile {
    QString path; // from the root of the tree, "src/db/clsDB.h"
    QStringList lines;
    QString folder() const; // "src/db"
};

// Headers and sources below a folder such as "src".
std::vector<SourceFile> sourceFiles(const QString &below);
// The line without what stands in quotes or behind "//".
QString codeOnly(const QString &line);
