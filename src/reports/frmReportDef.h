// The definition of one report: its title, what it shows, which records, how it is printed, notes.
#pragma once

#include "common/form/RecordForm.h"

#include <memory>

class QListWidget;
namespace Ui
{
class frmReportDef;
}

class frmReportDef : public RecordForm
{
    Q_OBJECT
public:
    explicit frmReportDef(QWidget *parent = nullptr);
    ~frmReportDef() override;

    // "C" customers, "I" issues: of a new report, before Init. A stored one says it itself.
    void setReportType(const QString &type) { m_type = type; }

    // How a criterion is shown, and handed to clsRepDefParser: Status # 'Closed' [17]
    static QString FormConditionString(const QString &sCol, const QString &sOper,
                                       const QString &sVal, qint32 nFilterVal);
    // Shows a definition in the controls.
    void SetRptGroupColsAndFilters(const QString &sRptDef);
    // The definition that the controls make.
    QString FormRptDef() const;

    QString FormContent() override { return {}; } // has neither preview nor email
    QSize sizeHint() const override;

protected:
    QString description() const override;
    QString firstProblem() override;
    void startNew() override;
    void afterStore() override;
    bool removeRecord() override;
    QString deleteQuestion() const override;

private:
    void bindFields();
    void connectControls();
    void showType();
    void addColumns();
    void addCriterion();
    void moveColumn(int rows);
    void addCriterionRow(qint32 column, const QString &label, const QString &oper, qint32 value,
                         const QString &valueText);

    std::unique_ptr<Ui::frmReportDef> m_ui;
    QString m_type;
};
