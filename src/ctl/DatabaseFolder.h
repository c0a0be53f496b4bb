// First look at the folder a command was given, in words a person can act on.
#pragma once

#include "ctl/Command.h"

class clsDB;

namespace ctl
{

QString shownPath(const QString &path);

// The folder is there. Otherwise says so and answers false.
bool folderIsThere(const QString &dir, Console &console);
// The same for a plain file that can be read.
bool fileIsReadable(const QString &path, Console &console);
// Makes the folder when it is not there; it must take new files.
bool prepareNewFolder(const QString &dir, Console &console);

Option userOption();
// Opens the folder, for writing, as the user of --user with the password of the console.
bool logIn(clsDB &db, const QString &dir, const Arguments &arguments, Console &console);

Option withoutLoginOption();
// The same for a folder that may be damaged, for a login with the right of administration; or
// without any login when --without-login is given and the table of users cannot be read.
bool logInForMaintenance(clsDB &db, const QString &dir, const Arguments &arguments,
                         Console &console);

} // namespace ctl
