// The steps of the tour on the records of a customer.
#include "common/base/clsSystem.h"
#include "common/ui/ListView.h"
#include "db/AttachmentFolder.h"
#include "db/clsDB.h"
#include "forms/frmCustomer.h"
#include "forms/frmPS.h"
#include "shell/TourHands.h"

#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>

using hands::typeInto;

void Tour::addSubscription()
{
    auto *customer = newestForm<frmCustomer>();
    control<QTabWidget>(customer, "tabs")->setCurrentIndex(2);
    shoot(QStringLiteral("customer-no-products"));
    control<QPushButton>(customer, "cmdNewPS")->click();
    auto *form = newestForm<frmPS>();
    need(form->inEditMode(), QStringLiteral("a new subscription is not open for editing"));
    control<QComboBox>(form, "cboPS")->setCurrentText(QStringLiteral("Office Copier OC-45"));
    typeInto(control<QLineEdit>(form, "txtShortDesc"), QStringLiteral("In the packing room"));
    typeInto(control<QLineEdit>(form, "txtContractNumber"), QStringLiteral("OC45-2291"));
    typeInto(control<QLineEdit>(form, "txtDateTerminated"),
             clsSystem::DBDateToDislayDate(QStringLiteral("20291231")));
    shoot(QStringLiteral("new-subscription"));
    control<QPushButton>(form, "cmdApply")->click();
    need(form->rowid() >= 1000 && !form->inEditMode(),
         QStringLiteral("the subscription was not saved"));
    shoot(QStringLiteral("subscription-saved"));
    attachContract(form);
    control<QPushButton>(form, "OKButton")->click();
    auto *list = control<ListView>(customer, "lvPS");
    need(list->itemCount() == 1 && list->itemText(0, 1) == QLatin1String("In the packing room"),
         QStringLiteral("the customer's list does not show the subscription"));
    shoot(QStringLiteral("customer-products"));
    control<QTabWidget>(customer, "tabs")->setCurrentIndex(0);
}

void Tour::attachContract(frmPS *form)
{
    QFile contract(m_temporary.filePath(QStringLiteral("Contract for the copier.txt")));
    need(contract.open(QIODevice::WriteOnly), QStringLiteral("the contract cannot be written"));
    contract.write("Service twice a year.\n");
    contract.close();
    control<QPushButton>(form, "lblEdit")->click();
    control<QTabWidget>(form, "tabs")->setCurrentIndex(2);
    shoot(QStringLiteral("no-attachments"));
    m_visitor->expect(QStringLiteral("QFileDialog"), [&](QWidget *dialog) {
        control<QLineEdit>(dialog, "fileNameEdit")->setText(contract.fileName());
        QMetaObject::invokeMethod(dialog, "accept");
    });
    control<QPushButton>(form, "cmdAttach")->click();
    m_visitor->check();
    need(gDB.Attachments(form->rowid(), QStringLiteral("_ps"))
             .contains(QStringLiteral("Contract for the copier.txt")),
         QStringLiteral("the contract was not attached"));
    shoot(QStringLiteral("attached"));
    control<QTabWidget>(form, "tabs")->setCurrentIndex(1);
    control<QPushButton>(form, "cmdDTStamp_Notes")->click();
    control<QPlainTextEdit>(form, "txtNote")->appendPlainText(QStringLiteral("Contract attached."));
    shoot(QStringLiteral("subscription-notes"));
}
