// norvanectl as a whole: finds the command, shows help, runs it.
#pragma once

#include "ctl/Command.h"

namespace ctl
{

QList<Command> commands();

// `words` without the name of the program. Gives the exit code.
int runProgram(const QStringList &words, Console &console);

} // namespace ctl
