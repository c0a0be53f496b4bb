// Rows that a new database starts with, from a CSV file: UTF-8, a heading row of field names,
// values with commas in double quotes, quotes in them doubled, "\n" for a line feed.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

struct SeedRow {
    QString place; // "lists.csv, line 12", for messages
    QStringList values;
};

struct SeedFile {
    QStringList fields;
    std::vector<SeedRow> rows;

    // Throws a Failure that names file and line when it cannot be read or a row has more or fewer
    // values than the heading.
    static SeedFile read(const QString &path);
};
