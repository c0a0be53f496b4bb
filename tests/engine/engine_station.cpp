// A workstation without a screen for tests: reads commands of the engine's face from standard
// input, one a line, and answers each with one line.
//
//   open PATH           handle          close               code
//   exclusive 0|1       ok              attempts N DELAY    ok
//   tag NAME            ok or none      seek TEXT           code
//   id NUMBER           code            top | skip N        code
//   recno | count       number          get FIELD           text
//   memo FIELD          text            set FIELD TEXT      ok or the error
//   setmemo FIELD TEXT  ok or the error lock N | unlock     code
//   flush | delete      code            begin | append      code
//   make people|counter PATH  ok          check PATH      sound, or the findings
//   ids PATH N          the first and last of N numbers taken from a counter table
//   numbers PATH N      all of them
//   ack PATH SEED       people one after the other for ever, a line "ID NAME" each when it is saved
//   churn PATH SEED N   N random inserts, updates and deletes in a table of people
//   push N SEED         N people come in between the others of the open table and go again: ok
//   watch N             a walk along the names of the open table finds people 1 to N, each once: ok
#include "engine/Churn.h"
#include "engine/TableFixture.h"

#include <algorithm>
#include <iostream>
#include <sstream>

using namespace norvane::engine;
using namespace enginetest;

namespace
{

struct Workstation {
    TestSession session{100, 10};
    Handle table = 0;
};

std::string rest(std::istringstream &line)
{
    std::string value;
    std::getline(line >> std::ws, value);
    return value;
}

std::string afterWrite(Workstation &own)
{
    const std::vector<Error> errors = own.session.takeErrors();
    return errors.empty() ? "ok" : errors.back().detail;
}

std::string useTable(Workstation &own, const std::string &verb, std::istringstream &line)
{
    if (verb == "open")
        return std::to_string(own.table = d4open(own.session, rest(line)));
    if (verb == "close")
        return std::to_string(d4close(own.table));
    if (verb == "tag") {
        const Handle tag = d4tag(own.table, rest(line));
        d4tagSelect(own.table, tag);
        return tag ? "ok" : "none";
    }
    if (verb == "seek")
        return std::to_string(d4seek(own.table, rest(line)));
    if (verb == "id")
        return std::to_string(d4seekDouble(own.table, std::stod(rest(line))));
    if (verb == "top")
        return std::to_string(d4top(own.table));
    if (verb == "skip")
        return std::to_string(d4skip(own.table, std::stoi(rest(line))));
    if (verb == "recno")
        return std::to_string(d4recNo(own.table));
    if (verb == "count")
        return std::to_string(d4recCountDo(own.table));
    if (verb == "get")
        return text(own.table, rest(line));
    if (verb == "memo")
        return memo(own.table, rest(line));
    return {};
}

std::string changeTable(Workstation &own, const std::string &verb, std::istringstream &line)
{
    std::string field;
    if (verb == "set") {
        line >> field;
        assign(own.table, field, rest(line));
        return afterWrite(own);
    }
    if (verb == "setmemo") {
        line >> field;
        assignMemo(own.table, field, rest(line));
        return afterWrite(own);
    }
    if (verb == "lock")
        return std::to_string(
            d4lock(own.table, static_cast<std::uint32_t>(std::stoul(rest(line)))));
    if (verb == "unlock")
        return std::to_string(d4unlock(own.table));
    if (verb == "flush")
        return std::to_string(d4flush(own.table));
    if (verb == "delete")
        return std::to_string(d4delete(own.table));
    if (verb == "begin")
        return std::to_string(d4appendStartVB(own.table, 0) + d4blank(own.table));
    if (verb == "append")
        return std::to_string(d4append(own.table));
    return {};
}

std::string setUp(Workstation &own, const std::string &verb, std::istringstream &line)
{
    if (verb == "exclusive") {
        code4accessMode(own.session, std::stoi(rest(line)));
        return "ok";
    }
    int first = 0;
    int second = 0;
    std::string path;
    if (verb == "attempts") {
        line >> first >> second;
        code4lockAttempts(own.session, first);
        code4lockDelay(own.session, second);
        return "ok";
    }
    if (verb == "make") {
        line >> path;
        makeTable(rest(line), path == "people" ? peopleTable() : counterTable());
        return "ok";
    }
    if (verb == "check") {
        path = findings(rest(line));
        std::replace(path.begin(), path.end(), '\n', ';');
        return path.empty() ? "sound" : path;
    }
    if (verb == "ids" || verb == "numbers") {
        line >> path >> first;
        return takeIds(own.session, path, first, verb == "numbers");
    }
    if (verb == "ack") {
        line >> path >> first;
        return saveAndTell(own.session, path, first);
    }
    if (verb == "churn") {
        line >> path >> first >> second;
        return churn(own.session, path, first, second);
    }
    if (verb == "push") {
        line >> first >> second;
        return pushBetween(own.table, first, second);
    }
    if (verb == "watch") {
        const std::string seen = watchFixed(own.table, std::stoi(rest(line)));
        return seen == "ok" ? seen : seen + "; " + afterWrite(own);
    }
    return {};
}

std::string obey(Workstation &own, const std::string &command)
{
    std::istringstream line(command);
    std::string verb;
    line >> verb;
    for (const auto &part : {setUp, useTable, changeTable}) {
        const std::string answer = part(own, verb, line);
        if (!answer.empty())
            return answer;
    }
    return "?";
}

} // namespace

int main()
{
    Workstation own;
    std::string command;
    while (std::getline(std::cin, command))
        std::cout << obey(own, command) << std::endl;
    return 0;
}
