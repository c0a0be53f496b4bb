// Words in texts, the rows a search finds, and the names shown for numbers.
#include "common/base/Ansi.h"
#include "db/search/IssueSearch.h"
#include "db/search/ShownNames.h"
#include "db/search/WordMatcher.h"
#include "support/FakeHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TempDatabase.h"

#include <gtest/gtest.h>

#include <QFile>

#include <algorithm>
#include <random>

using namespace norvane::engine;

namespace
{

bool matches(const QString &search, qint32 type, const QString &text)
{
    return WordMatcher(search, type).matches(toAnsi(text).toStdString());
}

struct Words {
    const char16_t *search;
    const char16_t *text;
    bool any;
    bool all;
};

class IssueSearching : public ::testing::Test
{
protected:
    struct Issue {
        qint32 rowid;
        qint32 psid;
        QString shortdesc, desc, resolution;
    };

    void add(qint32 psid, const QString &shortdesc, const QString &desc, const QString &resolution)
    {
        const qint32 rowid = database.addIssue({{"custid", 1000},
                                                {"psid", psid},
                                                {"shortdesc", shortdesc},
                                                {"desc", desc},
                                                {"resolution", resolution}});
        issues.push_back({rowid, psid, shortdesc, desc, resolution});
    }
    // The rowids found, sorted.
    QList<qint32> search(const IssueQuery &query)
    {
        const clsDB::MemoDamageCounted counted(gDB);
        const Handle table = gDB.OpenTable(gDB.IssuesTable());
        IssueSearch searching(table);
        QList<qint32> found;
        lookedAt = 0;
        ended = !searching.search(
            query, [&](const IssueHit &hit) { found.append(hit.rowid); },
            [&] { return ++lookedAt != endAfter; });
        unreadable = searching.unreadable();
        gDB.CloseTable(table);
        std::sort(found.begin(), found.end());
        return found;
    }
    // The same by looking at what was saved.
    QList<qint32> expected(const IssueQuery &query) const
    {
        QList<qint32> found;
        for (const Issue &issue : issues) {
            if (query.psid > 0 && issue.psid != query.psid)
                continue;
            bool hit = query.text.trimmed().isEmpty();
            hit = hit || (query.inShortDesc && has(issue.shortdesc, query));
            hit = hit || (query.inDesc && has(issue.desc, query));
            hit = hit || (query.inResolution && has(issue.resolution, query));
            if (hit)
                found.append(issue.rowid);
        }
        return found;
    }
    static bool has(const QString &text, const IssueQuery &query)
    {
        const QStringList words = query.text.trimmed().split(' ');
        const auto in = [&](const QString &word) {
            return text.contains(word, Qt::CaseInsensitive);
        };
        return query.type == AnyOfTheWords ? std::any_of(words.begin(), words.end(), in)
                                           : std::all_of(words.begin(), words.end(), in);
    }

    FakeHost machine;
    ScriptedPrompts person;
    TempDatabase database;
    std::vector<Issue> issues;
    int lookedAt = 0;
    int endAfter = -1;
    bool ended = false;
    qint32 unreadable = 0;
};

} // namespace

TEST(Words, StandAnywhereInATextInAnyCase)
{
    for (const Words &each : std::vector<Words>{
             {u"car", u"Red SCARF lost", true, true},
             {u" printer  ", u"the printer", true, true}, // blanks around do not count
             {u"red car", u"a red bus", true, false},
             {u"red car", u"scarred", true, true},
             {u"red  car", u"blue bus", true, false}, // two blanks: an empty word
             {u"red  car", u"scarred", true, true},
             {u"red  car", u"", true, false},
             {u"  ", u"anything", true, true},
             {u"STRAßE", u"straße 5", true, true},
             {u"strasse", u"straße", false, false},
             {u"ÉTÉ ÿ", u"été Ÿ", true, true},
             {u"µ", u"5 µm", true, true},
             {u"e\u0301t", u"ÉT", true, true}, // typed as base and accent
             {u"Ω", u"what ?", false, false},  // cannot be stored, and is no question mark
             {u"Ω bus", u"a bus", true, false},
             {u"a\tb", u"A\tB", true, true},
             {u"longer", u"long", false, false},
         }) {
        const QString search = QStringView(each.search).toString();
        const QString text = QStringView(each.text).toString();
        EXPECT_EQ(matches(search, AnyOfTheWords, text), each.any)
            << qPrintable(search + '|' + text);
        EXPECT_EQ(matches(search, AllOfTheWords, text), each.all)
            << qPrintable(search + '|' + text);
        EXPECT_TRUE(matches(search, 3, text)); // no such way to search
    }
}

