// The way to the maintenance of the open database's files.
#pragma once

#include "db/clsDBFile.h"

#include <QList>

class QWidget;

class clsDBUtil
{
public:
    // Modal over the owner; a message when no database is open. No other window of ours may be
    // open then.
    static void DlgDBMaintenance(QWidget *owner, const QList<clsDBFile> &files);
};
