// Where windows stand: the main window's saved place, child windows, and their arrangement.
#include "MainWindowFixture.h"

#include "common/base/Preferences.h"
#include "common/ui/FormWindow.h"
#include "shell/clsWndStartupPos.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QScreen>
#include <QTest>

namespace
{

class WideForm : public FormWindow
{
    Q_OBJECT
public:
    using FormWindow::FormWindow;
    QSize sizeHint() const override { return {4000, 300}; }
};

class SmallForm : public FormWindow
{
    Q_OBJECT
public:
    using FormWindow::FormWindow;
    QSize sizeHint() const override { return {400, 300}; }
};

void savePlace(int left, int top, int width, int height, int state)
{
    SetPrefLong("left", left);
    SetPrefLong("top", top);
    SetPrefLong("width", width);
    SetPrefLong("height", height);
    SetPrefLong("windowstate", state);
}

bool startsMaximised()
{
    QWidget window;
    clsWndStartupPos::RestorePosition(&window);
    return window.isMaximized();
}

} // namespace

TEST(StartupPosition, ComesBackWhereItWas)
{
    const TempPreferences preferences;
    savePlace(40, 30, 500, 400, 0);
    QWidget window;
    clsWndStartupPos::RestorePosition(&window);
    EXPECT_EQ(QRect(window.pos(), window.size()), QRect(40, 30, 500, 400));
    EXPECT_FALSE(window.isMaximized());
}

TEST(StartupPosition, WhatIsNotOnTheScreenStartsMaximised)
{
    const TempPreferences preferences;
    EXPECT_TRUE(startsMaximised()) << "first run";
    const QSize screen = QApplication::primaryScreen()->virtualSize();
    for (const QRect &place :
         {QRect(-1, 0, 500, 400), QRect(0, -1, 500, 400), QRect(screen.width() + 1, 0, 500, 400),
          QRect(0, screen.height() + 1, 500, 400), QRect(0, 0, 0, 400), QRect(0, 0, 500, 0)}) {
        savePlace(place.x(), place.y(), place.width(), place.height(), 0);
        EXPECT_TRUE(startsMaximised()) << place.x() << ',' << place.y();
    }
    savePlace(0, 0, 500, 400, 2);
    EXPECT_TRUE(startsMaximised());
    savePlace(screen.width(), screen.height(), 1, 1, 0);
    EXPECT_FALSE(startsMaximised());
    SetPrefStr("width", "wide");
    EXPECT_TRUE(startsMaximised());
    savePlace(10, 10, 2147483647, 2147483647, 0);
    QWidget window;
    clsWndStartupPos::RestorePosition(&window);
    EXPECT_EQ(window.size(), screen);
}

TEST(StartupPosition, AMinimisedWindowKeepsThePlaceSavedBefore)
{
    const TempPreferences preferences;
    savePlace(40, 30, 500, 400, 0);
    QWidget window;
    window.setGeometry(100, 120, 300, 200);
    window.showMinimized();
    clsWndStartupPos::SavePosition(&window);
    EXPECT_EQ(GetPrefLong("width"), 500);
    window.showNormal();
    clsWndStartupPos::SavePosition(&window);
    EXPECT_EQ(GetPrefLong("width"), 300);
    EXPECT_EQ(GetPrefLong("left"), window.x());
    EXPECT_EQ(GetPrefStr("windowstate"), "0");
    window.showMaximized();
    clsWndStartupPos::SavePosition(&window);
    EXPECT_EQ(GetPrefStr("windowstate"), "2");
}

class ChildWindows : public MainWindow
{
protected:
    QMdiSubWindow *show(FormWindow *form)
    {
        main->showChild(form);
        return qobject_cast<QMdiSubWindow *>(form->parentWidget());
    }
    QRect room() const { return area()->viewport()->rect(); }
};

