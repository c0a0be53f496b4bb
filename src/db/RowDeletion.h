// Many rows deleted in one save, for those who delete lots of them.
#pragma once

#include "db/clsDB.h"

#include <QList>

// Deletes the rows that the keys lead to in the tag, those that can be had at once. Rows that other
// stations hold stay, and so do all when the save fails: whoever asks for each of them by itself
// afterwards finds nothing, or waits for the row and tells what is wrong.
void deleteTogether(clsDB &db, clsDB::Handle table, const QString &tag, const QList<qint32> &keys);
