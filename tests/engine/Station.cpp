#include "engine/Station.h"
#include "TestPlaces.h"

#include <cerrno>
#include <csignal>
#include <stdexcept>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char **environ;

namespace enginetest
{

std::string Station::program()
{
    return NORVANE_BINARY_DIR "/bin/engine_station";
}

Station::Station() : Station(std::vector<std::string>{program()}) {}

Station::Station(std::vector<std::string> command)
{
    std::signal(SIGPIPE, SIG_IGN); // a station that died shows in its missing answer
    int to[2] = {-1, -1};
    int from[2] = {-1, -1};
    if (pipe2(to, O_CLOEXEC) != 0 || pipe2(from, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipes for a station");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, to[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, from[1], STDOUT_FILENO);
    std::vector<char *> arguments;
    arguments.reserve(command.size() + 1);
    for (std::string &word : command)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    const int failed =
        posix_spawnp(&m_process, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    ::close(to[0]);
    ::close(from[1]);
    m_in = to[1];
    m_out = from[0];
    if (failed != 0)
        throw std::runtime_error("no station at " + command.front());
}

Station::~Station()
{
    ::close(m_in); // the end of its input ends it
    ::close(m_out);
    if (m_process > 0)
        ::waitpid(m_process, nullptr, 0);
}

std::string Station::ask(std::string_view command)
{
    tell(command);
    return answer();
}

void Station::tell(std::string_view command)
{
    const std::string line = std::string(command) + '\n';
    if (::write(m_in, line.data(), line.size()) != static_cast<ssize_t>(line.size()))
        throw std::runtime_error("the station is gone");
}

std::string Station::answer()
{
    std::string line;
    for (char c = 0; c != '\n';) {
        const ssize_t n = ::read(m_out, &c, 1);
        if (n == 1 && c != '\n')
            line.push_back(c);
        else if (n == 0 || (n < 0 && errno != EINTR))
            return line + "(gone)";
    }
    return line;
}

std::vector<std::string> Station::lastWords()
{
    std::string all;
    char buffer[4096];
    for (ssize_t n = 0; (n = ::read(m_out, buffer, sizeof buffer)) != 0;) {
        if (n > 0)
            all.append(buffer, static_cast<std::size_t>(n));
        else if (errno != EINTR)
            break;
    }
    std::vector<std::string> lines;
    for (std::size_t at = 0, end = 0; (end = all.find('\n', at)) != std::string::npos; at = end + 1)
        lines.push_back(all.substr(at, end - at));
    return lines;
}

void Station::kill()
{
    ::kill(m_process, SIGKILL);
    ::waitpid(m_process, nullptr, 0);
    m_process = -1;
}

} // namespace enginetest
