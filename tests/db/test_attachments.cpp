// The folders of attachments: names stay names, copies are whole or absent, and a deletion takes
// what lies in the folder and nothing else.
#include "DbTest.h"

#include "db/AttachmentFolder.h"

#include <QDir>
#include <QFile>
#include <QSet>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <sys/resource.h>

namespace
{

class Attachments : public DbTest
{
protected:
    const AttachmentFolder folder = gDB.Attachments(17, u"_ps"_s);
    QTemporaryDir elsewhere;

    QString make(const QString &path, const QByteArray &bytes = "x")
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
        file.write(bytes);
        return path;
    }
    QString outside(const QString &name, const QByteArray &bytes = "x")
    {
        return make(elsewhere.filePath(name), bytes);
    }
    static QByteArray bytes(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
    }
    QStringList listed() const
    {
        return QDir(folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    // What a copy is written in before it has its name.
    QStringList unfinished() const
    {
        return QDir(gDB.AttachPath()).entryList(QDir::Files | QDir::Hidden);
    }
};

} // namespace

TEST_F(Attachments, EveryRecordHasAFolderOfItsOwnMadeByTheFirstFile)
{
    EXPECT_EQ(db.file(u"nvnattach/_ps_17"_s), folder.path());
    EXPECT_EQ(db.file(u"nvnattach/_i_203"_s), gDB.GetAttachmentSubDir(203, u"_i"_s));
    EXPECT_FALSE(folder.exists());
    EXPECT_FALSE(folder.contains(u"a.txt"_s));
    QDir(gDB.AttachPath()).removeRecursively();
    EXPECT_TRUE(folder.create());
    EXPECT_TRUE(folder.create());
    EXPECT_TRUE(folder.exists());
    ASSERT_TRUE(folder.add(outside(u"a.txt"_s, "one"), u"a.txt"_s).done());
    ASSERT_TRUE(folder.add(outside(u"a.txt"_s, "two"), u"a.txt"_s).done());
    EXPECT_EQ("two", bytes(folder.filePath(u"a.txt"_s)));
    EXPECT_EQ(QStringList(u"a.txt"_s), listed());
    EXPECT_EQ(QStringList(), unfinished());
}

TEST_F(Attachments, AnyNameThatADiskTakesIsKeptAsItIs)
{
    ASSERT_TRUE(folder.create());
    const QString longest = QString(251, u'n') + u".txt";
    const QStringList names{u"with blanks and, commas.txt"_s,
                            u" blanks around "_s,
                            u".hidden"_s,
                            u"...dots"_s,
                            u"Größe – naïve 株式会社.pdf"_s,
                            u"quote's \"100%\" #1 & more; $HOME.txt"_s,
                            u"-rf"_s,
                            u"MixedCase.TXT"_s,
                            longest};
    for (const QString &name : names) {
        ASSERT_TRUE(AttachmentFolder::isPlainName(name)) << qPrintable(name);
        const FileCopyOutcome outcome = folder.add(outside(u"source"_s, name.toUtf8()), name);
        EXPECT_TRUE(outcome.done()) << qPrintable(name) << qPrintable(outcome.cause);
        EXPECT_TRUE(folder.contains(name)) << qPrintable(name);
        EXPECT_EQ(name.toUtf8(), bytes(folder.filePath(name)));
    }
    EXPECT_EQ(names.size(), listed().size());
    const FileCopyOutcome tooLong = folder.add(outside(u"source"_s), longest + u'x');
    EXPECT_EQ(FileCopyOutcome::End::Failed, tooLong.end);
    EXPECT_NE(QString(), tooLong.cause);
    EXPECT_EQ(names.size(), listed().size());
    EXPECT_EQ(QStringList(), unfinished());

    EXPECT_TRUE(folder.rename(u".hidden"_s, u"seen now"_s));
    EXPECT_TRUE(folder.remove(u" blanks around "_s));
    EXPECT_TRUE(gDB.DeleteAttachments(17, u"_ps"_s));
    EXPECT_FALSE(folder.exists());
}

// Names that mean something, or another thing, to other systems: here each is a file of its own.
TEST_F(Attachments, NamesThatOtherSystemsReadOtherwiseStayApart)
{
    ASSERT_TRUE(folder.create());
    const QString composed = u"r\u00E9sum\u00E9.txt"_s;
    const QString decomposed = u"re\u0301sume\u0301.txt"_s;
    QStringList names{u"CON"_s,       u"NUL"_s,    u"nul.txt"_s,     u"COM1"_s,      u"a:b"_s,
                      u"a:b:$DATA"_s, u"C:"_s,     u"dot"_s,         u"dot."_s,      u"dot.."_s,
                      u"blank"_s,     u"blank "_s, u"Offer.pdf"_s,   u"offer.pdf"_s, u"OFFER.PDF"_s,
                      composed,       decomposed,  u"stra\u00DFe"_s, u"STRASSE"_s};
    for (const QString &name : names) {
        ASSERT_TRUE(AttachmentFolder::isPlainName(name)) << qPrintable(name);
        EXPECT_FALSE(folder.contains(name)) << qPrintable(name); // none is one from before
        ASSERT_TRUE(folder.add(outside(u"source"_s, name.toUtf8()), name).done());
    }
    QStringList there = listed();
    EXPECT_EQ(QSet<QString>(names.begin(), names.end()), QSet<QString>(there.begin(), there.end()));
    for (const QString &name : names)
        EXPECT_EQ(name.toUtf8(), bytes(folder.filePath(name))) << qPrintable(name);

    EXPECT_FALSE(folder.rename(u"offer.pdf"_s, u"Offer.pdf"_s)); // is another one
    EXPECT_FALSE(folder.rename(decomposed, composed));
    EXPECT_TRUE(folder.rename(u"NUL"_s, u"NUL."_s));
    EXPECT_TRUE(folder.remove(u"dot."_s));
    EXPECT_TRUE(folder.contains(u"dot"_s) && folder.contains(u"dot.."_s));
    EXPECT_TRUE(gDB.DeleteAttachments(17, u"_ps"_s));
    EXPECT_FALSE(folder.exists());
}

// A name that is no text in the system's encoding came from elsewhere: its record's other files are
// used as ever, and nobody says that all is deleted while it is there.
TEST_F(Attachments, ANameThatIsNoTextStandsInNobodysWay)
{
    ASSERT_TRUE(folder.create());
    const std::string foreign = folder.path().toStdString() + "/\xe9t\xe9";
    std::ofstream(foreign) << "x";
    ASSERT_TRUE(std::filesystem::exists(foreign));
    ASSERT_TRUE(folder.add(outside(u"a"_s, "a"), u"a"_s).done());
    EXPECT_EQ("a", bytes(folder.filePath(u"a"_s)));
    EXPECT_TRUE(folder.remove(u"a"_s));
    const bool deleted = gDB.DeleteAttachments(17, u"_ps"_s);
    EXPECT_EQ(deleted, !std::filesystem::exists(foreign));
    EXPECT_EQ(deleted, !folder.exists());
    std::filesystem::remove(foreign);
}

TEST_F(Attachments, ANameLeadsNowhereElse)
{
    ASSERT_TRUE(folder.create());
    const QString source = outside(u"source"_s);
    make(gDB.AttachPath() + u"/precious.txt");
    for (const QString &name :
         {u""_s, u"."_s, u".."_s, u"../x"_s, u"../precious.txt"_s, u"sub/x"_s, u"..\\x"_s,
          u"sub\\x"_s, u"/etc/x"_s, u"a*"_s, u"a\nb"_s, elsewhere.filePath(u"x"_s)}) {
        EXPECT_FALSE(AttachmentFolder::isPlainName(name)) << qPrintable(name);
        EXPECT_FALSE(folder.contains(name)) << qPrintable(name);
        EXPECT_FALSE(folder.add(source, name).done()) << qPrintable(name);
        ASSERT_TRUE(folder.add(source, u"plain"_s).done());
        EXPECT_FALSE(folder.rename(u"plain"_s, name)) << qPrintable(name);
    }
    EXPECT_FALSE(folder.remove(u"../precious.txt"_s));
    EXPECT_FALSE(folder.rename(u"../precious.txt"_s, u"mine"_s));
    EXPECT_EQ(QStringList(u"plain"_s), listed());
    EXPECT_EQ("x", bytes(gDB.AttachPath() + u"/precious.txt"));
    EXPECT_EQ(QStringList(u"source"_s), QDir(elsewhere.path()).entryList(QDir::Files));
}

TEST_F(Attachments, RenamingAndRemovingAreForWhatIsThere)
{
    ASSERT_TRUE(folder.create());
    folder.add(outside(u"a"_s, "a"), u"a"_s);
    folder.add(outside(u"b"_s, "b"), u"b"_s);
    EXPECT_FALSE(folder.rename(u"a"_s, u"b"_s)); // never replaces
    EXPECT_FALSE(folder.rename(u"gone"_s, u"c"_s));
    EXPECT_TRUE(folder.rename(u"a"_s, u"A"_s));
    EXPECT_EQ("b", bytes(folder.filePath(u"b"_s)));
    EXPECT_TRUE(folder.remove(u"gone"_s)); // it is not there any more
    QDir(folder.path()).mkdir(u"sub"_s);
    EXPECT_FALSE(folder.remove(u"sub"_s));
    EXPECT_EQ((QStringList{u"A"_s, u"b"_s, u"sub"_s}), listed());
}

TEST_F(Attachments, ACopyThatEndsEarlyLeavesWhatWasThere)
{
    ASSERT_TRUE(folder.create());
    const QString large = outside(u"large"_s, QByteArray(5 << 20, 'n'));
    ASSERT_TRUE(folder.add(outside(u"old"_s, "old"), u"file"_s).done());
    std::vector<qint64> heard;
    const FileCopyOutcome cancelled = folder.add(large, u"file"_s, [&](qint64 done, qint64 all) {
        EXPECT_EQ(5 << 20, all);
        heard.push_back(done);
        return heard.size() < 3;
    });
    EXPECT_EQ(FileCopyOutcome::End::Cancelled, cancelled.end);
    EXPECT_EQ((std::vector<qint64>{0, 1 << 20, 2 << 20}), heard);

    // A limit for files stands in for a full disk.
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    rlimit whole{};
    getrlimit(RLIMIT_FSIZE, &whole);
    const rlimit little{1000, whole.rlim_max};
    setrlimit(RLIMIT_FSIZE, &little);
    const FileCopyOutcome full = folder.add(large, u"file"_s);
    setrlimit(RLIMIT_FSIZE, &whole);
    std::signal(SIGXFSZ, before);
    EXPECT_EQ(FileCopyOutcome::End::Failed, full.end);
    EXPECT_NE(QString(), full.cause);

    EXPECT_EQ(FileCopyOutcome::End::Failed, folder.add(elsewhere.path(), u"file"_s).end);
    EXPECT_EQ(FileCopyOutcome::End::Failed,
              folder.add(elsewhere.filePath(u"none"_s), u"file"_s).end);
    EXPECT_EQ(FileCopyOutcome::End::Failed, folder.add(folder.filePath(u"file"_s), u"file"_s).end);
    EXPECT_EQ("old", bytes(folder.filePath(u"file"_s)));
    EXPECT_EQ(QStringList(u"file"_s), listed());
    EXPECT_EQ(QStringList(), unfinished());
}

TEST_F(Attachments, LinksAreTakenAwayAndNeverFollowed)
{
    const QString precious = outside(u"precious.txt"_s, "precious");
    QDir(elsewhere.path()).mkdir(u"deep"_s);
    outside(u"deep/also.txt"_s, "also");
    ASSERT_TRUE(folder.create());
    ASSERT_TRUE(QFile::link(precious, folder.filePath(u"file"_s)));
    ASSERT_TRUE(QFile::link(elsewhere.path(), folder.filePath(u"tree"_s)));
    ASSERT_TRUE(QFile::link(u"/none"_s, folder.filePath(u"nowhere"_s)));
    EXPECT_TRUE(folder.contains(u"nowhere"_s));
    EXPECT_TRUE(folder.rename(u"file"_s, u"renamed"_s));
    ASSERT_TRUE(folder.add(outside(u"new"_s, "new"), u"renamed"_s).done()); // in the link's place
    EXPECT_TRUE(folder.remove(u"tree"_s));
    EXPECT_TRUE(folder.remove(u"nowhere"_s));
    EXPECT_EQ(QStringList(u"renamed"_s), listed());

    ASSERT_TRUE(QFile::link(elsewhere.path(), folder.filePath(u"again"_s)));
    QDir(folder.path()).mkdir(u"sub"_s);
    ASSERT_TRUE(QFile::link(precious, folder.filePath(u"sub/deeper"_s)));
    EXPECT_TRUE(gDB.DeleteAttachments(17, u"_ps"_s));
    EXPECT_FALSE(folder.exists());
    EXPECT_EQ("precious", bytes(precious));
    EXPECT_EQ("also", bytes(elsewhere.filePath(u"deep/also.txt"_s)));
}

// A link in the folder's own place could lead anywhere.
TEST_F(Attachments, ALinkInTheFoldersPlaceIsNoFolder)
{
    const QString precious = outside(u"precious.txt"_s, "precious");
    ASSERT_TRUE(QFile::link(elsewhere.path(), folder.path()));
    EXPECT_FALSE(folder.exists());
    EXPECT_FALSE(folder.create());
    EXPECT_FALSE(folder.contains(u"precious.txt"_s));
    EXPECT_FALSE(folder.remove(u"precious.txt"_s));
    EXPECT_FALSE(folder.rename(u"precious.txt"_s, u"mine"_s));
    EXPECT_FALSE(folder.add(precious, u"mine"_s).done());
    EXPECT_TRUE(gDB.DeleteAttachments(17, u"_ps"_s));
    EXPECT_FALSE(QFileInfo(folder.path()).isSymLink());
    EXPECT_EQ("precious", bytes(precious));
}

TEST_F(Attachments, ALinkThatTakesTheFoldersPlaceDuringACopyGetsNothing)
{
    ASSERT_TRUE(folder.create());
    const QString large = outside(u"large"_s, QByteArray(3 << 20, 'n'));
    const QString away = folder.path() + u"-away";
    QDir(elsewhere.path()).mkdir(u"deep"_s);
    const FileCopyOutcome outcome = folder.add(large, u"file"_s, [&](qint64 done, qint64) {
        if (done == 1 << 20) {
            EXPECT_TRUE(QDir().rename(folder.path(), away));
            EXPECT_TRUE(QFile::link(elsewhere.filePath(u"deep"_s), folder.path()));
        }
        return true;
    });
    EXPECT_EQ(FileCopyOutcome::End::Failed, outcome.end);
    EXPECT_NE(QString(), outcome.cause);
    EXPECT_TRUE(QDir(elsewhere.filePath(u"deep"_s)).isEmpty());
    EXPECT_TRUE(QDir(away).isEmpty());
    EXPECT_EQ(QStringList(), unfinished());
}

TEST_F(Attachments, DeletingTakesOneRecordsFolderOnly)
{
    const AttachmentFolder other = gDB.Attachments(170, u"_ps"_s);
    const AttachmentFolder issue = gDB.Attachments(17, u"_i"_s);
    for (const AttachmentFolder *each : {&folder, &other, &issue}) {
        ASSERT_TRUE(each->create());
        ASSERT_TRUE(each->add(outside(u"a"_s), u"a"_s).done());
    }
    EXPECT_TRUE(gDB.DeleteAttachments(17, u"_ps"_s));
    EXPECT_TRUE(gDB.DeleteAttachments(17, u"_ps"_s)); // never had any
    EXPECT_FALSE(folder.exists());
    EXPECT_TRUE(other.contains(u"a"_s));
    EXPECT_TRUE(issue.contains(u"a"_s));
    clsDB closed;
    EXPECT_FALSE(closed.DeleteAttachments(17, u"_i"_s));

    make(issue.filePath(u"a*b"_s)); // a name that is not deleted
    EXPECT_FALSE(gDB.DeleteAttachments(17, u"_i"_s));
}

TEST_F(Attachments, WhatADeadStationLeftInACopyGoesAfterTwoDays)
{
    ASSERT_TRUE(folder.create());
    const auto work = [&](const QString &name, int daysAgo) {
        QFile file(gDB.AttachPath() + u'/' + name);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.setFileTime(host().now().addDays(-daysAgo), QFileDevice::FileModificationTime);
    };
    work(u".copy-old"_s, 3);
    work(u".copy-new"_s, 1);
    work(u"by hand"_s, 3);
    ASSERT_TRUE(folder.add(outside(u"a"_s), u"a"_s).done());
    EXPECT_EQ((QStringList{u".copy-new"_s, u"by hand"_s}), unfinished());
}

TEST_F(Attachments, OthersMayDoWhatTheyMayInTheDataFolder)
{
    QDir(gDB.AttachPath()).removeRecursively();
    const auto shared =
        QFile::permissions(db.path()) | QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup;
    ASSERT_TRUE(QFile::setPermissions(db.path(), shared));
    ASSERT_TRUE(folder.create());
    ASSERT_TRUE(folder.add(outside(u"a"_s), u"a"_s).done());
    EXPECT_TRUE(QFile::permissions(folder.path()).testFlag(QFile::WriteGroup));
    EXPECT_TRUE(QFile::permissions(folder.filePath(u"a"_s)).testFlag(QFile::ReadGroup));
    EXPECT_FALSE(QFile::permissions(folder.filePath(u"a"_s)).testFlag(QFile::ExeOwner));
}
