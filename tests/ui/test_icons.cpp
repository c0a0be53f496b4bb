// Every icon of the set draws, in a colour that reads on the palette in force.
#include "common/ui/Icons.h"
#include "TestPlaces.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QPalette>
#include <QScopeGuard>

namespace
{

// The average lightness of what is drawn; -1 when nothing is.
int inkLightness(const QIcon &icon, QIcon::Mode mode = QIcon::Normal)
{
    const QImage image = icon.pixmap(QSize(32, 32), 1.0, mode).toImage();
    int sum = 0;
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (const QColor ink = image.pixelColor(x, y); ink.alpha() > 100) {
                sum += ink.lightness();
                ++count;
            }
    return count == 0 ? -1 : sum / count;
}

TEST(IconsTest, EveryFileOfTheSetIsCompiledInAndDraws)
{
    const QDir folder(QStringLiteral(NORVANE_SOURCE_DIR "/data/icons"));
    const QStringList files = folder.entryList({QStringLiteral("*.svg")});
    ASSERT_GT(files.size(), 30);
    for (const QString &file : files)
        EXPECT_GE(inkLightness(icon(file.chopped(4))), 0) << qPrintable(file);
    EXPECT_TRUE(icon(QStringLiteral("no such icon")).isNull());
    EXPECT_FALSE(applicationIcon().isNull());
}

TEST(IconsTest, LinesTakeTheTextColourOfThePalette)
{
    const QPalette light = QApplication::palette();
    const auto restore = qScopeGuard([light] { QApplication::setPalette(light); });
    const QIcon refresh = icon(QStringLiteral("refresh"));
    EXPECT_LT(inkLightness(refresh), 80);
    QPalette dark = light;
    dark.setColor(QPalette::WindowText, QColor(235, 235, 235));
    QApplication::setPalette(dark);
    EXPECT_GT(inkLightness(refresh), 180);
}

} // namespace
