#include "CustomerFixture.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTabWidget>

void CustomerForm::open(qint32 rowid, bool edit)
{
    form = std::make_unique<frmCustomer>();
    form->Init(rowid, edit);
    form->show();
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
}

void CustomerForm::openForEdit(qint32 rowid)
{
    open(rowid);
    click("lblEdit");
    ASSERT_TRUE(form->inEditMode());
}

void CustomerForm::click(const char *button)
{
    QTest::mouseClick(find<QPushButton>(button), Qt::LeftButton);
}

void CustomerForm::type(const char *box, const QString &text)
{
    auto *edit = find<QLineEdit>(box);
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
}

void CustomerForm::choose(const char *combo, const QString &item)
{
    auto *box = find<QComboBox>(combo);
    ASSERT_GE(box->findText(item), 0) << qPrintable(item);
    box->setCurrentText(item);
}

void CustomerForm::showPage(int page)
{
    find<QTabWidget>("tabs")->setCurrentIndex(page);
}

QString CustomerForm::stored(qint32 rowid, const char *field) const
{
    return database.stored(schema::Table::Customer, rowid, QLatin1String(field));
}

qint32 CustomerForm::markOwner(qint32 rowid)
{
    qint32 user = -1;
    QString station;
    EXPECT_TRUE(gDB.GetUnderEditInfo(gDB.CustomerTable(), QStringLiteral("nvncust.dbf"), rowid,
                                     user, station));
    return user;
}
