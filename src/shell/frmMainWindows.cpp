// The child windows and the Window menu.
#include "shell/frmMain.h"

#include "common/base/clsSystem.h"
#include "common/ui/FormWindow.h"
#include "shell/ChildWindow.h"
#include "shell/MdiArrange.h"
#include "ui_frmMain.h"

#include <QMenu>

namespace
{

constexpr int longestTitle = 80; // characters: one may tell the words of a long search

} // namespace

void frmMain::tileHorizontally()
{
    tileWindows(ui->mdiArea, Tiling::Horizontally);
    noteSizesGiven();
}

void frmMain::tileVertically()
{
    tileWindows(ui->mdiArea, Tiling::Vertically);
    noteSizesGiven();
}

void frmMain::cascade()
{
    cascadeWindows(ui->mdiArea);
    noteSizesGiven();
}

void frmMain::arrangeMinimised()
{
    arrangeIcons(ui->mdiArea);
}

void frmMain::showChild(QWidget *form)
{
    const QMdiSubWindow *behind = ui->mdiArea->activeSubWindow();
    auto *frame = new ChildWindow(form);
    frame->setWindowIcon(windowIcon());
    ui->mdiArea->addSubWindow(frame);
    frame->show();
    frame->openAtItsSize(behind);
    ui->mdiArea->setActiveSubWindow(frame);
    frame->focusForm();
}

void frmMain::noteSizesGiven()
{
    for (QMdiSubWindow *window : ui->mdiArea->subWindowList()) {
        if (auto *child = qobject_cast<ChildWindow *>(window))
            child->noteSizeGiven();
    }
}

void frmMain::closeAllWindows()
{
    UnloadAll(QStringLiteral("MAINFORM"));
}

// The commands stay; behind them the open windows are listed anew each time.
void frmMain::fillWindowMenu()
{
    QMenu *menu = menuNamed(QStringLiteral("mnuWindow"));
    const QAction *lastCommand = command(QStringLiteral("mnuWindowCloseAll"));
    const QList<QMdiSubWindow *> windows = ui->mdiArea->subWindowList();
    bool listed = false; // entries of the time before
    for (QAction *entry : menu->actions()) {
        if (listed)
            delete entry;
        else
            entry->setEnabled(!windows.isEmpty());
        listed = listed || entry == lastCommand;
    }
    if (!windows.isEmpty())
        menu->addSeparator();
    for (int at = 0; at < windows.size(); ++at)
        listWindow(menu, windows[at], at + 1);
}

void frmMain::listWindow(QMenu *menu, QMdiSubWindow *window, int number)
{
    QString title = clsSystem::StrTruncate(window->windowTitle(), longestTitle);
    title.replace(u'&', QLatin1String("&&"));
    if (number < 10)
        title.prepend(QString(u'&' + QString::number(number) + u' '));
    QAction *entry = menu->addAction(title);
    entry->setCheckable(true);
    entry->setChecked(window == ui->mdiArea->activeSubWindow());
    connect(entry, &QAction::triggered, window, [this, window] {
        if (window->isMinimized())
            window->showNormal();
        ui->mdiArea->setActiveSubWindow(window);
    });
}
