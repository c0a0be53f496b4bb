// What each renameable field is called in the open database: the name that its users gave it, else
// the name it came with. Names are read from the parameters whenever they are asked for.
#pragma once

#include <QList>
#include <QString>

class clsCustomLabels
{
public:
    // The name in force; with addColon it ends in exactly the colon it has or gets. Tables are
    // given by file name. A field without a name of either kind gives empty text.
    QString GetCurrentLabelName(const QString &tableName, const QString &field,
                                bool addColon = false) const;
    QString GetCustomerLabelName(const QString &field, bool addColon = false) const;
    QString GetPSLabelName(const QString &field, bool addColon = false) const;
    QString GetIssueLabelName(const QString &field, bool addColon = false) const;

    // What the commands that edit renameable lists are called: plain text, shortened when it is
    // very long. Keys are those of the toolbar's items, such as "CATCUST".
    struct MenuLabel {
        QString key, caption;
    };
    QList<MenuLabel> MenuLabels() const;
    // A name for a place with little room: a longer one ends in "...".
    static QString ShortName(const QString &name);

    static QString GetDefaultLabelName(const QString &tableName, const QString &field);
    static QString GetCustomerDefaultLabelName(const QString &field, bool addColon = false);
    static QString GetPSDefaultLabelName(const QString &field, bool addColon = false);
    static QString GetIssueDefaultLabelName(const QString &field, bool addColon = false);
};

extern clsCustomLabels CustomLabels;
