// A second workstation in a process of its own: engine_station, driven over two pipes. Commands
// are those of engine_station.cpp, one a line; each is answered by one line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

namespace enginetest
{

class Station
{
public:
    Station();
    // Another program, or the same one through others: words of its command line.
    explicit Station(std::vector<std::string> command);
    ~Station(); // ends the process
    Station(const Station &) = delete;
    Station &operator=(const Station &) = delete;

    std::string ask(std::string_view command);
    // For commands that take their time: the answer comes with answer().
    void tell(std::string_view command);
    std::string answer();
    void kill(); // as a crash would
    // What it still wrote before it was killed, line by line.
    std::vector<std::string> lastWords();
    pid_t process() const { return m_process; }
    int output() const { return m_out; } // the end to read from; ours

    static std::string program(); // engine_station, where it was built

private:
    pid_t m_process = -1;
    int m_in = -1;  // we write
    int m_out = -1; // we read
};

} // namespace enginetest
