// The result of a saved report of customers or issues. One window for each report.
#pragma once

#include "db/report/clsRepDefParser.h"
#include "reports/ReportWindow.h"

class frmReportDisplay : public ReportWindow
{
    Q_OBJECT
public:
    explicit frmReportDisplay(QWidget *parent = nullptr);

    // By which the window is found when the report is asked for again.
    static QString tagOf(qint32 nRptID);

    void Init(qint32 nRptID);
    void LoadData() override;
    void SetUI() override;
    void SetWindowCaption();
    // A table with the customers shown, in the order shown. False when it was not made, or not
    // wanted any more; there is no file of that name then but the one that was there before.
    bool CreateMailMergeData(const QString &sFullPath);

protected:
    QString title() const override { return m_title; }
    bool landscape() const override { return m_parser.m_bLandscape; }
    bool suppresses() const override { return m_parser.m_bGroupByFirstCol; }
    void openRecord(int row) override;

private:
    bool readReport();
    bool ofCustomers() const { return m_type == u"C"; }
    void email();
    void mailMerge();

    qint32 m_id = 0;
    QString m_title; // "[42]" until it has been read
    QString m_type;  // "C" or "I"
    clsRepDefParser m_parser;
};
