// The guided tour is the whole program at work; here it must come out right.
#include "TestPlaces.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

TEST(Tour, GoesThroughTheProgramAndSavesPictures)
{
    const QTemporaryDir folder;
    QProcess tour;
    tour.setProcessChannelMode(QProcess::MergedChannels);
    tour.start(QStringLiteral(NORVANE_BINARY_DIR "/bin/norvane"),
               {"--tour", folder.filePath("pictures")});
    ASSERT_TRUE(tour.waitForFinished(100000));
    const QString said = QString::fromUtf8(tour.readAll());
    EXPECT_EQ(tour.exitCode(), 0) << qPrintable(said);
    EXPECT_TRUE(said.contains("steps came out right.")) << qPrintable(said);

    const QDir pictures(folder.filePath("pictures"));
    const QStringList files = pictures.entryList({"*.png"}, QDir::Files, QDir::Name);
    EXPECT_GE(files.size(), 20);
    for (const QString &file : files.mid(1)) // the first is the splash
        EXPECT_EQ(QImage(pictures.filePath(file)).size(), QSize(1280, 800)) << qPrintable(file);
}

TEST(Tour, FailsWhenItsDatabaseCannotBeMade)
{
    const QTemporaryDir folder;
    QFile inTheWay(folder.filePath("nvnuser.dbf"));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    inTheWay.close();
    QProcess tour;
    tour.start(QStringLiteral(NORVANE_BINARY_DIR "/bin/norvane"),
               {"--tour", folder.filePath("pictures"), folder.path()});
    ASSERT_TRUE(tour.waitForFinished(60000));
    EXPECT_EQ(tour.exitCode(), 1);
    EXPECT_TRUE(tour.readAllStandardOutput().contains("The tour stopped"));
}
