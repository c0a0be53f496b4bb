// The grid of a report: any number of rows to look at. The row numbers stay at the left, a click
// on a heading asks for that order.
#pragma once

#include <QTableView>

class QAbstractButton;
class ReportModel;

class ReportGrid : public QTableView
{
    Q_OBJECT
public:
    explicit ReportGrid(QWidget *parent = nullptr);

    // The model's columns have changed: row numbers at the side when it has them, nothing sorted.
    void showColumns();
    // Each column as wide as its texts want, within limits.
    void fitColumns();
    void markSorted(int column); // -1: none
    // Makes the cell current and scrolls to it.
    void selectCell(int row, int column);
    int currentRow() const; // of the selection; -1 when there is none
    // Of a column as shown; the row numbers have one too.
    int shownWidth(int column) const;
    // The heading of the row numbers, which stands in the corner.
    QAbstractButton *corner() const { return m_corner; }
    const ReportModel &report() const;

    void setModel(QAbstractItemModel *model) override;

Q_SIGNALS:
    void headingClicked(int column);
    void rowActivated(int row); // double click or Enter

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void paintCorner() const;
    void copySelection() const;
    int wantedWidth(int column) const;

    QAbstractButton *m_corner;
    int m_sorted = -1;
};
