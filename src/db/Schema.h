// The ten tables of a database and the two that belong to the program: files, fields, tags and
// record types, written once. The templates, the checks of a folder and the record access are all
// made from here.
#pragma once

#include "db/engine/RowLayout.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace schema
{

enum class Table {
    Category,
    Customer,
    Customer2PS,
    LastID,
    Issues,
    IssuesActions,
    IssuesTemplates,
    User,
    Report,
    Param
};

struct TableInfo {
    Table table;
    QString baseName; // "nvncust"
    bool hasMemo;     // three files, else two
    bool repairable;  // copied from the templates when missing from a folder
    norvane::engine::TableDef def;

    QString dataFile() const { return baseName + u".dbf"; }
    QString indexFile() const { return baseName + u".cdx"; }
    QString memoFile() const { return baseName + u".fpt"; }
    QString journalFile() const { return baseName + u".nvj"; } // made by the first save
    // Existing files of a folder for this table, in the order data, index, memo.
    QStringList files() const;
    QStringList templateFiles() const; // ".db_", ".cd_", ".fp_", same order
};

const std::vector<TableInfo> &tables(); // in the order of the enumeration
const TableInfo &table(Table which);
// The program's own: "nvnrepcols.dbf" and the mail-merge template "nvnmm.db_".
const norvane::engine::TableDef &reportColumnsDef();
const norvane::engine::TableDef &mailMergeDef();

// How a field's text goes into its table (AssignValue).
enum class FieldKind { Text = 1, Date = 2, Number = 3, Integer = 5, Flag = 6, Memo = 8, Time = 9 };

struct RecordField {
    const char *name;
    FieldKind kind;
};

// A record-type code such as "_customer": what it writes and reads, in order.
struct RecordType {
    const char *code;
    std::vector<RecordField> writes;
    std::vector<RecordField> reads;
    bool stampsLastEdit;
};

const RecordType *recordType(const QString &code); // null when there is none

} // namespace schema
