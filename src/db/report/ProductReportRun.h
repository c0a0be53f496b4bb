// The report of the products and services that customers hold. Its columns are always the same.
#pragma once

#include "db/report/ReportRun.h"

class ProductReportRun
{
public:
    // What a subscription must be to be shown; as it stands, any.
    struct Criteria {
        qint32 productServiceId = -1; // below 1: any
        qint32 isActive = -1;         // 1 active ones, 0 ended ones, -1 both
        QString custom1 = {};         // part of the field, in any case
        QString custom2 = {};
    };
    static constexpr std::size_t CustomerIdColumn = 3;

    explicit ProductReportRun(Criteria criteria) : m_criteria(std::move(criteria)) {}

    static std::vector<ReportTable::Column> columns();
    // As ReportRun::run.
    std::optional<qint32> run(ReportTable &table, const ReportRun::GoOn &goOn);

    bool FiltersPassed(qint32 psid, bool isActive, const QString &custom1,
                       const QString &custom2) const;

private:
    Criteria m_criteria;
};
