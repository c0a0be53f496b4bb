// Reading with the tables open: the counterpart of SqliteStore's queries.
#include "EngineStore.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <unordered_map>

using namespace norvane::engine;

namespace bench
{

namespace
{

char upper(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

std::string uppercase(std::string_view text)
{
    std::string folded(text);
    std::transform(folded.begin(), folded.end(), folded.begin(), upper);
    return folded;
}

std::string_view bytesOf(Handle field)
{
    return {f4ptr(field), f4len_v(field)};
}

std::string trimmedText(Handle field)
{
    const std::string_view bytes = bytesOf(field);
    return std::string(bytes.substr(0, bytes.find_last_not_of(' ') + 1));
}

// Whether texts hold a word, without regard to case.
class Search
{
public:
    explicit Search(std::string_view word) : m_word(uppercase(word)) {}

    bool in(std::string_view text)
    {
        m_text.resize(text.size());
        std::transform(text.begin(), text.end(), m_text.begin(), upper);
        return memmem(m_text.data(), m_text.size(), m_word.data(), m_word.size()) != nullptr;
    }
    bool inMemo(Handle field)
    {
        const char *text = f4memoPtr(field);
        if (text == nullptr)
            throw std::runtime_error("a memo could not be read");
        return in({text, f4memoLenVB(field)});
    }

private:
    std::string m_word;
    std::string m_text;
};

// Names by number, each sought once.
class Names
{
public:
    Names(Handle table, const char *field) : m_table(table), m_name(d4field(table, field))
    {
        d4tagSelect(table, d4tag(table, "rowid"));
    }
    const std::string &of(int id)
    {
        const auto [place, isNew] = m_known.try_emplace(id);
        if (isNew && d4seekDouble(m_table, id) == r4success)
            place->second = trimmedText(m_name);
        return place->second;
    }

private:
    Handle m_table;
    Handle m_name;
    std::unordered_map<int, std::string> m_known;
};

} // namespace

struct EngineStore::Opened {
    explicit Opened(const EngineStore &store) : issues(store, schema::Table::Issues) {}

    // Calls `found` for each row, in the order that is selected from the current row on.
    template <class F>
    void forAll(F found) const
    {
        d4tagSelect(issues.table(), 0);
        for (Code code = d4top(issues.table()); code == r4success;
             code = d4skip(issues.table(), 1)) {
            if (!d4deleted(issues.table()))
                found();
        }
    }

    Use issues;
    Handle custId = issues.field("custid");
    Handle shortDesc = issues.field("shortdesc");
    Handle status = issues.field("status");
    Handle submitted = issues.field("submitdt");
    Handle desc = issues.field("desc");
    Handle resolution = issues.field("resolution");
};

void EngineStore::open()
{
    m_opened = std::make_shared<Opened>(*this);
}

void EngineStore::close()
{
    m_opened.reset();
}

long EngineStore::lookup(int rowId)
{
    const Use &issues = m_opened->issues;
    issues.select("rowid");
    if (!issues.seek(rowId))
        throw std::runtime_error("row not found");
    const std::string text = trimmedText(m_opened->shortDesc);
    return f4long(m_opened->custId) + static_cast<long>(text.size());
}

// Rows of the key in the tag, those submitted later left out.
long EngineStore::walk(const char *tag, int key, std::string_view upTo) const
{
    const Use &issues = m_opened->issues;
    const Handle keyField = issues.field(tag);
    const Handle rowId = issues.field("rowid");
    issues.select(tag);
    long rows = 0;
    long seen = 0;
    for (bool more = issues.seek(key); more && f4long(keyField) == key;
         more = d4skip(issues.table(), 1) == r4success) {
        if (bytesOf(m_opened->submitted) > upTo)
            continue;
        seen += f4long(rowId) + f4long(m_opened->custId);
        seen += static_cast<long>(trimmedText(m_opened->shortDesc).size());
        ++rows;
    }
    return seen > 0 ? rows : 0;
}

long EngineStore::walkStatus(int status, std::string_view upTo)
{
    return walk("status", status, upTo);
}

long EngineStore::walkAssignee(int user)
{
    return walk("assignedto", user, "99999999");
}

long EngineStore::walkCustomer(int custId)
{
    return walk("custid", custId, "99999999");
}

long EngineStore::containsShort(std::string_view word)
{
    Search search(word);
    long hits = 0;
    m_opened->forAll([&] { hits += search.in(bytesOf(m_opened->shortDesc)) ? 1 : 0; });
    return hits;
}

long EngineStore::containsMemo(std::string_view word)
{
    Search search(word);
    long hits = 0;
    m_opened->forAll([&] {
        const bool hit = search.inMemo(m_opened->desc) || search.inMemo(m_opened->resolution);
        hits += hit ? 1 : 0;
    });
    return hits;
}

std::vector<Store::Row> EngineStore::report(int status)
{
    const Use &issues = m_opened->issues;
    const Use customers(*this, schema::Table::Customer);
    const Use users(*this, schema::Table::User);
    const Use categories(*this, schema::Table::Category);
    Names companies(customers.table(), "company");
    Names logins(users.table(), "login");
    Names statuses(categories.table(), "desc");
    const Handle rowId = issues.field("rowid");
    const Handle assignedTo = issues.field("assignedto");
    const Handle priority = issues.field("priority");
    const Handle resolved = issues.field("resolvedt");
    std::vector<std::pair<std::string, Row>> rows;
    issues.select("status");
    for (bool more = issues.seek(status); more && f4long(m_opened->status) == status;
         more = d4skip(issues.table(), 1) == r4success) {
        Row row{std::to_string(f4long(rowId)),
                companies.of(f4long(m_opened->custId)),
                trimmedText(m_opened->shortDesc),
                logins.of(f4long(assignedTo)),
                statuses.of(status),
                std::to_string(f4long(priority)),
                std::string(bytesOf(m_opened->submitted)),
                std::string(bytesOf(resolved))};
        std::string key = uppercase(row[2]);
        rows.emplace_back(std::move(key), std::move(row));
    }
    std::stable_sort(rows.begin(), rows.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    std::vector<Row> sorted;
    sorted.reserve(rows.size());
    for (auto &[key, row] : rows)
        sorted.push_back(std::move(row));
    return sorted;
}

} // namespace bench
