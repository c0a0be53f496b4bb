#include "db/Schema.h"

#include <QtGlobal>

namespace schema
{

using norvane::engine::FieldDef;
using norvane::engine::TableDef;
using norvane::engine::TagDef;

namespace
{

constexpr char LiveRows[] = ".NOT.DELETED()";
constexpr char ActiveUsers[] = ".NOT.DELETED() .AND. USERACTIVE='T'";

// Ten digits and a sign: every 32-bit value fits.
FieldDef id(const char *name)
{
    return {name, 'N', 0, 11, 0};
}

FieldDef text(const char *name, std::uint16_t width)
{
    return {name, 'C', 0, width, 0};
}

FieldDef number(const char *name, std::uint16_t width, std::uint8_t decimals)
{
    return {name, 'N', 0, width, decimals};
}

FieldDef date(const char *name)
{
    return {name, 'D', 0, 8, 0};
}

FieldDef memo(const char *name)
{
    return {name, 'M', 0, 10, 0};
}

FieldDef flag(const char *name)
{
    return text(name, 1);
}

// A number or a date as it is.
TagDef byValue(const char *name)
{
    return {name, name, LiveRows};
}

// A text without regard to case.
TagDef byText(const char *name)
{
    return {name, std::string("UPPER(") + name + ")", LiveRows};
}

std::vector<FieldDef> operator+(std::vector<FieldDef> fields, const std::vector<FieldDef> &more)
{
    fields.insert(fields.end(), more.begin(), more.end());
    return fields;
}

std::vector<FieldDef> lastEdit()
{
    return {id("LASTMODBY"), date("LASTMODDT"), text("LASTMODTM", 8)};
}

// Who edits the row at which station.
std::vector<FieldDef> editMark()
{
    return {id("UNDEREDIT"), text("EDTSTATION", 64)};
}

TableDef categoryDef()
{
    return {{id("ROWID"), id("TYPE"), text("DESC", 40)},
            {byValue("ROWID"), byValue("TYPE"), byText("DESC")}};
}

// What a customer's letter needs, with `reference` fields for state, country and category.
std::vector<FieldDef> contactFields(FieldDef (*reference)(const char *name))
{
    return {text("CUSTNO", 40),     text("FIRSTNAME", 40), text("LASTNAME", 40),
            text("COMPANY", 80),    reference("CUSTCAT"),  text("SALUTATION", 20),
            text("TITLE", 60),      text("ADDRESS1", 80),  text("ADDRESS2", 80),
            text("CITY", 50),       reference("STATE"),    text("POSTALCODE", 20),
            reference("COUNTRY"),   text("WORKPHONE", 30), text("HOMEPHONE", 30),
            text("MOBILPHONE", 30), text("FAXPHONE", 30),  text("EMAILNAME", 80),
            text("EMAILNAME2", 80), text("CUSTOM1", 80),   text("CUSTOM2", 80)};
}

TableDef customerDef()
{
    return {std::vector{id("ROWID")} + contactFields(id) + std::vector{memo("NOTES")} +
                std::vector{memo("CONTACTS")} + lastEdit() + editMark(),
            {byValue("ROWID"), byText("CUSTNO"), byText("LASTNAME"), byText("COMPANY"),
             byText("WORKPHONE"), byValue("CUSTCAT"), byValue("STATE"), byValue("COUNTRY")}};
}

TableDef customer2PSDef()
{
    return {std::vector{id("ROWID"), id("CUSTID"), id("PSID"), text("SHORTDESC", 80),
                        text("CUSTOM1", 40), text("CUSTOM2", 40), date("DATEINIT"),
                        date("DATETERM"), text("CONTNO", 20), text("TRACKNO", 20), id("CONTTYPE"),
                        id("CONTDUR"), memo("NOTES")} +
                lastEdit() + editMark(),
            {byValue("ROWID"), byValue("CUSTID"), byValue("PSID"), byValue("CONTTYPE"),
             byValue("CONTDUR")}};
}

TableDef lastIDDef()
{
    return {{text("TBLNAME", 40), id("LASTID")}, {byText("TBLNAME")}};
}

TableDef issuesDef()
{
    return {std::vector{id("ROWID"), id("CUSTID"), id("PSID"), text("SHORTDESC", 80),
                        text("CUSTOM1", 80), text("CUSTOM2", 80), id("ASSIGNEDTO"), id("PRIORITY"),
                        id("STATUS"), id("ISSUECAT"), date("SUBMITDT"), date("RESPONSEDT"),
                        date("RESOLVEDT"), memo("DESC"), memo("RESOLUTION")} +
                lastEdit() + editMark(),
            {byValue("ROWID"), byValue("CUSTID"), byValue("PSID"), byValue("ASSIGNEDTO"),
             byValue("STATUS"), byValue("SUBMITDT"), byValue("PRIORITY"), byValue("ISSUECAT")}};
}

TableDef issuesActionsDef()
{
    return {{id("ROWID"), id("ISSUEID"), date("DATE"), id("ACTION"), id("PERFBY"),
             text("DESC", 120), number("DURATION", 20, 4), memo("NOTES")},
            {byValue("ROWID"), byValue("ISSUEID"), byValue("ACTION")}};
}

TableDef issuesTemplatesDef()
{
    return {std::vector{id("ROWID"), text("NAME", 120), id("PSID"), text("SHORTDESC", 80),
                        text("CUSTOM1", 80), text("CUSTOM2", 80), id("ASSIGNEDTO"), id("PRIORITY"),
                        id("STATUS"), id("ISSUECAT"), memo("DESC"), memo("RESOLUTION")} +
                lastEdit() + editMark(),
            {byValue("ROWID"), byText("NAME")}};
}

TableDef userDef()
{
    return {std::vector{id("ROWID"), text("LOGIN", 20), text("PASSWORD", 40), text("FIRSTNAME", 25),
                        text("LASTNAME", 25), text("DEPT", 30), flag("USERACTIVE"),
                        text("USERTYPE", 1), text("PERM", 30), memo("NOTE")} +
                lastEdit() + editMark(),
            {byValue("ROWID"), byText("LOGIN"), {"ACTIVEUSER", "UPPER(LOGIN)", ActiveUsers}}};
}

TableDef reportDef()
{
    return {
        std::vector{id("ROWID"), text("TITLE", 80), text("TYPE", 1), memo("DEF"), memo("NOTES")} +
            lastEdit() + editMark(),
        {byValue("ROWID"), byText("TITLE")}};
}

TableDef paramDef()
{
    return {{text("SID", 60), memo("VALUE")}, {byText("SID")}};
}

TableInfo info(Table table, const char *baseName, TableDef def, bool repairable = false)
{
    bool hasMemo = false;
    for (const FieldDef &field : def.fields)
        hasMemo = hasMemo || field.type == 'M';
    return {table, QString::fromLatin1(baseName), hasMemo, repairable, std::move(def)};
}

} // namespace

QStringList TableInfo::files() const
{
    QStringList names{dataFile(), indexFile()};
    if (hasMemo)
        names.append(memoFile());
    return names;
}

QStringList TableInfo::templateFiles() const
{
    QStringList names{baseName + u".db_", baseName + u".cd_"};
    if (hasMemo)
        names.append(baseName + u".fp_");
    return names;
}

const std::vector<TableInfo> &tables()
{
    static const std::vector<TableInfo> all{
        info(Table::Category, "nvncat", categoryDef()),
        info(Table::Customer, "nvncust", customerDef()),
        info(Table::Customer2PS, "nvncust_ps", customer2PSDef()),
        info(Table::LastID, "nvnid", lastIDDef()),
        info(Table::Issues, "nvnissues", issuesDef()),
        info(Table::IssuesActions, "nvniactions", issuesActionsDef(), true),
        info(Table::IssuesTemplates, "nvnitempl", issuesTemplatesDef(), true),
        info(Table::User, "nvnuser", userDef()),
        info(Table::Report, "nvnrep", reportDef()),
        info(Table::Param, "nvnparam", paramDef()),
    };
    return all;
}

const TableInfo &table(Table which)
{
    return tables()[static_cast<std::size_t>(which)];
}

const TableDef &reportColumnsDef()
{
    static const TableDef def{{id("ROWID"), text("RPTTYPE", 1), text("PURPOSE", 1),
                               text("NAME", 60), text("FLDNAME", 10), text("TBLNAME", 20),
                               text("DATATYPE", 1), text("CUSTOMNAME", 60), id("ORDER"),
                               id("CATTYPE")},
                              {byValue("ROWID"), byValue("ORDER")}};
    return def;
}

const TableDef &mailMergeDef()
{
    // Lookup fields arrive as the item's text.
    static const TableDef def{contactFields([](const char *name) { return text(name, 40); }) +
                                  std::vector{text("PRODSERV", 254)},
                              {}};
    return def;
}

} // namespace schema
