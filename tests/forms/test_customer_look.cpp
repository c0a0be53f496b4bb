// What is locked, in which colour, and how the window fits the screen.
#include "CustomerFixture.h"

#include "common/ui/Controls.h"
#include "common/ui/Grid.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QToolButton>

namespace
{

QColor back(const QWidget *control)
{
    return control->palette().color(QPalette::Base);
}

} // namespace

TEST_F(CustomerForm, EveryControlThatChangesTheRecordIsTagged)
{
    openNew();
    QStringList open;
    const auto controls = form->findChildren<QWidget *>();
    for (const QWidget *control : controls) {
        const bool input = qobject_cast<const QPlainTextEdit *>(control) != nullptr ||
                           qobject_cast<const QComboBox *>(control) != nullptr ||
                           (qobject_cast<const QLineEdit *>(control) != nullptr &&
                            !static_cast<const QLineEdit *>(control)->isReadOnly() &&
                            qobject_cast<QComboBox *>(control->parentWidget()) == nullptr);
        if (input && controlTag(control) != u"E")
            open.append(control->objectName());
    }
    EXPECT_EQ(open.join(u' '), QString());
    for (const char *button : {"cmdDelete", "OKButton", "cmdApply", "cmdDTStamp_Notes"})
        EXPECT_EQ(controlTag(find<QPushButton>(button)), "E") << button;
    for (const char *button :
         {"cboCatCategory", "cmdCatStates", "cboCatCountry", "cmdCust1Cat", "cmdCust2Cat"})
        EXPECT_EQ(controlTag(find<QToolButton>(button)), "E") << button;
    for (const char *button : {"CancelButton", "cmdPrint", "cmdLabel", "cmdRefresh", "lblEdit"})
        EXPECT_EQ(controlTag(find<QPushButton>(button)), "") << button;
    person.expect("Do you wish to discard", Answer::Yes);
    form->close();
}

TEST_F(CustomerForm, ReadOnlyIsPaleYellowAndStaysSelectable)
{
    const QColor yellow(0xFF, 0xFF, 0xC0);
    open(database.addCustomer({{"company", "Acme"}}));
    auto *company = find<QLineEdit>("txtCoName");
    auto *mode = find<QLabel>("EM");
    EXPECT_EQ(mode->text(), "read-only");
    EXPECT_EQ(mode->palette().color(QPalette::Window), yellow);
    EXPECT_TRUE(company->isEnabled());
    EXPECT_TRUE(company->isReadOnly());
    EXPECT_EQ(back(company), yellow);
    EXPECT_FALSE(find<QComboBox>("cboStates")->isEnabled());
    EXPECT_EQ(back(find<Grid>("grdContacts")), yellow);
    EXPECT_FALSE(find<Grid>("grdContacts")->isEditable());

    click("lblEdit");
    EXPECT_EQ(mode->text(), "edit-data");
    EXPECT_EQ(mode->palette().color(QPalette::Window), QColor(Qt::white));
    EXPECT_FALSE(company->isReadOnly());
    EXPECT_EQ(back(company), QColor(Qt::white));
    EXPECT_EQ(back(find<Grid>("grdContacts")), QColor(Qt::white));
    EXPECT_TRUE(find<Grid>("grdContacts")->isEditable());
    click("cmdApply");
}

TEST_F(CustomerForm, ColoursFollowAChangeToADarkPalette)
{
    open(database.addCustomer({{"company", "Acme"}}));
    const QPalette before = QApplication::palette();
    QPalette dark(QColor(0x35, 0x35, 0x35));
    dark.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
    dark.setColor(QPalette::Text, Qt::white);
    QApplication::setPalette(dark);
    QCoreApplication::processEvents();
    for (const QWidget *control : {static_cast<QWidget *>(find<QLineEdit>("txtCoName")),
                                   static_cast<QWidget *>(find<Grid>("grdContacts"))}) {
        EXPECT_LT(back(control).lightness(), 128);
        EXPECT_GT(control->palette().color(QPalette::Text).lightness(), 200);
    }
    const QPalette banner = find<QLabel>("EM")->palette();
    EXPECT_LT(banner.color(QPalette::Window).lightness(), 128);
    EXPECT_GT(banner.color(QPalette::WindowText).lightness(), 200);
    QApplication::setPalette(before);
    QCoreApplication::processEvents();
    EXPECT_EQ(back(find<QLineEdit>("txtCoName")), QColor(0xFF, 0xFF, 0xC0));
}

TEST_F(CustomerForm, FitsASmallMainWindow)
{
    openNew();
    const QSize least = form->minimumSizeHint();
    EXPECT_LE(least.width(), 1000);
    EXPECT_LE(least.height(), 540); // 1024 x 700 less menus, bars and the window's frame
    person.expect("Do you wish to discard", Answer::Yes);
    form->close();
}

TEST_F(CustomerForm, TabGoesThroughTheFieldsInTheirOrder)
{
    openNew();
    QStringList order;
    for (int step = 0; step < 6; ++step) {
        order.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order.join(u' '), "txtCustNo cboSalutation txtFname txtLname txtCoName cboCategory");
    person.expect("Do you wish to discard", Answer::Yes);
    form->close();
}
