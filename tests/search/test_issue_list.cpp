// The list of issues found: what it shows, what it says, and what can be done with it.
#include "IssueLists.h"

#include "common/base/Ansi.h"
#include "db/search/WordMatcher.h"
#include "search/frmIssueList.h"
#include "support/PdfPrinter.h"

#include <QFile>

#include <random>

namespace
{

class IssueList : public IssueLists
{
protected:
    void search(const QString &text, qint32 type = AnyOfTheWords, qint32 psid = 0,
                const QString &in = QStringLiteral("s"))
    {
        auto window = std::make_unique<frmIssueList>();
        window->setSearchWhat(in.contains('s'), in.contains('d'), in.contains('r'));
        window->Init(text, type, psid);
        look(std::move(window));
    }
    QStringList found() const { return column(0); }

    void addThree()
    {
        tills = database.addListItem(2, "Tills");
        const qint32 acme =
            database.addCustomer({{"company", "Acme"}, {"lastname", "Lee"}, {"firstname", "Bo"}});
        first = database.addIssue({{"custid", acme},
                                   {"psid", tills},
                                   {"status", 400},
                                   {"shortdesc", "printer jams"},
                                   {"desc", "red scarf"}});
        second = database.addIssue({{"custid", acme},
                                    {"shortdesc", "Alarm"},
                                    {"psid", 4711},
                                    {"status", 4712},
                                    {"resolution", "scarf removed"}});
        database.addIssue({{"psid", tills}, {"shortdesc", "No printer"}});
    }
    // Makes the pointers to the descriptions of some rows, counted from 0, lead nowhere.
    static void damageDescriptions(std::initializer_list<int> rows);

    qint32 tills = 0;
    qint32 first = 0;
    qint32 second = 0;
};

void IssueList::damageDescriptions(std::initializer_list<int> rows)
{
    QFile file(gDB.IssuesTable());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const QByteArray bytes = file.readAll();
    const auto le16 = [&](int at) {
        return static_cast<unsigned char>(bytes[at]) | static_cast<unsigned char>(bytes[at + 1])
                                                           << 8;
    };
    int desc = 1; // the field's place in a record
    for (int at = 32; bytes.mid(at, 5) != QByteArray("DESC\0", 5); at += 32)
        desc += static_cast<unsigned char>(bytes[at + 16]);
    for (const int row : rows) {
        file.seek(le16(8) + row * le16(10) + desc);
        file.write("   9999999");
    }
}

} // namespace

TEST_F(IssueList, ShowsTheHitsSortedWithTheirNames)
{
    addThree();
    search("");
    EXPECT_EQ(headings(),
              QStringList({"Short Description=D", "Product/Service=P", "Status=S", "Customer=C"}));
    EXPECT_EQ(found(), QStringList({"Alarm", "No printer", "printer jams"}));
    EXPECT_EQ(row(2), QStringList({"printer jams", "Tills", "Open", "Acme (Lee, Bo)"}));
    EXPECT_EQ(row(0), QStringList({"Alarm", "", "", "Acme (Lee, Bo)"})); // entries that are gone
    EXPECT_EQ(lv->itemKey(2), keyOf(first));
    EXPECT_EQ(count(), "3 Issue(s)");
    EXPECT_EQ(list->windowTitle(), "Issues (Search ='') @3:05:09 PM");
    EXPECT_EQ(list->helpTopic(), 1220);
    const auto &wait = person.progress().back();
    EXPECT_EQ(wait.message, "Searching Issues. Please wait...");
    EXPECT_TRUE(wait.cancel && wait.closed);
}

TEST_F(IssueList, FindsWordsInTheTextsThatWereAskedFor)
{
    addThree();
    search(" Printer ");
    EXPECT_EQ(found(), QStringList({"No printer", "printer jams"}));
    EXPECT_EQ(list->windowTitle(), "Issues (Search ='PRINTER') @3:05:09 PM");
    search("car", AnyOfTheWords, 0, "d");
    EXPECT_EQ(found(), QStringList("printer jams"));
    search("car", AnyOfTheWords, 0, "dr");
    EXPECT_EQ(found(), QStringList({"Alarm", "printer jams"}));
    search("car");
    EXPECT_TRUE(found().isEmpty());
    EXPECT_EQ(count(), "0 Issue(s)");
    search("jams scarf", AllOfTheWords, 0, "sdr"); // not in one text
    EXPECT_TRUE(found().isEmpty());
    search("printer", AnyOfTheWords, 0, ""); // none asked for: the short description
    EXPECT_EQ(found().size(), 2);
    search("", AllOfTheWords, tills, "r");
    EXPECT_EQ(found(), QStringList({"No printer", "printer jams"}));
    search("scarf  nowhere", AnyOfTheWords, 0, "s"); // the empty word is in every text
    EXPECT_EQ(found().size(), 3);
    search("nothing", 3);
    EXPECT_EQ(found().size(), 3);
}

