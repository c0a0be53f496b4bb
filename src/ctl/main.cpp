#include "ctl/Program.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);
    ctl::Console console{out, err, ctl::readPassword};
    return ctl::runProgram(QCoreApplication::arguments().mid(1), console);
}
