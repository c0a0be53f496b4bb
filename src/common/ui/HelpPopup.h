// One chapter of the manual in a small window over the one in use; Esc or a click beside it ends
// it.
#pragma once

#include <QFrame>

class HelpPopup : public QFrame
{
    Q_OBJECT
public:
    HelpPopup(const QString &file, int topic, QWidget *parent);

    void showOverParent();
};