TEST(Words, MayBeManyAndOfEveryCharacter)
{
    QStringList words;
    for (int number = 0; number < 10000; ++number)
        words.append(QStringLiteral("w%1x").arg(number, 0, 36));
    words.append("q");
    const QString search = words.join(' ');
    EXPECT_TRUE(matches(search, AnyOfTheWords, "... W7PRX ..."));
    EXPECT_TRUE(matches(search, AnyOfTheWords, "the Q"));
    EXPECT_FALSE(matches(search, AnyOfTheWords, "w7pr x"));
    const WordMatcher all(search, AllOfTheWords);
    EXPECT_TRUE(all.matches(words.join("").toUpper().toStdString()));
    EXPECT_TRUE(all.matches(words.join("").toUpper().toStdString()));
    words.removeAt(4711);
    EXPECT_FALSE(all.matches(words.join("").toUpper().toStdString()));

    QString everything;
    for (int code = 1; code < 256; ++code) {
        if (code != ' ')
            everything += fromAnsi(QByteArray(1, static_cast<char>(code))) + u' ';
    }
    const QString characters = QString(everything).remove(' ');
    for (const QChar c : characters) {
        EXPECT_TRUE(matches(everything, AnyOfTheWords, c)) << int(c.unicode());
        EXPECT_TRUE(matches(c, AllOfTheWords, everything)) << int(c.unicode());
    }
    EXPECT_TRUE(matches(everything, AllOfTheWords, everything));
    EXPECT_FALSE(matches(everything, AllOfTheWords, QString(everything).remove('~')));
}

TEST(Words, AreShownTrimmedAndInUpperCase)
{
    EXPECT_EQ(searchTextShown("  straße  été ω "), QStringLiteral(u"STRAßE  ÉTÉ ω"));
}

TEST_F(IssueSearching, FindsWhatAPlainScanFinds)
{
    std::mt19937 random(20040314);
    const auto below = [&](int limit) { return static_cast<int>(random() % limit); };
    const QStringList syllables{"pa", "Per", "jam", "É", "ß", "Tray", "x", "o", "re", "ST"};
    const auto word = [&] { return syllables[below(10)] + syllables[below(10)]; };
    const auto text = [&](int most) {
        QStringList words;
        for (int count = below(most + 1); count > 0; --count)
            words += word();
        return words.join(' ');
    };
    for (int number = 0; number < 250; ++number)
        add(1000 + below(4), text(6), text(40), number % 3 == 0 ? text(300) : QString());
    const qint32 gone = issues[100].rowid;
    ASSERT_TRUE(gDB.DeleteRecord(gone, gDB.IssuesTable()));
    issues.erase(issues.begin() + 100);

    for (int round = 0; round < 200; ++round) {
        IssueQuery query;
        query.text = text(round % 20 == 0 ? 12 : 3);
        if (round % 15 == 0)
            query.text += "  " + word();
        query.type = 1 + below(2);
        query.psid = below(2) * (999 + below(5));
        query.inShortDesc = below(2) == 0;
        query.inDesc = below(2) == 0;
        query.inResolution = below(2) == 0 || (!query.inDesc && !query.inShortDesc);
        EXPECT_EQ(search(query), expected(query))
            << qPrintable(query.text) << " " << query.type << " " << query.psid;
        EXPECT_EQ(unreadable, 0);
    }
}

TEST_F(IssueSearching, AllWordsStandInOneText)
{
    add(1000, "paper", "jam", "tray");
    EXPECT_TRUE(search({"paper jam", AllOfTheWords, 0, true, true, true}).isEmpty());
    EXPECT_EQ(search({"paper jam", AnyOfTheWords, 0, true, true, true}).size(), 1);
    EXPECT_TRUE(search({"jam", AnyOfTheWords, 0, true, false, true}).isEmpty());
}

TEST_F(IssueSearching, EndsWhenToldTo)
{
    for (int number = 0; number < 6; ++number)
        add(1000 + number % 2, "row", {}, {});
    endAfter = 3;
    EXPECT_EQ(search({"row"}).size(), 3);
    EXPECT_TRUE(ended);
    endAfter = 2;
    EXPECT_EQ(search({{}, AnyOfTheWords, 1001}).size(), 2);
    EXPECT_TRUE(ended);
    endAfter = -1;
    EXPECT_EQ(search({{}, AnyOfTheWords, 1001}).size(), 3);
    EXPECT_FALSE(ended);
    EXPECT_EQ(lookedAt, 3); // by the tag, not the whole table
}

