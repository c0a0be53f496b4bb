// Two people at one record, the second in a process of its own: what the edit mark asks, and that
// the last save wins. The same for each kind of record.
#include "FormFixture.h"

#include "admin/frmUser.h"
#include "db/Screens.h"
#include "forms/frmCustomer.h"
#include "forms/frmPS.h"
#include "reports/frmReportDef.h"
#include "support/Station.h"

#include <QFile>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

struct Customers {
    using Form = frmCustomer;
    static constexpr schema::Table table = schema::Table::Customer;
    static constexpr const char *recType = "_customer";
    static constexpr const char *box = "txtCity";
    static constexpr const char *field = "city";
    static constexpr const char *otherField = "title"; // that the other person fills in

    static qint32 add(TempDatabase &database)
    {
        return database.addCustomer({{"company", "Acme"_L1}});
    }
    static std::unique_ptr<Form> make(TempDatabase &) { return std::make_unique<Form>(); }
};

struct Subscriptions {
    using Form = frmPS;
    static constexpr schema::Table table = schema::Table::Customer2PS;
    static constexpr const char *recType = "_ps";
    static constexpr const char *box = "txtShortDesc";
    static constexpr const char *field = "shortdesc";
    static constexpr const char *otherField = "contno";

    static qint32 add(TempDatabase &database)
    {
        return database.addSubscription(
            {{"custid", owner(database)}, {"psid", database.addListItem(2, "Printer")}});
    }
    static std::unique_ptr<Form> make(TempDatabase &database)
    {
        auto form = std::make_unique<Form>();
        form->setCustid(owner(database));
        return form;
    }
    // The first customer of a new database.
    static qint32 owner(TempDatabase &database)
    {
        constexpr qint32 first = 1000;
        const bool there = !database.stored(schema::Table::Customer, first, "company").isNull();
        return there ? first : database.addCustomer({{"company", "Acme"_L1}});
    }
};

struct Reports {
    using Form = frmReportDef;
    static constexpr schema::Table table = schema::Table::Report;
    static constexpr const char *recType = "_rptdef";
    static constexpr const char *box = "txtRptTitle";
    static constexpr const char *field = "title";
    static constexpr const char *otherField = "notes";

    static qint32 add(TempDatabase &database)
    {
        return database.add(u"_rptdef"_s, {{"type", "C"}, {"def", "0\n106\n\n\n\n1\n1"}});
    }
    static std::unique_ptr<Form> make(TempDatabase &) { return std::make_unique<Form>(); }
};

struct Users {
    using Form = frmUser;
    static constexpr schema::Table table = schema::Table::User;
    static constexpr const char *recType = "_userinfo";
    static constexpr const char *box = "txtFname";
    static constexpr const char *field = "firstname";
    static constexpr const char *otherField = "dept";

    static qint32 add(TempDatabase &database) { return database.addUser("paul", "1111"); }
    static std::unique_ptr<Form> make(TempDatabase &) { return std::make_unique<Form>(); }
};

template <class Kind>
class TwoStations : public FormFixture<typename Kind::Form>
{
protected:
    using Base = FormFixture<typename Kind::Form>;
    using Base::database;
    using Base::form;
    using Base::person;

    TwoStations()
    {
        database.addUser("jane", "1111");
        EXPECT_EQ(remote.ask(u"open %1 jane jane"_s.arg(database.path())), "ok");
        screens().askUnderEdit = [this](const QString &user, const QString &station) {
            asked = user + u'@' + station;
            return anyway;
        };
        Base::open(Kind::make(database), id, false);
    }
    ~TwoStations() override
    {
        screens().askUnderEdit = {};
        Base::discard();
    }
    TwoStations(const TwoStations &) = delete;
    TwoStations &operator=(const TwoStations &) = delete;

