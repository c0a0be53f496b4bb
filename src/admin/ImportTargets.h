// What the import wizard offers, under the names that the database gives its fields, and what a
// file for each of them has to look like.
#pragma once

#include <QList>
#include <QString>
#include <QVariant>

struct ImportTarget {
    QString text;
    QVariant code; // "MAIN_NEWCUSTOMER", or the type code of a lookup list

    // As ImportRun counts targets.
    qint32 number() const;
};

QList<ImportTarget> importTargets();
QString importFormatHelp(const ImportTarget &target);
