// What the windows of hits share: a list from which records are opened, its count, the commands
// below it, and the life of a load. The window keeps its criteria and can be refreshed.
#pragma once

#include "common/ui/FormWindow.h"
#include "common/ui/ListView.h"

#include <functional>

class QLabel;
class QPushButton;

class HitListWindow : public FormWindow
{
    Q_OBJECT
public:
    // What can be done follows the selection.
    virtual void SetUI();
    // Room for all columns and a page of hits.
    QSize sizeHint() const override;

protected:
    // The controls of the Designer file, and what stands behind the number of hits.
    struct Parts {
        ListView *list;
        QLabel *lblCount;
        QPushButton *cmdProperties, *cmdRefresh, *cmdPrint, *cmdClose;
        QString unit;
    };
    enum class Order { ByFirstColumn, AsItIs, AsItIsQuietly };

    explicit HitListWindow(QWidget *parent);
    void setUpHits(const Parts &parts, const QList<ListView::Column> &columns);

    // The person's commands: Refresh, and opening a hit.
    virtual void reload() = 0;
    virtual void openRecord(qint32 rowid) = 0;

    // Window events run during a load; a second one must not begin inside the first.
    bool isLoading() const { return m_loading; }
    // Empties the list, lets `read` add the hits, and selects what was selected before, else the
    // first. `read` gives the sentence for a list that stays empty. Quietly means that no dialog
    // comes up for a long sort. Nothing while loading.
    void load(const char *procedure, Order order, const std::function<QString()> &read);
    void DisplayResultCnt();

    void closeEvent(QCloseEvent *event) override;

private:
    void openHit(const QString &key);
    void printList();

    Parts m_parts{};
    int m_columnsWidth = 0; // pixels at 96 dpi
    bool m_loading = false;
};
