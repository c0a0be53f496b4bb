#include "MainWindowFixture.h"

#include "common/ui/FormWindow.h"
#include "shell/StatusPanel.h"

#include <QMdiArea>
#include <QMenu>
#include <QTest>

void MainWindow::openWithoutDatabase()
{
    main = std::make_unique<frmMain>();
    main->showNormal();
    main->resize(1280, 800);
    main->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(main.get()));
}

void MainWindow::openWithDatabase()
{
    database = std::make_unique<TempDatabase>();
    openWithoutDatabase();
    QCoreApplication::processEvents();
}

bool MainWindow::menuShown(const char *menu) const
{
    return find<QMenu>(menu)->menuAction()->isVisible();
}

QStringList MainWindow::statusTexts() const
{
    return {find<StatusPanel>("pnlLocation")->text(), find<StatusPanel>("pnlUser")->text(),
            find<StatusPanel>("pnlEdition")->text()};
}

QMdiArea *MainWindow::area() const
{
    return find<QMdiArea>("mdiArea");
}

FormWindow *MainWindow::window(const char *className)
{
    for (FormWindow *form : openForms()) {
        if (form->formName() == QLatin1String(className))
            return form;
    }
    ADD_FAILURE() << "not open: " << className;
    return nullptr;
}

QStringList MainWindow::openTags()
{
    QStringList tags;
    for (const FormWindow *form : openForms())
        tags += form->tagText();
    return tags;
}
