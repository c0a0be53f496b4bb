#include "db/clsCustomLabels.h"

#include "common/base/clsSystem.h"
#include "db/clsDB.h"

#include <QCoreApplication>

#include <span>

clsCustomLabels CustomLabels;

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(clsCustomLabels)
};

struct DefaultName {
    const char *field;
    const char *name;
};

constexpr DefaultName customerNames[] = {
    {"custno", QT_TRANSLATE_NOOP("clsCustomLabels", "Customer Number")},
    {"firstname", QT_TRANSLATE_NOOP("clsCustomLabels", "First Name")},
    {"lastname", QT_TRANSLATE_NOOP("clsCustomLabels", "Last Name")},
    {"company", QT_TRANSLATE_NOOP("clsCustomLabels", "Company")},
    {"custcat", QT_TRANSLATE_NOOP("clsCustomLabels", "Category")},
    {"title", QT_TRANSLATE_NOOP("clsCustomLabels", "Title")},
    {"address1", QT_TRANSLATE_NOOP("clsCustomLabels", "Address (line 1)")},
    {"address2", QT_TRANSLATE_NOOP("clsCustomLabels", "Address (line 2)")},
    {"city", QT_TRANSLATE_NOOP("clsCustomLabels", "City")},
    {"state", QT_TRANSLATE_NOOP("clsCustomLabels", "State")},
    {"postalcode", QT_TRANSLATE_NOOP("clsCustomLabels", "Postal Code")},
    {"country", QT_TRANSLATE_NOOP("clsCustomLabels", "Country")},
    {"workphone", QT_TRANSLATE_NOOP("clsCustomLabels", "Work Phone")},
    {"homephone", QT_TRANSLATE_NOOP("clsCustomLabels", "Home Phone")},
    {"mobilphone", QT_TRANSLATE_NOOP("clsCustomLabels", "Mobile Phone")},
    {"faxphone", QT_TRANSLATE_NOOP("clsCustomLabels", "Fax Phone")},
    {"emailname", QT_TRANSLATE_NOOP("clsCustomLabels", "Default Email")},
    {"emailname2", QT_TRANSLATE_NOOP("clsCustomLabels", "Alternate Email")},
    {"custom1", QT_TRANSLATE_NOOP("clsCustomLabels", "Custom 1")},
    {"custom2", QT_TRANSLATE_NOOP("clsCustomLabels", "Custom 2")},
};

constexpr DefaultName subscriptionNames[] = {
    {"shortdesc", QT_TRANSLATE_NOOP("clsCustomLabels", "Short Description")},
    {"contno", QT_TRANSLATE_NOOP("clsCustomLabels", "Contract or Part Number")},
    {"trackno", QT_TRANSLATE_NOOP("clsCustomLabels", "Tracking Number:")},
    {"conttype", QT_TRANSLATE_NOOP("clsCustomLabels", "Contract Type")},
    {"contdur", QT_TRANSLATE_NOOP("clsCustomLabels", "Contract Duration")},
    {"dateinit", QT_TRANSLATE_NOOP("clsCustomLabels", "Date Initiated")},
    {"dateterm", QT_TRANSLATE_NOOP("clsCustomLabels", "Date Terminated")},
    {"custom1", QT_TRANSLATE_NOOP("clsCustomLabels", "Custom 1")},
    {"custom2", QT_TRANSLATE_NOOP("clsCustomLabels", "Custom 2")},
};

constexpr DefaultName issueNames[] = {
    {"issuecat", QT_TRANSLATE_NOOP("clsCustomLabels", "Category")},
    {"custom1", QT_TRANSLATE_NOOP("clsCustomLabels", "Custom 1")},
    {"custom2", QT_TRANSLATE_NOOP("clsCustomLabels", "Custom 2")},
};

QString withColon(const QString &name, bool addColon)
{
    return addColon && !name.endsWith(u':') ? QString(name % u':') : name;
}

QString nameIn(std::span<const DefaultName> names, const QString &field, bool addColon)
{
    for (const DefaultName &entry : names) {
        if (field.compare(QLatin1String(entry.field), Qt::CaseInsensitive) == 0)
            return withColon(Words::tr(entry.name), addColon);
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
        {QStringLiteral("CATCUST"), Words::tr("Customer %1").arg(customer("custcat"))},
        {QStringLiteral("CATSTATES"), customer("state")},
        {QStringLiteral("CATCOUNTRIES"), customer("country")},
        {QStringLiteral("CATICAT"),
         Words::tr("Issue %1").arg(GetIssueLabelName(QStringLiteral("issuecat")))},
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