TEST_F(IssueList, TakesTenThousandWordsOfEveryCharacter)
{
    addThree();
    QStringList words;
    for (int code = 1; code < 256; ++code)
        words += "~" + fromAnsi(QByteArray(1, static_cast<char>(code))) + "~";
    words.removeAll("~ ~");
    while (words.size() < 10000)
        words += QStringLiteral("x%1x").arg(words.size());
    search(words.join(' '));
    EXPECT_TRUE(found().isEmpty());
    words[5000] = "larm";
    search(words.join(' '));
    EXPECT_EQ(found(), QStringList("Alarm"));
    EXPECT_TRUE(list->windowTitle().contains(" LARM "));
}

TEST_F(IssueList, RefreshReadsAgainAndKeepsTheSelectionAndTheOrder)
{
    addThree();
    search("r");
    ASSERT_TRUE(LvSelectItem(lv, keyOf(first)));
    clickHeading(3);
    EXPECT_EQ(lv->sortColumn(), 3);
    EXPECT_EQ(lv->sortOrder(), Qt::DescendingOrder); // the order turns at each click
    database.addIssue({{"shortdesc", "another printer"}});
    ASSERT_TRUE(gDB.DeleteRecord(tills, gDB.CategoryTable()));
    machine.advance(std::chrono::seconds(60));
    QTest::keyClick(list.get(), Qt::Key_F5);
    EXPECT_EQ(found(), QStringList({"Alarm", "another printer", "No printer", "printer jams"}));
    EXPECT_EQ(lv->sortColumn(), 0);
    EXPECT_EQ(LvGetSelectedItemKey(lv), keyOf(first));
    EXPECT_EQ(row(3)[1], "");
    EXPECT_EQ(list->windowTitle(), "Issues (Search ='R') @3:06:09 PM");

    ASSERT_TRUE(gDB.DeleteRecord(first, gDB.IssuesTable()));
    clickButton(list.get(), "cmdRefresh");
    EXPECT_EQ(LvGetSelectedItemText(lv), "Alarm"); // no longer a hit: the first
}

