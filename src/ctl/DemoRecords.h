// The working life of the demonstration database: users, what customers hold, what they raised and
// what was done about it. The same on every run of a day; dates count back from today.
#pragma once

#include "ctl/Console.h"

class clsDB;

namespace ctl
{

// Behind the customers and lists, through the saves that the windows use. Says how many of each
// there are; false when something could not be read or stored, which was said.
bool addDemoRecords(clsDB &db, const QString &folder, Console &console);

} // namespace ctl
