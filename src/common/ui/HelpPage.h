// A page of the manual: text that follows the palette, links inside it followed here, links to
// elsewhere opened by the system.
#pragma once

#include <QTextBrowser>

class HelpPage : public QTextBrowser
{
    Q_OBJECT
public:
    explicit HelpPage(QWidget *parent = nullptr);

    // Reads the manual; false when it cannot be read.
    bool read(const QString &file);
    void goTo(const QString &anchor); // the beginning when there is no such anchor

private:
    void follow(const QUrl &link);
};

// "t1300"
QString helpAnchor(int topic);
