// Reading with the tables open: the counterpart of SqliteStore's queries.
#include "db/search/WordMatcher.h"
#include "EngineStore.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string>
#include <vector>

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

// Whether texts hold a word, as the program looks for it.
class Search
{
public:
    explicit Search(std::string_view word)
        : m_words(QString::fromLatin1(word.data(), static_cast<qsizetype>(word.size())),
                  AnyOfTheWords)
    {
    }

    bool in(std::string_view text) const { return m_words.matches(text); }
    bool inMemo(Handle field) const
    {
        const char *text = f4memoPtr(field);
        if (text == nullptr)
            throw std::runtime_error("a memo could not be read");
        return in({text, f4memoLenVB(field)});
    }

private:
    WordMatcher m_words;
};

// Names by number. The numbers of a table lie close together, as a counter gives them out.
class Names
{
public:
    Names(Handle table, const char *field) : m_table(table), m_name(d4field(table, field)) {}

    void want(int id)
    {
        const auto place = static_cast<std::size_t>(id);
        if (place >= m_known.size())
            m_known.resize(2 * place + 1);
        m_wanted += m_known[place].wanted ? 0U : 1U;
        m_known[place].wanted = true;
    }
    // Finds the names that are wanted. Many of them are found soonest in one pass over the table,
    // few by seeking each.
    void learn()
    {
        if (m_wanted >= d4recCountDo(m_table) / kSeekCost)
            pass();
        else
            seekEach();
    }
    const std::string &of(int id) const { return m_known[static_cast<std::size_t>(id)].text; }

private:
    static constexpr std::size_t kSeekCost = 16; // rows passed in the time of a seek
    struct Name {
        bool wanted = false;
        std::string text;
    };

    void pass()
    {
        const Handle rowId = d4field(m_table, "rowid");
        d4tagSelect(m_table, 0);
        for (Code code = d4top(m_table); code == r4success; code = d4skip(m_table, 1)) {
            const auto id = static_cast<std::size_t>(f4long(rowId));
            if (id < m_known.size() && m_known[id].wanted && !d4deleted(m_table))
                m_known[id].text = trimmedText(m_name);
        }
    }
    void seekEach()
    {
        d4tagSelect(m_table, d4tag(m_table, "rowid"));
        for (std::size_t id = 0; id < m_known.size(); ++id) {
            if (m_known[id].wanted && d4seekDouble(m_table, static_cast<double>(id)) == r4success)
                m_known[id].text = trimmedText(m_name);
        }
    }

    Handle m_table;
    Handle m_name;
    std::size_t m_wanted = 0;
    std::vector<Name> m_known;
};

// The places of texts in the order of the texts. Their first bytes lie together, so that hardly
// any text has to be looked at.
std::vector<std::uint32_t> sortedPlaces(const std::vector<std::string> &texts)
{
    struct Item {
        std::uint64_t start;
        std::uint32_t place;
    };
    std::vector<Item> items(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        std::uint64_t start = 0;
        for (std::size_t b = 0; b < sizeof start; ++b)
            start =
                start << 8 | (b < texts[i].size() ? static_cast<unsigned char>(texts[i][b]) : 0);
        items[i] = {start, static_cast<std::uint32_t>(i)};
    }
    std::sort(items.begin(), items.end(), [&texts](const Item &a, const Item &b) {
        if (a.start != b.start)
            return a.start < b.start;
        const int order = texts[a.place].compare(texts[b.place]);
        return order != 0 ? order < 0 : a.place < b.place;
    });
    std::vector<std::uint32_t> places;
    places.reserve(items.size());
    for (const Item &item : items)
        places.push_back(item.place);
    return places;
}

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
    struct Line {
        int customer;
        int user;
        Row row;
    };
    std::vector<Line> lines;
    std::vector<std::string> sortedBy;
    issues.select("status");
    for (bool more = issues.seek(status); more && f4long(m_opened->status) == status;
         more = d4skip(issues.table(), 1) == r4success) {
        std::string text = trimmedText(m_opened->shortDesc);
        sortedBy.push_back(uppercase(text));
        lines.push_back({f4long(m_opened->custId),
                         f4long(assignedTo),
                         {std::to_string(f4long(rowId)),
                          {},
                          std::move(text),
                          {},
                          {},
                          std::to_string(f4long(priority)),
                          std::string(bytesOf(m_opened->submitted)),
                          std::string(bytesOf(resolved))}});
        companies.want(lines.back().customer);
        logins.want(lines.back().user);
    }
    statuses.want(status);
    companies.learn();
    logins.learn();
    statuses.learn();
    std::vector<Row> sorted;
    sorted.reserve(lines.size());
    for (const std::uint32_t place : sortedPlaces(sortedBy)) {
        Line &line = lines[place];
        line.row[1] = companies.of(line.customer);
        line.row[3] = logins.of(line.user);
        line.row[4] = statuses.of(status);
        sorted.push_back(std::move(line.row));
    }
    return sorted;
}

} // namespace bench
