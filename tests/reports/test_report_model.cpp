// What a view reads of a report.
#include "reports/ReportModel.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>

TEST(ReportModel, RowNumbersStandAtTheSideAndTravelWithTheirRows)
{
    ReportModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    ReportTable table;
    table.columns = {{"Row", "I", ReportTable::RowNumberColumn}, {"City:", "S", 5}, {"Id", "I", 6}};
    table.rows = {{40, {"", "Salem", "10"}}, {41, {"", "albany", "9"}}, {42, {""}}};
    table.numberRows();
    model.setTable(std::move(table));
    const auto side = [&model](int row) {
        return model.headerData(row, Qt::Vertical, Qt::DisplayRole).toString();
    };

    model.sortBy(1);
    EXPECT_EQ(model.rowid(0), 42); // an empty cell comes first
    EXPECT_EQ(model.rowid(1), 41);
    EXPECT_EQ(side(1), "2");
    model.sortBy(2);
    EXPECT_EQ(model.index(1, 2).data().toString(), "9");
    EXPECT_EQ(model.index(2, 2).data().toString(), "10");
    model.sortBy(0);
    EXPECT_EQ(model.rowid(0), 40);
    EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), "City:");

    EXPECT_LT(model.rowid(-1), 1);
    EXPECT_LT(model.rowid(3), 1);
}