TEST_F(ChildWindows, OpenAtTheSizeTheyWantButInsideTheMainWindow)
{
    openWithDatabase();
    const QMdiSubWindow *small = show(new SmallForm);
    EXPECT_EQ(small->widget()->size(), QSize(400, 300));
    const QPoint next = show(new SmallForm)->pos() - small->pos();
    EXPECT_GT(next.x(), 0);
    EXPECT_EQ(next.x(), next.y());
    const QMdiSubWindow *wide = show(new WideForm);
    EXPECT_EQ(wide->width(), room().width());
    for (int count = 0; count < 12; ++count)
        EXPECT_TRUE(room().contains(show(new SmallForm)->geometry())) << count;
}

TEST_F(ChildWindows, OpenMaximisedWhenTheOneInUseIs)
{
    openWithDatabase();
    show(new SmallForm)->showMaximized();
    QMdiSubWindow *second = show(new SmallForm);
    EXPECT_TRUE(second->isMaximized());
    second->showNormal();
    EXPECT_TRUE(room().contains(second->geometry()));
    second->close();
    EXPECT_EQ(openForms().size(), 1);
}

TEST_F(ChildWindows, RememberTheirSizeByKind)
{
    openWithDatabase();
    QMdiSubWindow *first = show(new SmallForm);
    first->resize(620, 410);
    first->widget()->close(); // the form's own Close
    QMdiSubWindow *second = show(new SmallForm);
    EXPECT_EQ(second->size(), QSize(620, 410));
    second->resize(640, 420);
    second->close(); // the frame's
    QMdiSubWindow *third = show(new SmallForm);
    EXPECT_EQ(third->size(), QSize(640, 420));
    third->showMaximized();
    third->close();
    EXPECT_EQ(show(new SmallForm)->size(), QSize(640, 420));
    EXPECT_NE(show(new WideForm)->size(), QSize(640, 420));
}

TEST_F(ChildWindows, ForgetTheSizesOfAnArrangement)
{
    openWithDatabase();
    const QSize before = show(new SmallForm)->size();
    show(new WideForm);
    for (const char *arrangement : {"mnuWindowTH", "mnuWindowTV", "mnuWindowCascade"}) {
        choose(arrangement);
        openForms().first()->close();
        EXPECT_EQ(show(new SmallForm)->size(), before) << arrangement;
    }
}

TEST_F(ChildWindows, CascadeWithinTheMainWindowTheActiveOneInFront)
{
    openWithDatabase();
    QList<QMdiSubWindow *> frames;
    for (int count = 0; count < 14; ++count)
        frames += show(count == 0 ? static_cast<FormWindow *>(new WideForm) : new SmallForm);
    area()->setActiveSubWindow(frames[3]);
    choose("mnuWindowCascade");
    for (const QMdiSubWindow *frame : frames)
        EXPECT_TRUE(room().contains(frame->geometry()));
    EXPECT_EQ(area()->subWindowList(QMdiArea::StackingOrder).last(), frames[3]);
    EXPECT_EQ(area()->activeSubWindow(), frames[3]);
    EXPECT_GT(frames[1]->y(), frames[0]->y());
}

TEST_F(ChildWindows, TilingSqueezesNoWindowBelowWhatItNeeds)
{
    openWithDatabase();
    QMdiSubWindow *first = show(new SmallForm);
    QMdiSubWindow *tall = show(new SmallForm);
    QMdiSubWindow *third = show(new SmallForm);
    tall->widget()->setMinimumHeight(420);
    choose("mnuWindowTH");
    EXPECT_GE(tall->widget()->height(), 420);
    EXPECT_LE(qAbs(first->height() - third->height()), 1);
    EXPECT_EQ(first->height() + tall->height() + third->height(), room().height());
    first->widget()->setMinimumHeight(420); // more than there is: overlapping, but not cut off
    choose("mnuWindowTH");
    EXPECT_GE(first->widget()->height(), 420);
    for (const QMdiSubWindow *window : {first, tall, third})
        EXPECT_TRUE(room().contains(window->geometry()));
}

