#include "ctl/Console.h"

#include "common/base/Prompts.h"

#include <QByteArray>

#include <cstdio>
#include <iostream>
#include <string>

#ifndef _WIN32
#include <termios.h>
#include <unistd.h>
#endif

namespace ctl
{

namespace
{

#ifndef _WIN32
// Typed passwords do not show. Nothing changes when standard input is no terminal.
class EchoOff
{
public:
    EchoOff()
    {
        m_terminal = isatty(STDIN_FILENO) != 0 && tcgetattr(STDIN_FILENO, &m_before) == 0;
        if (!m_terminal)
            return;
        std::fputs("Password: ", stderr);
        termios quiet = m_before;
        quiet.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        tcsetattr(STDIN_FILENO, TCSANOW, &quiet);
    }
    ~EchoOff()
    {
        if (!m_terminal)
            return;
        tcsetattr(STDIN_FILENO, TCSANOW, &m_before);
        std::fputs("\n", stderr);
    }
    EchoOff(const EchoOff &) = delete;
    EchoOff &operator=(const EchoOff &) = delete;

private:
    termios m_before{};
    bool m_terminal = false;
};
#else
struct EchoOff {
};
#endif

} // namespace

QString readPassword()
{
    if (qEnvironmentVariableIsSet("NORVANE_PASSWORD"))
        return qEnvironmentVariable("NORVANE_PASSWORD");
    [[maybe_unused]] const EchoOff quiet;
    std::string line;
    std::getline(std::cin, line);
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    return QString::fromLocal8Bit(line.c_str());
}

namespace
{

// A lone CR would send a terminal back over what it has just written.
QString asLines(QString text)
{
    return text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
}

} // namespace

struct MessagesToConsole::Saved {
    decltype(prompts::Backend::message) message;
    decltype(prompts::Backend::text) text;
};

MessagesToConsole::MessagesToConsole(Console &console)
    : m_saved(std::make_unique<Saved>(Saved{prompts::backend().message, prompts::backend().text}))
{
    prompts::backend().message = [&console](const prompts::Message &message) {
        console.err << asLines(message.text) << '\n';
        return message.preset;
    };
    prompts::backend().text = [&console](const prompts::Message &message) {
        console.err << asLines(message.text) << '\n';
    };
}

MessagesToConsole::~MessagesToConsole()
{
    prompts::backend().message = m_saved->message;
    prompts::backend().text = m_saved->text;
}

} // namespace ctl
