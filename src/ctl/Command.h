// One command of norvanectl: how it is called, its help text, and what it does.
#pragma once

#include "ctl/Console.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

namespace ctl
{

struct Option {
    QString name;  // with its dashes
    QString value; // the word for its value in the help text; empty when it takes none
    QString help;
};

// The words of one call, sorted out.
struct Arguments {
    QStringList words;              // in the order of Command::words
    QHash<QString, QString> values; // options given, by name; empty text for one without a value

    bool has(const QString &option) const { return values.contains(option); }
};

struct Command {
    QString name;
    QStringList words; // what must be given, such as "DIR"; one in brackets may be left out
    QList<Option> options;
    QString summary; // one line
    QString details; // the rest of its help page
    std::function<int(const Arguments &, Console &)> run;

    QString usage() const; // "import DIR TARGET FILE [options]"
    QString helpPage() const;
};

// False, with the reason, when the words do not fit the command.
bool parseArguments(const Command &command, const QStringList &words, Arguments &arguments,
                    QString &error);

// "  a, b,\n  c": the items for a help page, indented, broken into lines.
QString wrappedList(const QStringList &items);

Command newCommand();
Command demoCommand();
Command bulkCommand();
Command importCommand();
Command dumpCommand();
Command reportCommand();
Command checkCommand();
Command repairCommand();
Command reindexCommand();

} // namespace ctl
