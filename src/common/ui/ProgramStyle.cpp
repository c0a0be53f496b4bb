#include "common/ui/ProgramStyle.h"

#include <QApplication>

void ProgramStyle::install()
{
    QApplication::setStyle(new ProgramStyle(QApplication::style()->name())); // owned from now on
}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                            QStyleHintReturn *returnData) const
{
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}
