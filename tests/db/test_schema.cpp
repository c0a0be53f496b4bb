// The tables as written once in the schema: what relies on them elsewhere finds them so.
#include "db/Schema.h"
#include "db/templates/SeedFile.h"
#include "support/TempDatabase.h"
#include "TestPlaces.h"

#include <gtest/gtest.h>

#include <set>

using namespace Qt::Literals::StringLiterals;
using norvane::engine::FieldDef;
using norvane::engine::TableDef;
using norvane::engine::TagDef;

namespace
{

const FieldDef *fieldNamed(const TableDef &def, const QString &name)
{
    for (const FieldDef &field : def.fields) {
        if (name.compare(QString::fromStdString(field.name), Qt::CaseInsensitive) == 0)
            return &field;
    }
    return nullptr;
}

bool hasNumericTag(const TableDef &def, const QString &name)
{
    for (const TagDef &tag : def.tags) {
        if (name.compare(QString::fromStdString(tag.name), Qt::CaseInsensitive) == 0)
            return tag.expression == tag.name;
    }
    return false;
}

} // namespace

TEST(Schema, NamesFitTheFileFormatAndAreNotDoubled)
{
    for (const schema::TableInfo &table : schema::tables()) {
        std::set<std::string> names;
        for (const FieldDef &field : table.def.fields) {
            EXPECT_LE(field.name.size(), 10u) << field.name;
            EXPECT_TRUE(names.insert(field.name).second) << field.name;
        }
        EXPECT_EQ("ROWID" == table.def.fields.front().name,
                  table.table != schema::Table::LastID && table.table != schema::Table::Param);
    }
}

TEST(Schema, EveryTagLeavesDeletedRowsOut)
{
    for (const schema::TableInfo &table : schema::tables()) {
        for (const TagDef &tag : table.def.tags)
            EXPECT_EQ(0u, tag.filter.find(".NOT.DELETED()")) << tag.name;
    }
}

TEST(Schema, RecordTypesNameFieldsOfTheirTable)
{
    for (const char *code : {"_userinfo", "_customer", "_newcustomer", "_ps", "_issue",
                             "_issuetemplate", "_issueaction", "_rptdef"}) {
        const QString name = QString::fromLatin1(code);
        const TableDef &def = schema::table(tableOfRecordType(name)).def;
        const schema::RecordType *type = schema::recordType(name);
        for (const auto &fields : {type->writes, type->reads}) {
            for (const schema::RecordField &field : fields) {
                const FieldDef *found = fieldNamed(def, QLatin1String(field.name));
                ASSERT_NE(nullptr, found) << code << ' ' << field.name;
                const bool memo = field.kind == schema::FieldKind::Memo;
                EXPECT_EQ(memo, found->type == 'M') << code << ' ' << field.name;
                const bool date = field.kind == schema::FieldKind::Date;
                EXPECT_EQ(date, found->type == 'D') << code << ' ' << field.name;
            }
        }
        EXPECT_EQ(type->stampsLastEdit, fieldNamed(def, u"lastmodby"_s) != nullptr) << code;
    }
    EXPECT_EQ(nullptr, schema::recordType(u"_nosuch"_s));
}

TEST(Schema, EveryLookupFieldACriterionUsesHasANumericTag)
{
    const SeedFile columns =
        SeedFile::read(QStringLiteral(NORVANE_SOURCE_DIR "/data/seed/columns.csv"));
    const auto value = [&](const SeedRow &row, const QString &field) {
        return row.values.at(columns.fields.indexOf(field));
    };
    int criteria = 0;
    for (const SeedRow &row : columns.rows) {
        const QString field = value(row, u"fldname"_s);
        const QString file = value(row, u"tblname"_s);
        for (const schema::TableInfo &table : schema::tables()) {
            if (table.dataFile() != file || field.isEmpty())
                continue;
            EXPECT_NE(nullptr, fieldNamed(table.def, field)) << qPrintable(row.place);
            if (value(row, u"purpose"_s) == u"F" && value(row, u"datatype"_s) == u"L") {
                ++criteria;
                EXPECT_TRUE(hasNumericTag(table.def, field)) << qPrintable(row.place);
            }
        }
    }
    EXPECT_GT(criteria, 5);
}
