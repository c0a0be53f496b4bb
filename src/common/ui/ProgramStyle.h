// The platform's style, but with the same plain buttons in dialogs as in all other windows.
#pragma once

#include <QProxyStyle>

class ProgramStyle : public QProxyStyle
{
    Q_OBJECT
public:
    // Over the style the application has now.
    static void install();

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override;

private:
    using QProxyStyle::QProxyStyle;
};
