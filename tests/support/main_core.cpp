// Entry of the test programs that have no windows.
#include "support/TempPreferences.h"
#include "support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

int main(int argc, char **argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    QCoreApplication application(argc, argv);
    const TempPreferences preferences;
    prepareTestEnvironment();
    return RUN_ALL_TESTS();
}
