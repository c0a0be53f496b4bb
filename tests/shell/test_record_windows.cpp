// The windows of a customer's records beside each other in the main window.
#include "MainWindowFixture.h"

#include "common/ui/FormWindow.h"
#include "common/ui/ListView.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTabWidget>

namespace
{

const char *const gone = "Record cannot be accessed or no longer exists.";

} // namespace

TEST_F(MainWindow, ASubscriptionOpensOnlyWithItsCustomer)
{
    openWithDatabase();
    const qint32 ann = database->addCustomer({{"lastname", "Smith"}});
    const qint32 held = database->addSubscription({{"custid", ann}, {"psid", 1000}});
    main->ShowPS(held, 0, false);
    main->ShowPS(-1, -1, true);
    EXPECT_EQ(openTags(), QStringList());
    person.expectText(gone);
    main->ShowPS(held, 4711, false);
    person.expectText(gone);
    main->ShowPS(4711, ann, false);
    EXPECT_EQ(openTags(), QStringList());

    main->ShowPS(held, ann, false);
    main->ShowPS(-1, ann, true);
    const QStringList tags{u'P' + QString::number(held), QStringLiteral("P-1")};
    EXPECT_EQ(openTags(), tags);
    auto *fresh = openForms().last();
    fresh->findChild<QLineEdit *>("txtShortDesc")->setText("Halfway");
    main->ShowPS(held, ann, false); // raised
    EXPECT_EQ(area()->activeSubWindow()->widget(), openForms().first());
    main->ShowPS(-1, database->addCustomer({{"lastname", "Brown"}}), true);
    EXPECT_EQ(openTags(), tags);
    EXPECT_EQ(area()->activeSubWindow()->widget(), fresh);
    EXPECT_EQ(fresh->findChild<QLineEdit *>("txtShortDesc")->text(), "Halfway");
    person.expect("Do you wish to discard", Answer::Yes);
    fresh->close();
}

TEST_F(MainWindow, ASavedSubscriptionIsInItsCustomersWindowAtOnce)
{
    openWithDatabase();
    const qint32 ann = database->addCustomer({{"lastname", "Smith"}});
    database->addListItem(2, "Printer");
    main->ShowCustomer(ann, false);
    auto *customer = window("frmCustomer");
    customer->findChild<QTabWidget *>("tabs")->setCurrentIndex(2);
    customer->findChild<QPushButton *>("cmdNewPS")->click();
    auto *form = window("frmPS");
    ASSERT_NE(form, nullptr);
    form->findChild<QComboBox *>("cboPS")->setCurrentText("Printer");
    form->findChild<QPushButton *>("cmdApply")->click();
    const auto *list = customer->findChild<ListView *>("lvPS");
    ASSERT_EQ(list->itemCount(), 1);
    EXPECT_EQ(list->itemText(0, 0), "Printer");
    EXPECT_EQ(LvGetSelectedItemKey(list), "N1000");

    form->findChild<QPushButton *>("lblEdit")->click();
    person.expect("DELETE", Answer::Yes);
    form->findChild<QPushButton *>("cmdDelete")->click();
    EXPECT_EQ(list->itemCount(), 0);
    EXPECT_EQ(openTags(), QStringList(u'C' + QString::number(ann)));
}