    QString file() const { return schema::table(Kind::table).dataFile(); }
    // What Jane does at her computer.
    QString jane(const QString &command)
    {
        return remote.ask(command + u" %1 %2"_s.arg(file()).arg(id));
    }
    QString janeSaves(const char *field, const QString &value)
    {
        return remote.ask(u"saverow %1 %2 %3 %4 %5"_s.arg(QLatin1String(Kind::recType), file())
                              .arg(id)
                              .arg(QLatin1String(field), value));
    }
    QString stored(const char *field) const
    {
        return database.stored(Kind::table, id, QLatin1String(field));
    }
    qint32 mark() const { return Base::markOf(Kind::table, id); }
    void edit() { Base::click("lblEdit"); }
    void apply() { Base::click("cmdApply"); }
    void typeMine() { Base::type(Kind::box, "mine"); }
    bool mineIsTyped() const { return Base::textOf(Kind::box) == "mine" && form->inEditMode(); }

    QString asked;
    bool anyway = false;
    const qint32 id = Kind::add(database);
    Station remote{database.path()};
};

using Kinds = ::testing::Types<Customers, Subscriptions, Reports, Users>;

struct KindNames {
    template <class Kind>
    static std::string GetName(int)
    {
        return Kind::recType + 1;
    }
};

} // namespace

TYPED_TEST_SUITE(TwoStations, Kinds, KindNames);

TYPED_TEST(TwoStations, WhoComesSecondIsAskedAndMayLeaveItAlone)
{
    ASSERT_EQ(this->jane("setmark"), "ok");
    const qint32 janes = this->mark();
    EXPECT_NE(janes, gDB.LoginID());
    this->edit();
    EXPECT_EQ(this->asked, "jane@REMOTE");
    EXPECT_FALSE(this->form->inEditMode());
    EXPECT_EQ(this->mark(), janes);
    EXPECT_EQ(this->janeSaves(TypeParam::field, "hers"), "ok");
    EXPECT_EQ(this->jane("clearmark"), "ok");
    this->asked.clear();
    this->edit();
    EXPECT_EQ(this->asked, "");
    EXPECT_EQ(this->textOf(TypeParam::box), "hers"); // as it is now
}

TYPED_TEST(TwoStations, WhoInsistsTakesTheMarkAndTheLastSaveWins)
{
    ASSERT_EQ(this->jane("setmark"), "ok");
    this->anyway = true;
    this->edit();
    EXPECT_EQ(this->mark(), gDB.LoginID());
    this->typeMine();
    // Jane is not told, and her save goes through; the mark is not hers to clear.
    EXPECT_EQ(this->janeSaves(TypeParam::field, "hers"), "ok");
    EXPECT_EQ(this->janeSaves(TypeParam::otherField, "too"), "ok");
    EXPECT_EQ(this->jane("clearmark"), "ok");
    EXPECT_EQ(this->mark(), gDB.LoginID());
    this->apply();
    EXPECT_EQ(this->stored(TypeParam::field), "mine");
    EXPECT_EQ(this->stored(TypeParam::otherField), ""); // all fields, not just what was typed
    EXPECT_EQ(this->mark(), 0);
}

TYPED_TEST(TwoStations, AMarkTakenOverIsLeftToItsNewOwner)
{
    this->edit();
    this->typeMine();
    ASSERT_EQ(this->jane("setmark"), "ok");
    const qint32 janes = this->mark();
    this->apply();
    EXPECT_EQ(this->stored(TypeParam::field), "mine");
    EXPECT_EQ(this->mark(), janes);
    EXPECT_EQ(this->janeSaves(TypeParam::field, "hers"), "ok");
    EXPECT_EQ(this->jane("clearmark"), "ok");
    EXPECT_EQ(this->stored(TypeParam::field), "hers");
    EXPECT_EQ(this->mark(), 0);
}

