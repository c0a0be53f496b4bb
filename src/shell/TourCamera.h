// Takes the pictures of the tour: the whole screen of the program, its dialogs over its main
// window, whatever platform it runs on.
#pragma once

#include <QPixmap>
#include <QString>

class QWidget;

class TourCamera
{
public:
    explicit TourCamera(QString folder);

    // Saves "NN-name.png" and gives its file name; empty when it cannot be written.
    QString shoot(const QWidget *screen, const QString &name);

private:
    QString m_folder;
    int m_number = 0;
};
