#include "Exercise.h"

#include <cstdio>
#include <cstdlib>

namespace norvane::fuzz
{

namespace
{

constexpr int kMostRows = 300;  // read in full
constexpr int kMostMemos = 100; // a text may be as long as the input
constexpr int kMostSteps = 60;  // along each tag

std::size_t sumOf(const char *bytes, std::size_t length)
{
    std::size_t sum = 0;
    for (std::size_t i = 0; i < length; ++i)
        sum += static_cast<unsigned char>(bytes[i]);
    return sum;
}

// Touches every byte and gives something of it, so that nothing is left out.
std::size_t readFields(Handle table, int &memos)
{
    std::size_t sum = d4deleted(table) ? 1 : 0;
    for (int i = 1; i <= d4numFields(table); ++i) {
        const Handle field = d4fieldAt(table, i);
        sum += sumOf(f4ptr(field), f4len_v(field));
        sum += static_cast<std::size_t>(f4long(field)) + (f4double(field) > 0 ? 1 : 0);
        sum +=
            static_cast<std::size_t>(f4decimals(field)) + static_cast<std::size_t>(*f4name(field));
        if (f4type(field) != 'M' || ++memos > kMostMemos)
            continue;
        const std::uint32_t length = f4memoLenVB(field);
        if (const char *text = f4memoPtr(field))
            sum += sumOf(text, length);
    }
    return sum;
}

void walk(Handle table, Code first, std::int32_t step, int most, bool reading)
{
    static volatile std::size_t seen = 0;
    int memos = 0;
    Code code = first;
    for (; code == r4success && most > 0; --most) {
        if (reading)
            seen = seen + readFields(table, memos);
        code = d4skip(table, step);
    }
}

void fillField(Handle field, int value)
{
    const std::string text = f4type(field) == 'D' ? "20040229" : "Text " + std::to_string(value);
    const auto length = static_cast<std::uint32_t>(text.size());
    switch (f4type(field)) {
    case 'N':
    case 'F':
    case 'I':
        f4assignDouble(field, value % 10);
        break;
    case 'M':
        f4memoAssignN(field, text, length);
        break;
    case 'L':
        f4assignNVB(field, "T", 1);
        break;
    default:
        f4assignNVB(field, text, length);
    }
}

void fillRow(Handle table, int value)
{
    for (int i = 1; i <= d4numFields(table); ++i)
        fillField(d4fieldAt(table, i), value + i);
}

} // namespace

FuzzSession::FuzzSession(SmallDisk &disk) : m_session(d4init_v(&disk))
{
    code4lockAttempts(m_session, 1);
    code4errTagName(m_session, 0);
}

void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

void requireSound(Handle table, const char *what)
{
    const std::vector<std::string> findings = d4check(table);
    for (const std::string &finding : findings)
        std::fprintf(stderr, "%s\n", finding.c_str());
    require(findings.empty(), what);
}

void readRows(Handle table)
{
    d4tagSelect(table, 0);
    walk(table, d4top(table), 1, kMostRows, true);
    walk(table, d4bottom(table), -1, kMostRows / 10, true);
    d4go(table, d4recCountDo(table) + 1);
    d4go(table, UINT32_MAX);
}

void walkTags(Handle table)
{
    for (const std::string &name : d4tagNames(table)) {
        d4tagSelect(table, d4tag(table, name));
        walk(table, d4top(table), 1, kMostSteps, false);
        walk(table, d4bottom(table), -1, kMostSteps, false);
        d4seek(table, "");
        d4seek(table, "NAME 5");
        d4seekNext(table, "NAME 5");
        d4seek(table, "20040315");
        d4seekDouble(table, 49);
        d4seekNextDouble(table, 49);
        walk(table, d4seekDouble(table, -1e300), 1, 3, false);
    }
    d4tagSelect(table, 0);
}

void changeRows(Handle table)
{
    const bool sound = d4check(table).empty();
    const std::uint32_t before = d4recCountDo(table);
    d4appendStartVB(table, 0);
    d4blank(table);
    fillRow(table, 3);
    const bool appended = d4append(table) == r4success && d4unlock(table) == r4success;
    if (!appended)
        d4discard(table);
    d4unlock(table);
    if (d4go(table, before / 2 + 1) == r4success && d4lock(table, d4recNo(table)) == r4success) {
        fillRow(table, 8);
        if (d4flush(table) != r4success)
            d4discard(table);
        d4unlock(table);
    }
    if (d4go(table, 1) == r4success && d4lock(table, 1) == r4success) {
        d4delete(table);
        if (d4flush(table) != r4success)
            d4discard(table);
        d4unlock(table);
    }
    require(!appended || d4recCountDo(table) == before + 1, "an appended row is not counted");
    if (!sound)
        return;
    requireSound(table, "a sound table is not sound after saves");
}

} // namespace norvane::fuzz