// One pointer leads outside, one text says it is something else, one row has no number there.
TEST_F(IssueSearching, GoesOnBehindDamagedTextsAndCountsThem)
{
    for (int number = 0; number < 9; ++number)
        add(1000, number % 2 == 0 ? "even" : "odd", "needle in the description", "and one here");
    QFile rows(gDB.IssuesTable());
    ASSERT_TRUE(rows.open(QIODevice::ReadWrite));
    const QByteArray bytes = rows.readAll();
    const auto le16 = [&](int at) {
        return static_cast<unsigned char>(bytes[at]) | static_cast<unsigned char>(bytes[at + 1])
                                                           << 8;
    };
    int desc = 1; // the field's place in a record
    for (int at = 32; bytes.mid(at, 5) != QByteArray("DESC\0", 5); at += 32)
        desc += static_cast<unsigned char>(bytes[at + 16]);
    const auto put = [&](int row, const QByteArray &pointer) {
        rows.seek(le16(8) + row * le16(10) + desc);
        rows.write(pointer);
    };
    put(2, "   9999999");
    put(5, "    garble");
    put(6, "         1"); // the header
    rows.close();

    IssueQuery query{"needle", AnyOfTheWords, 0, false, true, false};
    EXPECT_EQ(search(query).size(), 6);
    EXPECT_EQ(unreadable, 3);
    query.psid = 1000;
    EXPECT_EQ(search(query).size(), 6);
    EXPECT_EQ(unreadable, 3);
    query.inResolution = true;
    query.text = "here";
    EXPECT_EQ(search(query).size(), 9); // the other text of those rows
    EXPECT_EQ(unreadable, 3);
    query.inShortDesc = true;
    query.text = "even here";
    EXPECT_EQ(search(query).size(), 9);
    EXPECT_EQ(unreadable, 1); // found before the text was wanted, but for one
    EXPECT_TRUE(person.seen().empty());
}

TEST_F(IssueSearching, ByPersonAndStatus)
{
    const auto assigned = [&](qint32 user, std::optional<qint32> status) {
        const Handle table = gDB.OpenTable(gDB.IssuesTable());
        QStringList found;
        IssueSearch(table).assignedTo(
            user, status,
            [&](const IssueHit &hit) {
                found += fromAnsi(QByteArrayView(hit.shortdesc.data(),
                                                 static_cast<qsizetype>(hit.shortdesc.size())));
            },
            [] { return true; });
        gDB.CloseTable(table);
        return found;
    };
    for (const auto &[text, user, status] : std::vector<std::tuple<const char *, int, int>>{
             {"a", 1000, 1}, {"b", -1, 1}, {"c", 1000, 2}, {"d", 1001, 1}, {"e", -1, 2}})
        database.addIssue({{"shortdesc", text}, {"assignedto", user}, {"status", status}});
    EXPECT_EQ(assigned(1000, {}), QStringList({"a", "c"}));
    EXPECT_EQ(assigned(1000, 2), QStringList({"c"}));
    EXPECT_EQ(assigned(-1, {}), QStringList({"b", "e"}));
    EXPECT_TRUE(assigned(5, {}).isEmpty());
}

TEST_F(IssueSearching, NamesAreThoseOfTheRowWithThatNumber)
{
    const qint32 ann = database.addCustomer({{"lastname", "Smith"}, {"firstname", "Ann"}});
    const qint32 gone = database.addCustomer({{"lastname", "Gone"}});
    const qint32 bob = database.addCustomer({{"lastname", "Lee"}, {"company", "Northwind"}});
    ASSERT_TRUE(gDB.DeleteRecord(gone, gDB.CustomerTable()));
    for (int jump = 0; jump < 3; ++jump) // numbers are taken without a row
        gDB.GetNextID("nvncust.dbf");
    const qint32 last = database.addCustomer({{"company", "Last & Co"}});
    const auto names = [&] {
        const Handle table = gDB.OpenTable(gDB.CustomerTable());
        CustomerNames known(table, gDB.CustomerNameAlone());
        QStringList all;
        for (const qint32 id : {bob, ann, gone, last, ann, 0, -7, last + 1, bob})
            all += known.of(id);
        gDB.CloseTable(table);
        return all;
    };
    EXPECT_EQ(names(), QStringList({"Northwind (Lee)", "Smith, Ann", "", "Last & Co", "Smith, Ann",
                                    "", "", "", "Northwind (Lee)"}));
    gDB.SetParamValue("CUSTOMERNAME_DISPLAY", "1");
    EXPECT_EQ(names().first(), "Lee");
}
