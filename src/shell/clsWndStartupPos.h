// The main window's place on the screen, kept in the preferences between two runs.
#pragma once

#include <QString>
#include <QtGlobal>

class QWidget;

class clsWndStartupPos
{
public:
    // A minimised window saves nothing.
    static void SavePosition(const QWidget *form);
    // A saved place that is no longer on the screen, or none at all, starts maximised.
    static void RestorePosition(QWidget *form);
    static qint32 GetValueLong(const QString &name);
};
