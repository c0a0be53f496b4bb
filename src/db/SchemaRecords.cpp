#include "db/Schema.h"

namespace schema
{

namespace
{

using Fields = std::vector<RecordField>;

constexpr RecordField text(const char *name)
{
    return {name, FieldKind::Text};
}

constexpr RecordField date(const char *name)
{
    return {name, FieldKind::Date};
}

constexpr RecordField id(const char *name)
{
    return {name, FieldKind::Integer};
}

constexpr RecordField memo(const char *name)
{
    return {name, FieldKind::Memo};
}

const Fields &customerFields()
{
    static const Fields fields{
        text("custno"),   text("firstname"),  text("lastname"),   text("company"),
        id("custcat"),    text("salutation"), text("title"),      text("address1"),
        text("address2"), text("city"),       id("state"),        text("postalcode"),
        id("country"),    text("workphone"),  text("homephone"),  text("mobilphone"),
        text("faxphone"), text("emailname"),  text("emailname2"), memo("notes"),
        memo("contacts"), text("custom1"),    text("custom2")};
    return fields;
}

const Fields &subscriptionFields()
{
    static const Fields fields{id("custid"),     id("psid"),      text("shortdesc"),
                               text("custom1"),  text("custom2"), date("dateinit"),
                               date("dateterm"), text("contno"),  text("trackno"),
                               id("conttype"),   id("contdur"),   memo("notes")};
    return fields;
}

const Fields &issueFields()
{
    static const Fields fields{id("custid"),     id("psid"),         text("shortdesc"),
                               text("custom1"),  text("custom2"),    id("assignedto"),
                               id("priority"),   id("status"),       id("issuecat"),
                               date("submitdt"), date("responsedt"), date("resolvedt"),
                               memo("desc"),     memo("resolution")};
    return fields;
}

Fields templateFields(bool reading)
{
    Fields fields{id("psid"),       text("shortdesc"), text("custom1"), text("custom2"),
                  id("assignedto"), id("priority"),    id("status"),    id("issuecat"),
                  memo("desc"),     memo("resolution")};
    // The name is edited in the list of templates, never in the record form.
    if (reading)
        fields.push_back(text("name"));
    return fields;
}

RecordType userInfo()
{
    return {"_userinfo",
            {text("login"), text("firstname"), text("lastname"), text("dept"), text("useractive"),
             text("usertype"), text("perm"), memo("note")},
            {text("login"), text("password"), text("useractive"), text("usertype"), text("perm"),
             text("firstname"), text("lastname"), text("dept"), memo("note")},
            true};
}

RecordType issueAction()
{
    return {"_issueaction",
            {id("issueid"),
             date("date"),
             id("action"),
             id("perfby"),
             text("desc"),
             {"duration", FieldKind::Number},
             memo("notes")},
            {},
            false};
}

RecordType reportDefinition()
{
    const Fields fields{text("title"), text("type"), memo("def"), memo("notes")};
    return {"_rptdef", fields, fields, true};
}

RecordType lastEdit()
{
    return {"_lastedit",
            {},
            {id("lastmodby"), date("lastmoddt"), {"lastmodtm", FieldKind::Time}},
            false};
}

const std::vector<RecordType> &recordTypes()
{
    // "_setpwd" and "_lockinfo" work out what they write.
    static const std::vector<RecordType> types{
        userInfo(),
        {"_setpwd", {}, {}, true},
        {"_lockinfo", {}, {id("underedit"), text("edtstation")}, false},
        {"_newcustomer", {text("firstname"), text("lastname"), text("company")}, {}, true},
        {"_customer", customerFields(), customerFields(), true},
        {"_ps", subscriptionFields(), subscriptionFields(), true},
        {"_issue", issueFields(), issueFields(), true},
        {"_issuetemplate", templateFields(false), templateFields(true), true},
        reportDefinition(),
        issueAction(),
        lastEdit(),
    };
    return types;
}

} // namespace

const RecordType *recordType(const QString &code)
{
    for (const RecordType &type : recordTypes()) {
        if (code == QLatin1String(type.code))
            return &type;
    }
    return nullptr;
}

} // namespace schema
