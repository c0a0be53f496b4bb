// What an issue and an issue template have in common: the page of fields, the two long texts, and
// how they read on paper. A layer between RecordForm, or what is made of it, and the form.
#pragma once

#include "common/form/CustomerItemForm.h"
#include "common/form/LabelledLine.h"

class IssueFieldsCtl;

template <class Form>
class IssueRecordForm : public Form
{
protected:
    using Form::Form;

    // Takes over those controls by their names in the Designer file and binds the fields.
    template <class Ui>
    void bindIssueFields(Ui *ui)
    {
        m_fields = ui->fields;
        m_txtDesc = ui->txtDesc;
        m_txtResolution = ui->txtResolution;
        bindAll();
        bindPage(ui->tabs, ui->pageDesc, ui->txtDesc, ui->cmdDTStamp_Desc);
        bindPage(ui->tabs, ui->pageResolution, ui->txtResolution, ui->cmdDTStamp_Resolution);
        QObject::connect(ui->cmdPrint, &QPushButton::clicked, this, [this] { this->FormPrint(); });
        QObject::connect(ui->cmdEmail, &QPushButton::clicked, this, [this] { this->FormEmail(); });
    }

    // The lines of the first page up to the person, and those of custom fields and category.
    QString mainLines() const;
    QString customLines() const;
    // Description and resolution, each between two rules.
    QString textBlocks() const;
    static QString rule(); // and a line end
    static LabelledLine line() { return LabelledLine(20); }

private:
    void bindAll();
    // The text gets the focus when its page comes up.
    void bindPage(QTabWidget *tabs, QWidget *page, QPlainTextEdit *memo, QPushButton *stamp);

    IssueFieldsCtl *m_fields = nullptr;
    QPlainTextEdit *m_txtDesc = nullptr;
    QPlainTextEdit *m_txtResolution = nullptr;
};

extern template class IssueRecordForm<RecordForm>;
extern template class IssueRecordForm<CustomerItemForm>;
