#include "db/clsCustomLabels.h"

#include "common/base/clsSystem.h"
#include "db/clsDB.h"

#include <span>

clsCustomLabels CustomLabels;

namespace
{

struct DefaultName {
    const char *field;
    const char *name;
};

constexpr DefaultName customerNames[] = {
    {"custno", "Customer Number"},
    {"firstname", "First Name"},
    {"lastname", "Last Name"},
    {"company", "Company"},
    {"custcat", "Category"},
    {"title", "Title"},
    {"address1", "Address (line 1)"},
    {"address2", "Address (line 2)"},
    {"city", "City"},
    {"state", "State"},
    {"postalcode", "Postal Code"},
    {"country", "Country"},
    {"workphone", "Work Phone"},
    {"homephone", "Home Phone"},
    {"mobilphone", "Mobile Phone"},
    {"faxphone", "Fax Phone"},
    {"emailname", "Default Email"},
    {"emailname2", "Alternate Email"},
    {"custom1", "Custom 1"},
    {"custom2", "Custom 2"},
};

constexpr DefaultName subscriptionNames[] = {
    {"shortdesc", "Short Description"},
    {"contno", "Contract or Part Number"},
    {"trackno", "Tracking Number:"},
    {"conttype", "Contract Type"},
    {"contdur", "Contract Duration"},
    {"dateinit", "Date Initiated"},
    {"dateterm", "Date Terminated"},
    {"custom1", "Custom 1"},
    {"custom2", "Custom 2"},
};

constexpr DefaultName issueNames[] = {
    {"issuecat", "Category"},
    {"custom1", "Custom 1"},
    {"custom2", "Custom 2"},
};

QString withColon(const QString &name, bool addColon)
{
    return addColon && !name.endsWith(u':') ? QString(name % u':') : name;
}

QString nameIn(std::span<const DefaultName> names, const QString &field, bool addColon)
{
    for (const DefaultName &entry : names) {
        if (field.compare(QLatin1String(entry.field), Qt::CaseInsensitive) == 0)
            return withColon(QString::fromLatin1(entry.name), addColon);
    }
    return {};
}

QString fileOf(schema::Table table)
{
    return schema::table(table).dataFile();
}

} // namespace

QString clsCustomLabels::GetCurrentLabelName(const QString &tableName, const QString &field,
                                             bool addColon) const
{
    QString name;
    if (gDB.IsOpen())
        name = gDB.GetParamValue(clsDB::MakeCustomFieldParamName(tableName, field));
    if (name.isEmpty())
        name = GetDefaultLabelName(tableName, field);
    return name.isEmpty() ? name : withColon(name, addColon);
}

QString clsCustomLabels::GetCustomerLabelName(const QString &field, bool addColon) const
{
    return GetCurrentLabelName(fileOf(schema::Table::Customer), field, addColon);
}

QString clsCustomLabels::GetPSLabelName(const QString &field, bool addColon) const
{
    return GetCurrentLabelName(fileOf(schema::Table::Customer2PS), field, addColon);
}

QString clsCustomLabels::GetIssueLabelName(const QString &field, bool addColon) const
{
    return GetCurrentLabelName(fileOf(schema::Table::Issues), field, addColon);
}

QList<clsCustomLabels::MenuLabel> clsCustomLabels::MenuLabels() const
{
    const auto customer = [this](const char *field) {
        return GetCustomerLabelName(QLatin1String(field));
    };
    const auto subscription = [this](const char *field) {
        return GetPSLabelName(QLatin1String(field));
    };
    QList<MenuLabel> labels{
        {QStringLiteral("CATCUST"), u"Customer " % customer("custcat")},
        {QStringLiteral("CATSTATES"), customer("state")},
        {QStringLiteral("CATCOUNTRIES"), customer("country")},
        {QStringLiteral("CATICAT"), u"Issue " % GetIssueLabelName(QStringLiteral("issuecat"))},
        {QStringLiteral("CATCONT"), subscription("conttype")},
        {QStringLiteral("CATCONTDUR"), subscription("contdur")}};
    for (MenuLabel &label : labels)
        label.caption = ShortName(label.caption);
    return labels;
}

QString clsCustomLabels::ShortName(const QString &name)
{
    constexpr int RoomyLength = 40;
    return clsSystem::StrTruncate(name, RoomyLength);
}

QString clsCustomLabels::GetDefaultLabelName(const QString &tableName, const QString &field)
{
    if (tableName.compare(fileOf(schema::Table::Customer), Qt::CaseInsensitive) == 0)
        return GetCustomerDefaultLabelName(field);
    if (tableName.compare(fileOf(schema::Table::Customer2PS), Qt::CaseInsensitive) == 0)
        return GetPSDefaultLabelName(field);
    if (tableName.compare(fileOf(schema::Table::Issues), Qt::CaseInsensitive) == 0)
        return GetIssueDefaultLabelName(field);
    return {};
}

QString clsCustomLabels::GetCustomerDefaultLabelName(const QString &field, bool addColon)
{
    return nameIn(customerNames, field, addColon);
}

QString clsCustomLabels::GetPSDefaultLabelName(const QString &field, bool addColon)
{
    return nameIn(subscriptionNames, field, addColon);
}

QString clsCustomLabels::GetIssueDefaultLabelName(const QString &field, bool addColon)
{
    return nameIn(issueNames, field, addColon);
}
