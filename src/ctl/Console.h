// What a command speaks through: two streams of UTF-8 text and the password, and what its exit
// code means.
#pragma once

#include <QString>
#include <QTextStream>

#include <functional>
#include <memory>

namespace ctl
{

enum ExitCode { Done = 0, Problem = 1, WrongUse = 2 };

struct Console {
    QTextStream &out;
    QTextStream &err;
    // Asked once by commands that log in; empty when none was given.
    std::function<QString()> password;
};

// The password of NORVANE_PASSWORD, or else the first line of standard input.
QString readPassword();

// While it lives, what the database core would show in boxes goes to the console's error stream;
// questions get their default answer.
class MessagesToConsole
{
public:
    explicit MessagesToConsole(Console &console);
    ~MessagesToConsole();
    MessagesToConsole(const MessagesToConsole &) = delete;
    MessagesToConsole &operator=(const MessagesToConsole &) = delete;

private:
    struct Saved;
    std::unique_ptr<Saved> m_saved;
};

} // namespace ctl
