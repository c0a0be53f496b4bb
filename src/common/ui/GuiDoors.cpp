#include "common/ui/GuiDoors.h"

#include "common/base/Host.h"
#include "common/base/Prompts.h"
#include "common/ui/GuiDialogs.h"
#include "common/ui/GuiPrinting.h"
#include "common/ui/Help.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace
{

// The hourglass is one state, not a count.
void setBusy(bool busy)
{
    if (busy && QGuiApplication::overrideCursor() == nullptr) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    } else if (!busy) {
        while (QGuiApplication::overrideCursor() != nullptr)
            QGuiApplication::restoreOverrideCursor();
    }
}

bool openItem(const QString &item)
{
    if (item.isEmpty())
        return false;
    if (QFileInfo::exists(item))
        return QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(item).absoluteFilePath()));
    // A scheme of one letter is a drive, and so a file that is not there.
    const QUrl address(item, QUrl::TolerantMode);
    if (address.scheme().size() > 1)
        return QDesktopServices::openUrl(address);
    if (item.startsWith(QLatin1String("www."), Qt::CaseInsensitive))
        return QDesktopServices::openUrl(QUrl(QLatin1String("https://") + item));
    return false;
}

} // namespace

void installGuiDoors(QWidget *mainWindow)
{
    installHelpKey();
    guidialogs::setMainWindow(mainWindow);
    prompts::Backend &backend = prompts::backend();
    backend.message = guidialogs::message;
    backend.text = guidialogs::longText;
    backend.input = guidialogs::input;
    backend.folder = guidialogs::folder;
    backend.openFile = guidialogs::openFile;
    backend.saveFile = guidialogs::saveFile;
    backend.progress = guidialogs::progress;

    printing::backend() = {guiprinting::preview, guiprinting::dialog, guiprinting::options};

    host().pumpEvents = [] { QCoreApplication::processEvents(); };
    host().repaint = [] { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); };
    host().setBusy = setBusy;
    host().open = openItem;
}
