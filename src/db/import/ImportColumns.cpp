// The columns an import file may have, and where each one goes.
#include "db/import/clsImportData.h"
#include "db/LookupTypes.h"

namespace
{

clsImportColDef column(const char *name, const char *target, bool required = false,
                       int lookupType = 0)
{
    clsImportColDef def;
    def.name = QLatin1String(name);
    def.target = QLatin1String(target);
    def.required = required;
    def.lookupType = lookupType;
    return def;
}

} // namespace

clsImportColDefs customerImportColumns()
{
    return {
        column("CUSTOMERNUMBER", "custno"),
        column("SALUTATION", "salutation"),
        column("FIRSTNAME", "firstname"),
        column("LASTNAME", "lastname", true),
        column("COMPANY", "company", true),
        column("TITLE", "title"),
        column("ADDRESSLINE1", "address1"),
        column("ADDRESSLINE2", "address2"),
        column("CITY", "city"),
        column("STATE", "state", false, lookup_type::States),
        column("POSTALCODE", "postalcode"),
        column("COUNTRY", "country", false, lookup_type::Countries),
        column("CUSTOM1", "custom1"),
        column("CUSTOM2", "custom2"),
        column("WORKPHONE", "workphone"),
        column("HOMEPHONE", "homephone"),
        column("MOBILEPHONE", "mobilphone"),
        column("FAXPHONE", "faxphone"),
        column("EMAILDEFAULT", "emailname"),
        column("EMAILALTERNATE", "emailname2"),
        column("CATEGORY", "custcat", false, lookup_type::CustomerCategories),
        column("NOTES", "notes"),
    };
}

clsImportColDefs lookupImportColumns()
{
    clsImportColDef description = column("DESCRIPTION", "desc", true);
    description.blankAllowed = false;
    return {description};
}
