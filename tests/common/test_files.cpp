// Files, folders and paths.
#include "support/ScriptedPrompts.h"

#include "common/base/clsSystem.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#ifndef Q_OS_WIN
#include <csignal>
#include <sys/resource.h>
#endif

namespace
{

class Files : public ::testing::Test
{
protected:
    QString path(const QString &name) const { return m_dir.filePath(name); }
    QString make(const QString &name, const QByteArray &bytes = "x") const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return path(name);
    }
    QByteArray bytes(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
    }

    QTemporaryDir m_dir;
};

} // namespace

TEST_F(Files, ExistenceTellsFilesFromFolders)
{
    const QString file = make("a.txt");
    EXPECT_TRUE(gSys.FileExists(file));
    EXPECT_FALSE(gSys.DirExists(file));
    EXPECT_TRUE(gSys.DirExists(m_dir.path()));
    EXPECT_FALSE(gSys.FileExists(m_dir.path()));
    EXPECT_FALSE(gSys.FileExists(""));
    EXPECT_FALSE(gSys.DirExists(""));
}

TEST_F(Files, CreateDirMakesOneLevel)
{
    EXPECT_FALSE(gSys.CreateDir(""));
    EXPECT_FALSE(gSys.CreateDir(path("a/b")));
    EXPECT_TRUE(gSys.CreateDir(path("a")));
    EXPECT_FALSE(gSys.CreateDir(path("a")));
}

TEST_F(Files, DeleteFileRefusesPatterns)
{
    make("a.txt");
    EXPECT_FALSE(gSys.DeleteFile(path("*.txt")));
    EXPECT_FALSE(gSys.DeleteFile(path("*")));
    EXPECT_TRUE(gSys.FileExists(path("a.txt")));
    EXPECT_TRUE(gSys.DeleteFile(path("a.txt")));
    EXPECT_FALSE(gSys.FileExists(path("a.txt")));
    EXPECT_TRUE(gSys.DeleteFile(path("a.txt"))); // gone is gone
}

TEST_F(Files, DirDeleteTakesHiddenAndReadOnlyFilesAndDeepFolders)
{
    QDir(m_dir.path()).mkpath("tree/deep/deeper");
    make("tree/.hidden");
    const QString locked = make("tree/deep/locked.txt");
    QFile::setPermissions(locked, QFile::ReadOwner);
    EXPECT_TRUE(gSys.DirDelete(path("tree")));
    EXPECT_FALSE(gSys.DirExists(path("tree")));
    EXPECT_FALSE(gSys.DirDelete(path("tree")));
    EXPECT_FALSE(gSys.DirDelete(""));
}

#ifndef Q_OS_WIN
TEST_F(Files, DirDeleteLeavesWhatALinkPointsTo)
{
    QDir(m_dir.path()).mkpath("keep");
    QDir(m_dir.path()).mkpath("tree");
    make("keep/precious.txt");
    ASSERT_TRUE(QFile::link(path("keep"), path("tree/link")));
    EXPECT_TRUE(gSys.DirDelete(path("tree")));
    EXPECT_TRUE(gSys.FileExists(path("keep/precious.txt")));
}

TEST_F(Files, DirDeleteStopsAtANameItMayNotDelete)
{
    QDir(m_dir.path()).mkpath("tree/sub");
    make("tree/sub/a*b");
    EXPECT_FALSE(gSys.DirDelete(path("tree")));
    EXPECT_TRUE(gSys.FileExists(path("tree/sub/a*b")));
}

TEST_F(Files, ReadOnlyAndHiddenIsNotPlainReadOnly)
{
    const QString plain = make("plain.txt");
    const QString hidden = make(".hidden.txt");
    EXPECT_FALSE(gSys.FileReadOnly(plain));
    QFile::setPermissions(plain, QFile::ReadOwner);
    QFile::setPermissions(hidden, QFile::ReadOwner);
    EXPECT_TRUE(gSys.FileReadOnly(plain));
    EXPECT_FALSE(gSys.FileReadOnly(hidden));
    EXPECT_FALSE(gSys.FileReadOnly(path("none")));
}

TEST_F(Files, ACopyOfAReadOnlyFileCanBeWrittenTo)
{
    QFile::setPermissions(make("template.db_", "seed"), QFile::ReadOwner);
    EXPECT_TRUE(gSys.FileCopyFn(path("template.db_"), path("new.dbf")));
    EXPECT_EQ("seed", bytes("new.dbf"));
    EXPECT_TRUE(QFile::permissions(path("new.dbf")) & QFile::WriteOwner);
}

