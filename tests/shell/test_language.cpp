// The program in another language than that of its sources.
#include "MainWindowFixture.h"

#include "common/ui/FormWindow.h"
#include "shell/Language.h"

#include <QLabel>
#include <QMenu>
#include <QPushButton>

namespace
{

QString withoutKey(QString text)
{
    return text.remove(u'&');
}

} // namespace

TEST_F(MainWindow, SpeaksGermanAndThenEnglishAgain)
{
    struct Case {
        const char *code, *menu, *entry, *caption, *label, *button, *ownName;
    };
    const Case cases[] = {
        {"de_AT", "Datei", "Neuer Kunde", "Kunde: Smith", "Nachname:", "Daten bearbeiten", "Ort:"},
        {"en", "File", "New Customer", "Customer: Smith", "Last Name:", "Edit Data", "City:"},
    };
    for (const Case &expected : cases) {
        const Language language(QLatin1String(expected.code));
        openWithDatabase();
        EXPECT_EQ(withoutKey(find<QMenu>("mnuFile")->title()), expected.menu);
        EXPECT_EQ(withoutKey(find<QAction>("mnuViewNewCustomer")->text()), expected.entry);
        main->ShowCustomer(database->addCustomer({{"lastname", "Smith"}}), false);
        auto *customer = window("frmCustomer");
        ASSERT_NE(customer, nullptr);
        EXPECT_TRUE(customer->windowTitle().startsWith(expected.caption));
        EXPECT_EQ(withoutKey(customer->findChild<QPushButton *>("lblEdit")->text()),
                  expected.button);
        QStringList labels;
        for (const QLabel *label : customer->findChildren<QLabel *>())
            labels += withoutKey(label->text());
        EXPECT_TRUE(labels.contains(expected.label)) << qPrintable(labels.join(u'\n'));
        EXPECT_TRUE(labels.contains(expected.ownName)) << qPrintable(labels.join(u'\n'));
        customer->close();
        main.reset();
        database.reset();
    }
}

TEST(Language, OnlyWhatIsThereCanBeChosen)
{
    EXPECT_TRUE(Language::isThere("de"));
    EXPECT_TRUE(Language::isThere("de-CH"));
    EXPECT_TRUE(Language::isThere("en_GB"));
    EXPECT_FALSE(Language::isThere("tlh"));
    EXPECT_FALSE(Language::isThere("template"));
}