TEST_F(ChildWindows, TileSideBySideWhereOneColumnIsNotEnough)
{
    openWithDatabase();
    QList<QMdiSubWindow *> windows;
    for (int at = 0; at < 5; ++at) {
        windows += show(new SmallForm);
        windows.last()->widget()->setMinimumSize(300, 160); // three fit below each other
    }
    for (const char *tiling : {"mnuWindowTH", "mnuWindowTV"}) {
        choose(tiling);
        int covered = 0;
        for (const QMdiSubWindow *window : windows) {
            covered += window->width() * window->height();
            EXPECT_TRUE(room().contains(window->geometry())) << tiling;
            for (const QMdiSubWindow *other : windows)
                EXPECT_TRUE(window == other || !window->geometry().intersects(other->geometry()))
                    << tiling;
        }
        EXPECT_EQ(covered, room().width() * room().height()) << tiling;
    }
}

// What people have open when they work: two customers and two issues on a small screen.
TEST_F(ChildWindows, RecordWindowsTileWithoutOverlapping)
{
    openWithDatabase();
    QList<QMdiSubWindow *> windows;
    for (const char *name : {"Smith", "Jones"}) {
        const qint32 customer = database->addCustomer({{"lastname", name}});
        main->ShowCustomer(customer, false);
        main->ShowIssue(database->addIssue({{"custid", customer}}), customer, false, -1);
    }
    windows = area()->subWindowList();
    ASSERT_EQ(windows.size(), 4);
    for (const char *tiling : {"mnuWindowTH", "mnuWindowTV"}) {
        choose(tiling);
        for (const QMdiSubWindow *window : windows)
            for (const QMdiSubWindow *other : windows)
                EXPECT_TRUE(window == other || !window->geometry().intersects(other->geometry()))
                    << tiling << " needs " << window->minimumSizeHint().width() << 'x'
                    << window->minimumSizeHint().height();
    }
}

TEST_F(ChildWindows, TileInRowsAndInColumns)
{
    openWithDatabase();
    QMdiSubWindow *first = show(new SmallForm);
    QMdiSubWindow *second = show(new SmallForm);
    QMdiSubWindow *third = show(new SmallForm);
    third->showMinimized();
    choose("mnuWindowTH");
    EXPECT_EQ(first->width(), room().width());
    EXPECT_EQ(first->height() + second->height(), room().height());
    EXPECT_FALSE(first->geometry().intersects(second->geometry()));
    choose("mnuWindowTV");
    EXPECT_EQ(first->height(), room().height());
    EXPECT_EQ(first->width() + second->width(), room().width());
    EXPECT_TRUE(third->isMinimized());
    third->move(50, 50);
    choose("mnuWindowArrangeIcons");
    EXPECT_EQ(third->geometry().bottomLeft(), room().bottomLeft());
}

TEST_F(ChildWindows, AreListedInTheWindowMenu)
{
    openWithDatabase();
    auto *menu = find<QMenu>("mnuWindow");
    const qsizetype commands = menu->actions().size();
    Q_EMIT menu->aboutToShow();
    EXPECT_EQ(menu->actions().size(), commands);
    EXPECT_FALSE(enabled("mnuWindowCascade"));

    auto *first = new SmallForm;
    first->setWindowTitle("Customer: Mills & Sons");
    QMdiSubWindow *frame = show(first);
    show(new SmallForm);
    for (int time = 0; time < 2; ++time)
        Q_EMIT menu->aboutToShow();
    ASSERT_EQ(menu->actions().size(), commands + 3);
    QAction *entry = menu->actions().at(commands + 1);
    EXPECT_EQ(entry->text(), "&1 Customer: Mills && Sons");
    EXPECT_FALSE(entry->isChecked());
    EXPECT_TRUE(menu->actions().at(commands + 2)->isChecked());
    frame->showMinimized();
    entry->trigger();
    EXPECT_EQ(area()->activeSubWindow(), frame);
    EXPECT_FALSE(frame->isMinimized());
    choose("mnuWindowCloseAll");
    EXPECT_TRUE(openForms().isEmpty());
}

#include "test_window_places.moc"