TEST_F(Files, ACopyThatFindsNoRoomFailsAndLeavesNothing)
{
    make("a", QByteArray(5000, 'x'));
    // A limit for files stands in for a full disk.
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    rlimit whole{};
    getrlimit(RLIMIT_FSIZE, &whole);
    const rlimit little{1000, whole.rlim_max};
    setrlimit(RLIMIT_FSIZE, &little);
    const bool copied = gSys.FileCopyFn(path("a"), path("b"));
    setrlimit(RLIMIT_FSIZE, &whole);
    std::signal(SIGXFSZ, before);
    EXPECT_FALSE(copied);
    EXPECT_EQ(QStringList("a"), QDir(m_dir.path()).entryList(QDir::Files));
}
#endif

TEST_F(Files, CopyingReplacesUnlessToldNotTo)
{
    make("a", "new");
    make("b", "old");
    EXPECT_TRUE(gSys.FileCopyFn_NonExist(path("a"), path("b")));
    EXPECT_EQ("old", bytes("b"));
    EXPECT_TRUE(gSys.FileCopyFn(path("a"), path("b")));
    EXPECT_EQ("new", bytes("b"));
    EXPECT_FALSE(gSys.FileCopyFn(path("none"), path("b")));
    EXPECT_FALSE(gSys.FileCopyFn(path("a"), path("no/such/place")));
    EXPECT_FALSE(gSys.FileCopyFn(path("a"), path("./a")));
    EXPECT_EQ("new", bytes("a"));
}

TEST_F(Files, RenamingNeverReplaces)
{
    make("a", "1");
    make("b", "2");
    EXPECT_FALSE(gSys.FileRename(path("a"), path("b")));
    EXPECT_EQ("2", bytes("b"));
    EXPECT_TRUE(gSys.FileRename(path("a"), path("c")));
    EXPECT_FALSE(gSys.FileRename(path("a"), path("d")));
}

TEST_F(Files, PathsAreJoinedAndCut)
{
    const QString separator = QDir::separator();
    EXPECT_EQ(QString("data" + separator + "a.dbf"), gSys.MakePath("data", "a.dbf"));
    EXPECT_EQ("a.dbf", gSys.MakePath("", "a.dbf"));
    EXPECT_EQ("data\\a.dbf", gSys.MakePath("data\\", "a.dbf"));
    EXPECT_EQ("data/a.dbf", gSys.MakePath("data/", "a.dbf"));
    EXPECT_EQ("c:a.dbf", gSys.MakePath("c:", "a.dbf"));
    EXPECT_EQ("a.dbf", gSys.FileNameOnly("c:\\data/x\\a.dbf"));
    EXPECT_EQ("a.dbf", gSys.FileNameOnly("/data\\x/a.dbf"));
    EXPECT_EQ("a.dbf", gSys.FileNameOnly("c:a.dbf"));
    EXPECT_EQ("a.dbf", gSys.FileNameOnly("a.dbf"));
    EXPECT_EQ("", gSys.FileNameOnly("data/"));
}

TEST_F(Files, BothSeparatorsFindAFile)
{
    QDir(m_dir.path()).mkpath("sub");
    make("sub/a.txt");
    EXPECT_TRUE(gSys.FileExists(path("sub\\a.txt")));
    EXPECT_TRUE(gSys.FileExists(path("sub/a.txt")));
}

TEST_F(Files, WrittenTextIsReadBack)
{
    const QString text = QStringLiteral("Müller – 5 €\r\n\0end");
    EXPECT_TRUE(gSys.WriteToFile(text, path("t"), true));
    EXPECT_TRUE(bytes("t").startsWith("M\xFCller \x96 5 \x80\r\n"));
    QString back;
    EXPECT_TRUE(gSys.FileRead(back, path("t")));
    EXPECT_EQ(text, back);
    EXPECT_TRUE(gSys.WriteToFile("short", path("t"), true));
    EXPECT_EQ("short", bytes("t"));
    EXPECT_FALSE(gSys.WriteToFile("x", path("no/such/place"), true));
}

TEST_F(Files, AFileThatCannotBeReplacedIsToldWhenAskedTo)
{
    ScriptedPrompts person;
    EXPECT_FALSE(gSys.WriteToFile("x", path("a*b"), false));
    person
        .expect("Unable to write to : " + path("a*b") +
                ". This file may already be open by another application.")
        .kind(prompts::Kind::Warning)
        .title("Norvane");
    EXPECT_FALSE(gSys.WriteToFile("x", path("a*b"), true));
}

TEST_F(Files, AMissingFileIsReported)
{
    ScriptedPrompts person;
    QString text = "before";
    person.expect("clsSystem_FileRead").kind(prompts::Kind::Critical).title("Error");
    EXPECT_FALSE(gSys.FileRead(text, path("none")));
    EXPECT_EQ("before", text);
}
