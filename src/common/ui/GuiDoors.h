// The real boxes, file dialogs and windows behind prompts:: and printing::, and the desktop's side
// of host().
#pragma once

#include <QString>
#include <QStringList>

class QWidget;

// Fills prompts::backend(), printing::backend(), and pumpEvents, repaint, setBusy and open of
// host(), and has F1 open the manual. Boxes stand over the window in use, else over the main
// window, which may be null.
void installGuiDoors(QWidget *mainWindow);

namespace guidoors
{

// "Label (*.csv)|*.csv|All Files (*.*)|*.*" as the toolkit wants it.
QStringList nameFilters(const QString &filter);

} // namespace guidoors
