// Issue templates: the list that keeps them, their window, and new issues that start from one.
#include "IssueFixture.h"

#include "common/ui/ListView.h"
#include "db/Screens.h"
#include "forms/frmEditIssueTemplates.h"
#include "forms/frmIssueTemplate.h"
#include "forms/frmSelectIssueTemplate.h"
#include "support/DialogDriver.h"
#include "support/Station.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QPlainTextEdit>

namespace
{

QString parameter()
{
    return gDB.GetParamValue(QStringLiteral("ENABLE_ISSUE_TEMPLATES"));
}

class Templates : public IssueForm
{
protected:
    QString storedTemplate(qint32 id, const char *field) const
    {
        return database.stored(schema::Table::IssuesTemplates, id, QLatin1String(field));
    }
    void openTemplate(qint32 id, bool edit)
    {
        window = std::make_unique<frmIssueTemplate>();
        window->Init(id, edit);
        window->show();
    }
    template <class T>
    T *part(const char *name) const
    {
        T *found = window->findChild<T *>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    std::unique_ptr<frmIssueTemplate> window;
};

// Types the name that an item just made is given, and Enter.
void typeLabel(ListView *list, const QString &name)
{
    auto *editor = list->findChild<QLineEdit *>();
    ASSERT_NE(editor, nullptr);
    editor->setText(name);
    QTest::keyClick(editor, Qt::Key_Return);
    QTest::qWait(0); // the editor goes when events are let through
}

} // namespace

TEST_F(Templates, TheListMakesAndNamesThemAndSwitchesThemOn)
{
    {
        frmEditIssueTemplates list;
        list.show();
        auto *rows = list.findChild<ListView *>();
        EXPECT_EQ(list.windowTitle(), "3/14/2004 @ 3:05:09 PM - Edit Issue Templates");
        EXPECT_FALSE(list.findChild<QPushButton *>("cmdEdit")->isEnabled());
        clickButton(&list, "cmdNew");
        EXPECT_EQ(storedTemplate(1000, "name"), "Untitled 1");
        typeLabel(rows, "  Paper jam  ");
        EXPECT_EQ(storedTemplate(1000, "name"), "Paper jam");
        EXPECT_EQ(rows->itemText(0, 0), "Paper jam");
        clickButton(&list, "cmdNew");
        typeLabel(rows, "   "); // no name: the old one stays
        EXPECT_EQ(storedTemplate(1001, "name"), "Untitled 2");
        rows->editLabel("N1000");
        typeLabel(rows, QString(200, u'x'));
        EXPECT_EQ(storedTemplate(1000, "name"), QString(120, u'x'));

        list.findChild<QCheckBox *>("ckEnableIssueTemplate")->setChecked(true);
        EXPECT_EQ(parameter(), ""); // takes effect when the list closes
        list.close();
        EXPECT_EQ(parameter(), "1");
        EXPECT_EQ(list.templateToEdit(), -1);
    }
    frmEditIssueTemplates again;
    again.show();
    EXPECT_TRUE(again.findChild<QCheckBox *>("ckEnableIssueTemplate")->isChecked());
    clickButton(&again, "cmdNew"); // counts anew with each opening
    EXPECT_EQ(storedTemplate(1002, "name"), "Untitled 1");
    LvSelectItem(again.findChild<ListView *>(), QStringLiteral("N1001"));
    again.findChild<QCheckBox *>("ckEnableIssueTemplate")->setChecked(false);
    clickButton(&again, "cmdEdit");
    EXPECT_FALSE(again.isVisible());
    EXPECT_EQ(again.templateToEdit(), 1001);
    EXPECT_EQ(parameter(), "0");
}

TEST_F(Templates, ANameThatCannotBeStoredStays)
{
    norvane::engine::code4lockDelay(gDB.CBEngine(), 1);
    const qint32 kept = addTemplate(QStringLiteral("Kept"), {});
    const qint32 gone = addTemplate(QStringLiteral("Gone"), {});
    frmEditIssueTemplates list;
    list.show();
    auto *rows = list.findChild<ListView *>();
    Station remote(database.path());
    ASSERT_EQ(remote.ask(QStringLiteral("lockrow nvnitempl.dbf %1").arg(kept)), "ok");
    person.expect("RECORD LOCKED: Unable to update nvnitempl.dbf!").kind(prompts::Kind::Critical);
    rows->editLabel(u'N' + QString::number(kept));
    typeLabel(rows, QStringLiteral("Other"));
    EXPECT_EQ(rows->itemText(rows->rowOfKey(u'N' + QString::number(kept)), 0), "Kept");
    ASSERT_EQ(remote.ask(QStringLiteral("unlock")), "ok");

    ASSERT_EQ(remote.ask(QStringLiteral("delete nvnitempl.dbf %1").arg(gone)), "ok");
    person.expect("Unable to update this item in table nvnitempl.dbf! It may have been deleted by "
                  "another user. Press Refresh to get the latest list.");
    rows->editLabel(u'N' + QString::number(gone));
    typeLabel(rows, QStringLiteral("Other"));
    clickButton(&list, "cmdRefresh");
    EXPECT_EQ(rows->itemCount(), 1);
}

TEST_F(Templates, ChoosingOffersABlankIssueFirst)
{
    {
        frmSelectIssueTemplate choice;
        auto *rows = choice.findChild<ListView *>();
        ASSERT_EQ(rows->itemCount(), 1);
        EXPECT_EQ(rows->itemText(0, 0), "Blank Issue");
        EXPECT_EQ(choice.templateId(), -1);
        EXPECT_TRUE(choice.findChild<QPushButton *>("cmdOK")->isEnabled());
        rows->clearSelection();
        EXPECT_FALSE(choice.findChild<QPushButton *>("cmdOK")->isEnabled());
    }
    const qint32 id = addTemplate(QStringLiteral("a jam"), {});
    addTemplate(QStringLiteral("Zoo"), {});
    frmSelectIssueTemplate choice;
    choice.show();
    auto *rows = choice.findChild<ListView *>();
    EXPECT_EQ(rows->itemText(1, 0), "a jam"); // behind it without regard to case
    LvSelectItem(rows, u'N' + QString::number(id));
    QTest::keyClick(rows, Qt::Key_Return);
    EXPECT_EQ(choice.result(), QDialog::Accepted);
    EXPECT_EQ(choice.templateId(), id);
}

TEST_F(Templates, ANewIssueStartsFromItsTemplate)
{
    database.addUser(QStringLiteral("jane"), QStringLiteral("1111"));
    const qint32 jane = gDB.GetLoginID(QStringLiteral("jane"));
    const qint32 id = addTemplate(QStringLiteral("Jam"), {{"psid", product},
                                                          {"shortdesc", "Paper jam"},
                                                          {"assignedto", jane},
                                                          {"priority", 450},
                                                          {"status", 402},
                                                          {"issuecat", 505},
                                                          {"custom1", "red"},
                                                          {"custom2", "blue"},
                                                          {"desc", "Which\r\ntray?"},
                                                          {"resolution", "Cleaned"}});
    openNew(id);
    EXPECT_EQ(form->windowTitle(), "Issue: Printer - Paper jam... @3:05:09 PM");
    EXPECT_EQ(chosen("cboAssignedTo"), "jane");
    EXPECT_EQ(chosen("cboPriority"), "High");
    EXPECT_EQ(textOf("txtDateSubmit"), "3/14/2004");
    click("OKButton");
    EXPECT_EQ(stored(1000, "psid"), QString::number(product));
    EXPECT_EQ(stored(1000, "status"), "402");
    EXPECT_EQ(stored(1000, "issuecat"), "505");
    EXPECT_EQ(stored(1000, "custom2"), "blue");
    EXPECT_EQ(stored(1000, "desc"), "Which\r\ntray?");
    EXPECT_EQ(stored(1000, "resolution"), "Cleaned");
    EXPECT_EQ(stored(1000, "custid"), QString::number(customer));
}

TEST_F(Templates, WhatATemplateLeavesOpenOrHasLostKeepsTheDefaults)
{
    const qint32 empty = addTemplate(QStringLiteral("Empty"), {});
    openNew(empty);
    EXPECT_EQ(chosen("cboPS"), "");
    EXPECT_EQ(chosen("cboStatus"), "Open");
    discard();
    const qint32 lost =
        addTemplate(QStringLiteral("Lost"),
                    {{"assignedto", 99999}, {"priority", 99999}, {"status", -1}, {"psid", -1}});
    openNew(lost);
    EXPECT_EQ(chosen("cboPriority"), "Normal");
    EXPECT_EQ(chosen("cboStatus"), "Open");
    EXPECT_TRUE(chosen("cboAssignedTo").contains("sysop", Qt::CaseInsensitive));
    discard();

    ASSERT_TRUE(gDB.DeleteRecord(lost, gDB.IssuesTemplatesTable()));
    person.expectText("Record cannot be accessed or no longer exists.");
    openNew(lost);
    EXPECT_EQ(chosen("cboStatus"), "Open");
    EXPECT_TRUE(form->inEditMode());
    discard();
}

TEST_F(Templates, TheWindowEditsAllButTheName)
{
    const qint32 id = addTemplate(QStringLiteral("Jam"), {{"shortdesc", "old"}});
    openTemplate(id, true);
    EXPECT_TRUE(window->inEditMode()); // with the mark, as a person would
    EXPECT_EQ(markOf(schema::Table::IssuesTemplates, id), gDB.LoginID());
    EXPECT_EQ(window->tagText(), u'T' + QString::number(id));
    EXPECT_EQ(window->windowTitle(), "Issue Template: Jam @3:05:09 PM");
    EXPECT_EQ(window->helpTopic(), 1335);
    EXPECT_EQ(window->findChild<QWidget *>("txtDateSubmit"), nullptr);
    EXPECT_EQ(window->findChild<QWidget *>("lblCustomer"), nullptr);
    part<QLineEdit>("txtShortDesc")->setText("");
    part<QComboBox>("cboStatus")->setCurrentText("Pending");
    part<QPlainTextEdit>("txtResolution")->setPlainText("Cleaned");
    clickButton(window.get(), "cmdApply"); // nothing must be filled in
    EXPECT_FALSE(window->inEditMode());
    EXPECT_EQ(storedTemplate(id, "name"), "Jam");
    EXPECT_EQ(storedTemplate(id, "shortdesc"), "");
    EXPECT_EQ(storedTemplate(id, "status"), "402");
    EXPECT_EQ(markOf(schema::Table::IssuesTemplates, id), 0);

    const QString rule = QString(80, u'-') + u'\n';
    EXPECT_TRUE(window->FormContent().startsWith(
        "ISSUE TEMPLATE: Jam\n\nShort Description:  \nProduct/Service:    \n"
        "Status:             Pending\nPriority:           \nAssigned To::       \n"))
        << qPrintable(window->FormContent());
    EXPECT_TRUE(window->FormContent().contains(
        rule + "Description:\n\n" + rule + "Resolution:\nCleaned\n" + rule + "Last Modified By:"));
    clickButton(window.get(), "cmdEmail");
    EXPECT_EQ(board.mails().last().to, "-removethis");

    clickButton(window.get(), "lblEdit");
    person
        .expect(u"Are you sure you want to *DELETE*  '" + window->windowTitle() + u"'?",
                Answer::Yes)
        .title(QStringLiteral("DELETE Confirmation"));
    clickButton(window.get(), "cmdDelete");
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(storedTemplate(id, "name").isNull());
}

TEST_F(Templates, TwoStationsOnOneTemplate)
{
    norvane::engine::code4lockDelay(gDB.CBEngine(), 1);
    const qint32 id = addTemplate(QStringLiteral("Jam"), {});
    const QString row = QStringLiteral("nvnitempl.dbf %1").arg(id);
    Station remote(database.path());
    ASSERT_EQ(remote.ask(u"setmark " + row), "ok");
    const auto before = std::exchange(screens().askUnderEdit,
                                      [](const QString &, const QString &) { return false; });
    openTemplate(id, true);
    EXPECT_FALSE(window->inEditMode());
    screens().askUnderEdit = [](const QString &, const QString &) { return true; };
    clickButton(window.get(), "lblEdit");
    ASSERT_TRUE(window->inEditMode());
    screens().askUnderEdit = before;
    EXPECT_EQ(remote.ask(u"saverow _issuetemplate " + row + u" shortdesc Theirs"), "ok");
    part<QLineEdit>("txtShortDesc")->setText("Ours");

    ASSERT_EQ(remote.ask(u"lockrow " + row), "ok");
    person.expect("RECORD LOCKED: Unable to update record!");
    person.expect("RECORD LOCKED: Unable to update record!"); // the mark
    clickButton(window.get(), "OKButton");
    EXPECT_TRUE(window->isVisible() && window->inEditMode());
    EXPECT_EQ(part<QLineEdit>("txtShortDesc")->text(), "Ours");
    ASSERT_EQ(remote.ask(QStringLiteral("unlock")), "ok");

    // A rename goes past the mark and is kept by a save of the other fields.
    addTemplate(QStringLiteral("Other"), {});
    frmEditIssueTemplates list;
    list.show();
    auto *rows = list.findChild<ListView *>();
    rows->editLabel(u'N' + QString::number(id));
    typeLabel(rows, QStringLiteral("Renamed"));
    clickButton(window.get(), "cmdApply");
    EXPECT_EQ(storedTemplate(id, "shortdesc"), "Ours");
    EXPECT_EQ(storedTemplate(id, "name"), "Renamed");

    clickButton(window.get(), "lblEdit");
    EXPECT_EQ(remote.ask(u"delete " + row), "ok");
    person.expectText("Record cannot be accessed or no longer exists.");
    clickButton(window.get(), "OKButton");
    EXPECT_TRUE(window->isVisible() && window->inEditMode());
    person.expect("Do you wish to discard your changes", Answer::Yes);
    window->close();
}
