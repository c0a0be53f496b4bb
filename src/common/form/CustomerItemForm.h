// A record that belongs to a customer and has attachments: what such screens add to the life of all
// record screens.
#pragma once

#include "common/form/AttachmentsCtl.h"
#include "common/form/RecordForm.h"

#include <QLabel>

class QAbstractButton;

class CustomerItemForm : public RecordForm
{
    Q_OBJECT
public:
    qint32 custid() const { return m_custid; }
    void setCustid(qint32 custid) { m_custid = custid; } // before Init

protected:
    // Lists of a customer's window, as NotifyCustomer counts them.
    enum CustomerList { Issues = 1, Subscriptions = 2 };

    // `kind` names the folder of a record's attachments, as clsDB has it.
    CustomerItemForm(const RecordSpec &spec, CustomerList list, const QString &kind,
                     QWidget *parent);

    // Besides those of every record form: ACtl on a page of its own, and, on the window itself or a
    // part of it, lblCustomer and cmdCustomer (opens the customer, as a double click on his name
    // does).
    template <class Ui>
    void takeItemControls(Ui *ui)
    {
        takeItemControls(ui, ui);
    }
    template <class Ui, class Part>
    void takeItemControls(Ui *ui, const Part *part)
    {
        takeControls(ui);
        m_item = {part->lblCustomer, part->cmdCustomer, ui->ACtl, ui->tabs};
        connectItemControls();
    }
    void bindCustomer(); // the first field
    // The button behind a date picks it from the calendar.
    void bindCalendar(QAbstractButton *button, QLineEdit *box);

    QString customerName() const { return m_item.lblCustomer->text(); }
    void NoCustomerMsg() const;
    void InitATC(); // shows the attachments of a stored record

    // "Printer - Paper jam at wor...", of what is chosen and typed; "New" of nothing.
    static QString describe(const QString &product, const QString &shortDescription);
    // The message for all of a form's faults; empty when there is none.
    static QString faultsMessage(const QStringList &faults);
    static bool isNoDate(const QLineEdit *box); // something else than a date or nothing

    QString emailAddress() const override;
    QString deleteQuestion() const override;
    bool ownerExists() override;
    bool loadOwner() override;
    void afterLoad() override;
    void afterSetUI() override;
    void afterStore() override;
    void afterApply() override;
    bool removeRecord() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct ItemControls {
        QLabel *lblCustomer = nullptr;
        QAbstractButton *cmdCustomer = nullptr;
        AttachmentsCtl *ACtl = nullptr;
        QTabWidget *tabs = nullptr;
    };

    void connectItemControls();
    void showCustomer(qint32 custid);
    void openCustomer() const;

    const CustomerList m_list;
    const QString m_kind;
    ItemControls m_item;
    qint32 m_custid = -1;
};