TEST_F(IssueList, OpensTheSelectedIssueAndPrintsTheList)
{
    const PdfPrinter printer;
    search("nobody");
    auto *open = list->findChild<QPushButton *>("cmdProperties");
    EXPECT_FALSE(open->isEnabled());
    QTest::keyClick(lv, Qt::Key_Return);
    addThree();
    search("alarm");
    clickButton(list.get(), "cmdProperties");
    const QPoint at = lv->visualRect(lv->model()->index(0, 0)).center();
    QTest::mouseClick(lv->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(lv->viewport(), Qt::LeftButton, {}, at);
    const QString shown = QStringLiteral("ShowIssue %1 -1 false -1").arg(second);
    EXPECT_EQ(board.calls(), QStringList({shown, shown}));
    QTest::keyClick(list.get(), Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(printer.titles(), QStringList(list->windowTitle()));
    EXPECT_TRUE(printer.pages().value(0).contains("Alarm"));
    QTest::keyClick(lv, Qt::Key_Escape);
    EXPECT_FALSE(list->isVisible());
}

TEST_F(IssueList, CancelKeepsTheHitsSoFar)
{
    for (int number = 0; number < 9; ++number)
        database.addIssue({{"psid", 77}, {"shortdesc", QStringLiteral("row %1").arg(number)}});
    person.cancelProgressAt(4);
    search("row");
    EXPECT_EQ(found(), QStringList({"row 0", "row 1", "row 2", "row 3"}));
    EXPECT_EQ(count(), "4 Issue(s)");
    search("", AnyOfTheWords, 77);
    EXPECT_EQ(found().size(), 4);
    EXPECT_TRUE(person.progress().back().closed);
}

// The wait dialog is not modal, so a person may press F5 or close the window during a load.
TEST_F(IssueList, ALoadIsNotDisturbedByWhatTheWindowIsTold)
{
    for (int number = 0; number < 120; ++number)
        database.addIssue({{"shortdesc", "row"}});
    search("row");
    const auto pump = host().pumpEvents;
    int rounds = 0;
    host().pumpEvents = [&] {
        ++rounds;
        qobject_cast<frmIssueList *>(list.get())->LoadData();
        list->close();
        QTest::keyClick(list.get(), Qt::Key_P, Qt::ControlModifier);
    };
    clickButton(list.get(), "cmdRefresh");
    host().pumpEvents = pump;
    EXPECT_GE(rounds, 2); // at the start, and at the hundredth row
    EXPECT_EQ(found().size(), 120);
    EXPECT_TRUE(list->isVisible());
}

TEST_F(IssueList, DamagedTextsAreToldOnceBehindTheSearch)
{
    for (int number = 0; number < 8; ++number)
        database.addIssue(
            {{"shortdesc", QStringLiteral("row %1").arg(number)}, {"desc", "needle"}});
    damageDescriptions({2, 3, 5});
    search("needle"); // not asked for
    person.expect("The description or resolution of 3 issue(s) is damaged")
        .kind(prompts::Kind::Warning)
        .meanwhile([this] { EXPECT_TRUE(person.progress().back().closed); });
    search("needle", AnyOfTheWords, 0, "sd");
    EXPECT_EQ(found(), QStringList({"row 0", "row 1", "row 4", "row 6", "row 7"}));
    search("row needle", AnyOfTheWords, 0, "sd"); // found before they are wanted
    EXPECT_EQ(found().size(), 8);
}

TEST_F(IssueList, TablesThatCannotBeReadLeaveTheListEmpty)
{
    addThree();
    search("");
    ASSERT_TRUE(QFile::rename(gDB.CustomerTable(), gDB.CustomerTable() + ".away"));
    person.expect("Unable to open: ");
    clickButton(list.get(), "cmdRefresh");
    EXPECT_EQ(count(), "0 Issue(s)");
    EXPECT_FALSE(list->findChild<QPushButton *>("cmdProperties")->isEnabled());
    ASSERT_TRUE(QFile::rename(gDB.CustomerTable() + ".away", gDB.CustomerTable()));
    clickButton(list.get(), "cmdRefresh");
    EXPECT_EQ(count(), "3 Issue(s)");
}

// The rows of the window against texts looked through one by one.
TEST_F(IssueList, HitsAreThoseOfAPlainScan)
{
    struct Issue {
        qint32 psid;
        QString texts[3];
    };
    std::mt19937 random(20261123);
    const auto below = [&](int limit) { return static_cast<int>(random() % limit); };
    const QStringList parts{"ka", "Per", QStringLiteral("Ü"), QStringLiteral("ß"), "tray",
                            "9",  "q",   QStringLiteral("€")};
    const auto text = [&](int most) {
        QStringList words;
        for (int count = below(most + 1); count > 0; --count)
            words += parts[below(8)] + parts[below(8)];
        return words.join(' ');
    };
    std::map<QString, Issue> issues; // by key
    for (int number = 0; number < 120; ++number) {
        const Issue issue{1000 + below(3), {text(4), text(25), text(9)}};
        const qint32 rowid = database.addIssue({{"psid", issue.psid},
                                                {"shortdesc", issue.texts[0]},
                                                {"desc", issue.texts[1]},
                                                {"resolution", issue.texts[2]}});
        issues[keyOf(rowid)] = issue;
    }
    const QString places = "sdr";
    for (int round = 0; round < 60; ++round) {
        const QString words = text(3) + (round % 9 == 0 ? "  q" : "");
        const qint32 type = 1 + below(2);
        const qint32 psid = below(2) * (1000 + below(4));
        const QString in = places.mid(below(3), 1 + below(3));
        const QStringList wanted = words.trimmed().split(' ');
        QStringList expected;
        for (const auto &[key, issue] : issues) {
            bool hit = words.trimmed().isEmpty();
            for (int place = 0; place < 3; ++place) {
                const QString &field = issue.texts[place];
                const auto has = [&field](const QString &word) {
                    return field.contains(word, Qt::CaseInsensitive);
                };
                if (in.contains(places[place]))
                    hit = hit || (type == 1 ? std::any_of(wanted.begin(), wanted.end(), has)
                                            : std::all_of(wanted.begin(), wanted.end(), has));
            }
            if (hit && (psid < 1 || psid == issue.psid))
                expected += key;
        }
        search(words, type, psid, in);
        QStringList keys;
        for (int at = 0; at < lv->itemCount(); ++at)
            keys += lv->itemKey(at);
        std::sort(keys.begin(), keys.end());
        EXPECT_EQ(keys, expected) << qPrintable(words + u" in " + in) << type << ' ' << psid;
    }
}
