// Draws the program's icon at one size: norvane_mkicon ICON.svg PIXELS RESULT.png
#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <QDir>
#include <QFileInfo>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int pixels = arguments.value(2).toInt();
    QSvgRenderer drawing(arguments.value(1));
    if (arguments.size() == 4 && pixels > 0 && drawing.isValid()) {
        QImage picture(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        drawing.render(&painter);
        painter.end();
        QDir().mkpath(QFileInfo(arguments[3]).path());
        if (picture.save(arguments[3]))
            return 0;
    }
    std::fputs("norvane_mkicon ICON.svg PIXELS RESULT.png: cannot draw or write it\n", stderr);
    return 1;
}
