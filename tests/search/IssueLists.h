// Issues in a temporary database, and the window of hits that is looked at.
#pragma once

#include "common/ui/ListView.h"
#include "search/HitListWindow.h"
#include "support/DialogDriver.h"
#include "support/FakeHost.h"
#include "support/RecordingSwitchboard.h"
#include "support/ScriptedPrompts.h"
#include "support/TempDatabase.h"
#include "support/TempPreferences.h"

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTest>

class IssueLists : public ::testing::Test
{
protected:
    void look(std::unique_ptr<HitListWindow> window)
    {
        list = std::move(window);
        list->show();
        list->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(list.get()));
        lv = list->findChild<ListView *>("lv");
    }
    QStringList column(int at) const
    {
        QStringList texts;
        for (int row = 0; row < lv->itemCount(); ++row)
            texts += lv->itemText(row, at);
        return texts;
    }
    QStringList row(int at) const
    {
        QStringList texts;
        for (int column = 0; column < lv->model()->columnCount(); ++column)
            texts += lv->itemText(at, column);
        return texts;
    }
    QStringList headings() const
    {
        QStringList texts;
        for (const ListView::Column &column : lv->columns())
            texts += column.title + u'=' + column.key;
        return texts;
    }
    QString count() const { return list->findChild<QLabel *>("lblCust")->text(); }
    void clickHeading(int column) const
    {
        QHeaderView *header = lv->header();
        const QPoint at(header->sectionViewportPosition(column) + 12, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, at);
    }
    static QString keyOf(qint32 rowid) { return u'N' + QString::number(rowid); }

    FakeHost machine;
    ScriptedPrompts person;
    TempPreferences preferences;
    RecordingSwitchboard board;
    TempDatabase database;
    std::unique_ptr<HitListWindow> list;
    ListView *lv = nullptr;
};
