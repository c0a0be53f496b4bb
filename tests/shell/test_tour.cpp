// The guided tour is the whole program at work; here it must come out right.
#include "TestPlaces.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

class Tour : public ::testing::TestWithParam<const char *>
{
};

TEST_P(Tour, GoesThroughTheProgramAndSavesPictures)
{
    const QTemporaryDir folder;
    QProcess tour;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", GetParam());
    environment.insert("LANGUAGE", GetParam());
    tour.setProcessEnvironment(environment);
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

// The second writes numbers and dates in another way.
INSTANTIATE_TEST_SUITE_P(InLanguages, Tour, ::testing::Values("en_US.UTF-8", "de_DE.UTF-8"),
                         [](const auto &language) { return std::string(language.param, 2); });

TEST(TourProblems, FailsWhenItsDatabaseCannotBeMade)
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
