// The lookup lists that users keep themselves, one list editor (frmEditCategories) for all of them.
#pragma once

#include "db/clsDB.h"

#include <optional>

class QWidget;

// One list as its editor shows it.
struct LookupList {
    QString caption; // of the window
    QString name;    // heads the list
    clsDB::ListTable table;
    // Where records refer to the entries; an entry found there cannot be deleted.
    struct UsedBy {
        QString path, field;
    };
    QList<UsedBy> usedBy;
    QString helpKey;
};

// The list with that type code in the open database; nothing when there is no such list.
std::optional<LookupList> lookupList(qint32 type);

// What every list-management command does: asks for the right and, when the user has it, shows the
// editor of that list modally over the window.
void editLookupList(qint32 type, QWidget *parent);