TYPED_TEST(TwoStations, ALockThatStaysIsToldAndTheTextsStay)
{
    this->edit();
    this->typeMine();
    norvane::engine::code4lockDelay(gDB.CBEngine(), 1);
    ASSERT_EQ(this->jane("lockrow"), "ok");
    const QString locked = "RECORD LOCKED: Unable to update record!";
    this->person.expect(locked).kind(prompts::Kind::Critical);
    this->person.expect(locked); // the mark cannot be cleared either
    this->apply();
    EXPECT_TRUE(this->mineIsTyped());
    EXPECT_EQ(this->stored(TypeParam::field), "");
    ASSERT_EQ(this->remote.ask("unlock"), "ok");
    this->apply();
    EXPECT_EQ(this->stored(TypeParam::field), "mine");
}

// The lock of a save lasts for a moment only.
TYPED_TEST(TwoStations, ALockThatGoesIsWaitedFor)
{
    this->edit();
    this->typeMine();
    ASSERT_EQ(this->jane("lockrow"), "ok");
    int repaints = 0;
    const auto before = std::exchange(host().repaint, [&] {
        if (++repaints == 1)
            this->remote.send("unlock");
    });
    this->apply();
    host().repaint = before;
    EXPECT_EQ(this->stored(TypeParam::field), "mine");
    EXPECT_FALSE(this->form->inEditMode());
}

TYPED_TEST(TwoStations, ARecordDeletedMeanwhileIsToldAndTheTextsStay)
{
    this->edit();
    this->typeMine();
    ASSERT_EQ(this->jane("delete"), "ok"); // the mark does not stop her
    this->person.expectText(
        "Record cannot be accessed or no longer exists. It may have been deleted by another user.");
    this->apply();
    EXPECT_TRUE(this->mineIsTyped());
    EXPECT_TRUE(this->stored(TypeParam::field).isNull());
}

TYPED_TEST(TwoStations, ADeadStationsMarkAsksAndAnEditEndsIt)
{
    ASSERT_EQ(this->jane("setmark"), "ok");
    this->remote.kill();
    this->anyway = true;
    this->edit();
    EXPECT_EQ(this->asked, "jane@REMOTE");
    this->typeMine();
    this->apply();
    EXPECT_EQ(this->mark(), 0);
}

// Nobody else can change that, so it waits for a person: the text stays on the screen.
TYPED_TEST(TwoStations, AFullDiskIsToldAndTheTextsStay)
{
    this->edit();
    this->typeMine();
    // A limit for files stands in for it.
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    rlimit whole{};
    getrlimit(RLIMIT_FSIZE, &whole);
    const rlimit little{100, whole.rlim_max};
    setrlimit(RLIMIT_FSIZE, &little);
    const prompts::Backend scripted = prompts::backend();
    QStringList told; // of the record, and of its mark, which cannot be cleared either
    prompts::backend().message = [&told](const prompts::Message &box) {
        told += box.text;
        return prompts::Answer::Ok;
    };
    this->apply();
    prompts::backend() = scripted;
    setrlimit(RLIMIT_FSIZE, &whole);
    std::signal(SIGXFSZ, before);
    EXPECT_FALSE(told.isEmpty());
    EXPECT_EQ(told.removeDuplicates(), 0);
    EXPECT_TRUE(this->mineIsTyped());
    EXPECT_EQ(this->stored(TypeParam::field), "");
    this->apply();
    EXPECT_EQ(this->stored(TypeParam::field), "mine");
}

// As when the rights to write, or the locks of the network drive, are lost in the middle of an
// edit.
TYPED_TEST(TwoStations, ADatabaseThatTakesNoMoreChangesIsToldAndTheTextsStay)
{
    this->edit();
    this->typeMine();
    QFile templates(gDB.IssuesTemplatesTable());
    ASSERT_TRUE(templates.open(QIODevice::WriteOnly | QIODevice::Truncate));
    templates.close();
    this->person.expect("open for reading only");
    this->person.expect("Unable to open: ");
    gDB.OpenTable(gDB.IssuesTemplatesTable());
    this->person.expect("Nothing was changed: this database is open for reading only");
    this->apply();
    EXPECT_TRUE(this->mineIsTyped());
    EXPECT_EQ(this->stored(TypeParam::field), "");
}
