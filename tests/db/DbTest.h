// What every test of the database core stands on: a machine and a person of its own, and a new
// database that gDB has open as the administrator.
#pragma once

#include "support/FakeHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TempDatabase.h"
#include "support/TempPreferences.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

class DbTest : public ::testing::Test
{
protected:
    FakeHost machine;
    ScriptedPrompts person;
    TempPreferences preferences;
    TempDatabase db;

    // Ten attempts then take a tenth of a second instead of ten seconds.
    static void hurry(clsDB &station) { norvane::engine::code4lockDelay(station.CBEngine(), 1); }

    // A collection for the record, as a form sets it up.
    static RecColl record(const QString &recType, qint32 rowid)
    {
        const schema::TableInfo &table = schema::table(tableOfRecordType(recType));
        return {gDB.TablePath(table.table), table.dataFile(), rowid, recType};
    }
};
