// What a person should know and do about a finding.
#pragma once

#include "db/engine/engine.h"
#include "db/Schema.h"

#include <QString>

namespace maintenance
{

QString failureText(const norvane::engine::Error &error);

// A line of the engine's check, taken apart: the file of the table it is about, and what is wrong.
struct ExplainedLine {
    QString file;
    QString text;
};
ExplainedLine explainLine(const QString &line, const schema::TableInfo &table);

QString adviceFor(const QString &file, norvane::engine::ErrorKind kind);
QString adviceForMissing(const schema::TableInfo &table, const QString &file);
QString adviceForLayout();
QString adviceForIdentifiers();
QString adviceForCounters();

} // namespace maintenance
