// What the check of a folder found, as lines of text.
#pragma once

#include "ctl/Console.h"

namespace ctl
{

// Checks the folder and writes a line for each finding; Done when it is sound.
int reportCheck(const QString &dir, Console &console);
// Says so and answers false when the folder holds no database.
bool databaseIsThere(const QString &dir, Console &console);

} // namespace ctl
