// Our own icons, drawn in the colours of the palette so that they read on light and dark.
#pragma once

#include <QIcon>
#include <QString>

// The icon data/icons/NAME.svg; a null icon when there is none. Its lines take the text colour of
// the palette in force when it is painted.
QIcon icon(const QString &name);
// The program's own, in its colours.
QIcon applicationIcon();
