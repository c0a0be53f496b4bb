// The person and the machine are reached through few doors, so that tests can stand in for both.
#include "house/SourceTree.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

namespace
{

struct Door {
    const char *what;
    QRegularExpression use;
    QRegularExpression where; // the files behind it
};

const std::vector<Door> &doors()
{
    static const QRegularExpression host("^src/common/base/Host\\.cpp$");
    // The engine dates the headers of its tables, and knows no host.
    static const QRegularExpression clockReaders(
        "^src/(common/base/Host|db/engine/TableFormat)\\.cpp$");
    static const QRegularExpression desktop("^src/common/ui/Gui[A-Z]\\w*\\.(h|cpp)$");
    static const QRegularExpression clock(
        "\\bQ(Date|Time|DateTime)::current\\w+|\\bsystem_clock\\b|\\bstd::time\\b");
    static const std::vector<Door> all{
        {"message boxes", QRegularExpression("\\bQMessageBox\\b"), desktop},
        {"file dialogs", QRegularExpression("\\bQFileDialog\\b"), desktop},
        {"input boxes", QRegularExpression("\\bQInputDialog\\b"), desktop},
        {"the print dialog", QRegularExpression("\\bQPrintDialog\\b"), desktop},
        {"the desktop's programs", QRegularExpression("\\bQDesktopServices\\b"), desktop},
        {"processes", QRegularExpression("\\bQProcess\\b"), host},
        {"the clock", clock, clockReaders},
        {"the computer's name", QRegularExpression("\\bmachineHostName\\b|\\bgethostname\\b"),
         host},
    };
    return all;
}

} // namespace

TEST(Doors, NothingReachesAroundThem)
{
    for (const SourceFile &file : sourceFiles("src")) {
        for (qsizetype i = 0; i < file.lines.size(); ++i) {
            const QString code = codeOnly(file.lines[i]);
            for (const Door &door : doors()) {
                EXPECT_FALSE(door.use.match(code).hasMatch() &&
                             !door.where.match(file.path).hasMatch())
                    << qPrintable(file.path) << ":" << i + 1 << " uses " << door.what;
            }
        }
    }
}

TEST(Doors, TheSearchSeesCodeAndNothingElse)
{
    EXPECT_EQ("f(, b); ", codeOnly("f(\"QMessageBox \\\" // x\", b); // QProcess"));
    EXPECT_EQ("QMessageBox::warning();", codeOnly("QMessageBox::warning();"));
}
