// Saving while the disk is full, or the right to write is taken away: the window stays as it is
// with what was typed, and the same click saves once there is room again.
#include "CustomerFixture.h"
#include "engine/FailingCalls.h"
#include "IssueFixture.h"
#include "PSFixture.h"

#include "forms/frmIssueAction.h"

#include <QPlainTextEdit>

#include <cerrno>

namespace
{

namespace failing = enginetest::failing;

struct Trouble {
    int number;
    const char *told;
};

constexpr Trouble troubles[] = {
    {ENOSPC, "is full"},
    {EDQUOT, "is full"},
    {EACCES, "cannot be changed"},
    {EROFS, "cannot be changed"},
    {EIO, "could not be read or written"},
};

// Nothing can be written from now on. What is told meanwhile is noted.
class Refusing
{
public:
    explicit Refusing(const Trouble &trouble) : m_trouble(trouble)
    {
        prompts::backend().message = [this](const prompts::Message &box) {
            m_told += box.text;
            return prompts::Answer::Ok;
        };
        failing::at(1, {trouble.number, true, true});
    }
    ~Refusing()
    {
        EXPECT_TRUE(failing::stop());
        prompts::backend() = m_before;
        EXPECT_EQ(m_told.size(), 1) << qPrintable(m_told.join(u'\n'));
        EXPECT_TRUE(m_told.value(0).contains(QLatin1String(m_trouble.told)))
            << m_trouble.number << qPrintable(m_told.value(0));
    }
    Q_DISABLE_COPY_MOVE(Refusing)

private:
    const Trouble m_trouble;
    const prompts::Backend m_before = prompts::backend();
    QStringList m_told;
};

} // namespace

TEST_F(CustomerForm, WhatTheDiskDoesNotTakeStaysTyped)
{
    const qint32 id = database.addCustomer({{"company", "Acme"}, {"city", "Basel"}});
    for (const bool isNew : {false, true}) {
        if (isNew)
            openNew();
        else
            openForEdit(id);
        type("txtCoName", "Acme & Co");
        type("txtCity", "Bern");
        find<QPlainTextEdit>("txtNote")->setPlainText("A long story");
        for (const Trouble &trouble : troubles)
            for (const char *button : {"cmdApply", "OKButton"}) {
                {
                    const Refusing disk(trouble);
                    click(button);
                }
                EXPECT_TRUE(form->isVisible() && form->inEditMode());
                EXPECT_EQ(textOf("txtCity"), "Bern");
                EXPECT_EQ(find<QPlainTextEdit>("txtNote")->toPlainText(), "A long story");
                EXPECT_EQ(stored(id, "city"), isNew ? "Bern" : "Basel");
            }
        click("cmdApply");
        EXPECT_FALSE(form->inEditMode());
        EXPECT_EQ(stored(form->rowid(), "notes"), "A long story");
        form->close();
    }
}

TEST_F(PSForm, WhatTheDiskDoesNotTakeStaysTyped)
{
    openForEdit(addPS({{"custid", customer}, {"psid", printer}}));
    type("txtShortDesc", "In the packing room");
    for (const Trouble &trouble : troubles) {
        {
            const Refusing disk(trouble);
            click("OKButton");
        }
        EXPECT_TRUE(form->isVisible() && form->inEditMode());
        EXPECT_EQ(textOf("txtShortDesc"), "In the packing room");
    }
    click("cmdApply");
    EXPECT_EQ(stored(form->rowid(), "shortdesc"), "In the packing room");
}

TEST_F(IssueForm, WhatTheDiskDoesNotTakeStaysTyped)
{
    const qint32 id = addIssue(QStringLiteral("Jam"));
    for (const bool isNew : {false, true}) {
        if (isNew)
            openNew();
        else
            openForEdit(id);
        choose("cboPS", QStringLiteral("Printer"));
        type("txtShortDesc", "Paper jam");
        find<QPlainTextEdit>("txtDesc")->setPlainText("A long story");
        for (const Trouble &trouble : troubles) {
            {
                const Refusing disk(trouble);
                click("cmdApply");
            }
            EXPECT_TRUE(form->isVisible() && form->inEditMode());
            EXPECT_EQ(form->rowid(), isNew ? -1 : id);
            EXPECT_EQ(textOf("txtShortDesc"), "Paper jam");
            EXPECT_EQ(find<QPlainTextEdit>("txtDesc")->toPlainText(), "A long story");
        }
        click("cmdApply");
        EXPECT_FALSE(form->inEditMode());
        EXPECT_EQ(stored(form->rowid(), "desc"), "A long story");
        form->close();
    }
}

TEST_F(IssueForm, AnActionThatTheDiskDoesNotTakeStaysInItsDialog)
{
    const qint32 issue = addIssue(QStringLiteral("Jam"));
    const qint32 noted =
        addAction({{"issueid", issue}, {"date", "20040302"}, {"action", 530}, {"desc", "Called"}});
    for (const qint32 id : {noted, -1}) {
        frmIssueAction dialog;
        dialog.Init(id, issue, id > 0 ? frmIssueAction::Edit : frmIssueAction::Add);
        dialog.setVisible(true);
        const auto box = [&dialog](const char *name) {
            return dialog.findChild<QLineEdit *>(QLatin1String(name));
        };
        auto *action = dialog.findChild<QComboBox *>("cboAction");
        action->setCurrentText("Site Visit");
        box("txtDesc")->setText("Went there");
        box("txtDuration")->setText("1.5");
        auto *ok = dialog.findChild<QPushButton *>("OKButton");
        for (const Trouble &trouble : troubles) {
            {
                const Refusing disk(trouble);
                ok->click();
            }
            EXPECT_TRUE(dialog.isVisible());
            EXPECT_EQ(dialog.ActionID(), id);
            EXPECT_EQ(box("txtDesc")->text(), "Went there");
            EXPECT_EQ(box("txtDuration")->text(), "1.5");
            EXPECT_EQ(action->currentText(), "Site Visit");
        }
        ok->click();
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(database.stored(schema::Table::IssuesActions, dialog.ActionID(), "desc"),
                  "Went there");
    }
}
