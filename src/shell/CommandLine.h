// What the program was asked on its command line, and the answers that need no display.
#pragma once

#include <QString>
#include <QStringList>

struct CommandLine {
    enum class Answer { None, Help, Version, WrongUse };

    Answer answer = Answer::None; // given without a display
    QString wrong;                // the option that is not known
    bool tour = false;
    QString tourFolder; // where the tour's pictures go
    QString folder;     // of the tour's database; empty: a temporary one
    QString language;   // of the texts, such as "de"; empty: the system's
};

// Takes "--language CODE" out of the arguments and gives the code: empty without the option, null
// when the code is missing.
QString takeLanguage(QStringList &arguments);

// The arguments do not hold the program's name.
CommandLine readCommandLine(const QStringList &arguments);
// Writes help, version or the complaint; gives the exit code.
int answerWithoutDisplay(const CommandLine &command);
// The tour goes without a display. False, after a message, when the program cannot.
bool findDisplay(const CommandLine &command, const QStringList &arguments);
QString versionText(); // "1.0.0"
