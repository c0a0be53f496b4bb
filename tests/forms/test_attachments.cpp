// The list of a record's attachments, worked as a person would.
#include "common/form/AttachmentList.h"
#include "common/form/AttachmentsCtl.h"
#include "common/ui/FormWindow.h"
#include "db/clsDB.h"
#include "support/FakeHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TempDatabase.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QUrl>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace
{

class AttachmentsTab : public ::testing::Test
{
protected:
    using Answer = prompts::Answer;

    AttachmentsTab()
    {
        (new QVBoxLayout(&form))->addWidget(ctl);
        ctl->Init(folder);
        ctl->SetEnabled(true);
        form.show();
        form.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
    }

    QPushButton *button(const char *name) const
    {
        return ctl->findChild<QPushButton *>(QLatin1String(name));
    }
    void click(const char *name) { QTest::mouseClick(button(name), Qt::LeftButton); }
    QString source(const QString &name, const QByteArray &bytes = "x")
    {
        QFile file(outside.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }
    void attach(const QString &path)
    {
        person.expectOpenFile("Open file to attach", path);
        click("cmdAttach");
    }
    void drop(const QList<QUrl> &urls)
    {
        QMimeData data;
        data.setUrls(urls);
        QDropEvent event({5, 5}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                         Qt::NoModifier);
        QDragEnterEvent enter({5, 5}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        QApplication::sendEvent(list->viewport(), &enter);
        if (!enter.isAccepted())
            return;
        EXPECT_EQ(enter.dropAction(), Qt::CopyAction);
        QApplication::sendEvent(list->viewport(), &event);
        QCoreApplication::processEvents();
    }
    // Types another name over the selected one.
    void retype(const QString &name)
    {
        list->setFocus();
        QTest::keyClick(list, Qt::Key_F2);
        auto *editor = qobject_cast<QLineEdit *>(list->indexWidget(list->currentIndex()));
        ASSERT_NE(editor, nullptr);
        editor->setText(name);
        QTest::keyClick(editor, Qt::Key_Return);
        QCoreApplication::processEvents(); // the name is taken
        QCoreApplication::processEvents(); // and the list read again
    }
    QByteArray stored(const QString &name) const
    {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
    }
    QStringList names() const
    {
        QStringList all;
        for (int row = 0; row < list->itemCount(); ++row)
            all.append(list->itemText(row, 0));
        return all;
    }

    FakeHost machine;
    ScriptedPrompts person;
    TempDatabase database;
    QTemporaryDir outside;
    const AttachmentFolder folder = gDB.Attachments(1000, QStringLiteral("_ps"));
    FormWindow form;
    AttachmentsCtl *const ctl = new AttachmentsCtl;
    AttachmentList *const list = ctl->findChild<AttachmentList *>();
};

} // namespace

TEST_F(AttachmentsTab, ShowsWhatLiesInTheFolderWhoeverPutItThere)
{
    EXPECT_EQ(names(), QStringList());
    EXPECT_EQ(ctl->findChild<QLabel *>("lblCount")->text(), "0 attachment(s)");
    ASSERT_TRUE(folder.create());
    QFile byHand(folder.filePath("By Hand.TXT"));
    ASSERT_TRUE(byHand.open(QIODevice::WriteOnly));
    byHand.write(QByteArray(1536, 'x'));
    byHand.flush(); // or closing would write, and date it anew
    byHand.setFileTime(QDateTime({2004, 3, 2}, {14, 5}), QFileDevice::FileModificationTime);
    byHand.close();
    ctl->LoadLV();
    EXPECT_EQ(names(), QStringList("By Hand.TXT"));
    EXPECT_EQ(list->itemText(0, 1), "2 KB");
    EXPECT_EQ(list->itemText(0, 2), "plain text document");
    EXPECT_EQ(list->itemText(0, 3), "3/2/2004 2:05 PM");
    EXPECT_EQ(ctl->findChild<QLabel *>("lblCount")->text(), "1 attachment(s)");
    EXPECT_TRUE(button("cmdView")->isEnabled()); // the first one is selected
}

TEST_F(AttachmentsTab, AFileIsCopiedInUnderItsName)
{
    const QString path = source("Größe & plan.txt", "first");
    attach(path);
    EXPECT_EQ(names(), QStringList("Größe & plan.txt"));
    EXPECT_EQ(stored("Größe & plan.txt"), "first");
    EXPECT_TRUE(QFile::exists(path));

    source("Größe & plan.txt", "second");
    const QString question = "Größe & plan.txt is already attached to this document. Do you want "
                             "to overwrite existing attachment?";
    for (const Answer refusal : {Answer::No, Answer::Cancel}) {
        person.expectOpenFile("Open file to attach", path);
        person.expect(question, refusal)
            .kind(prompts::Kind::Question)
            .buttons({Answer::Yes, Answer::No, Answer::Cancel})
            .preset(Answer::No);
        click("cmdAttach");
        EXPECT_EQ(stored("Größe & plan.txt"), "first");
    }
    person.expectOpenFile("Open file to attach", path);
    person.expect(question, Answer::Yes);
    click("cmdAttach");
    EXPECT_EQ(stored("Größe & plan.txt"), "second");

    attach({}); // cancelled
    EXPECT_EQ(names().size(), 1);
    EXPECT_FALSE(machine.isBusy());
}

TEST_F(AttachmentsTab, ReadingIsPossibleWhenChangingIsNot)
{
    attach(source("plan.txt", "plan"));
    const QColor open = list->palette().color(QPalette::Base);
    ctl->SetEnabled(false);
    EXPECT_TRUE(ctl->isEnabled());
    EXPECT_NE(list->palette().color(QPalette::Base), open);
    EXPECT_FALSE(button("cmdAttach")->isEnabled());
    EXPECT_FALSE(button("cmdRemove")->isEnabled());
    drop({QUrl::fromLocalFile(source("other.txt"))});
    QTest::keyClick(list, Qt::Key_Delete);
    QTest::keyClick(list, Qt::Key_F2);
    EXPECT_EQ(list->indexWidget(list->currentIndex()), nullptr);
    EXPECT_EQ(names(), QStringList("plan.txt"));

    click("cmdView");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Return);
    const QString path = folder.filePath("plan.txt");
    EXPECT_EQ(machine.opened(), (QStringList{path, path}));
    machine.setAccepts(false);
    person.expect(u"Unable to launch '" + path +
                  u"'! No application may be associated with this file type.");
    click("cmdView");

    const QString copy = outside.filePath("Copy of plan.txt");
    person.expectSaveFile("Save Attachment As...", copy);
    person.expect(copy + " has been saved!").kind(prompts::Kind::Information);
    click("cmdSaveAs");
    EXPECT_EQ(person.seen()[person.seen().size() - 2].request.initialName, "Copy of plan.txt");
    EXPECT_TRUE(QFile::exists(copy));
}

TEST_F(AttachmentsTab, SavingACopyNeverTouchesTheAttachment)
{
    attach(source("plan.txt", "plan"));
    person.expectSaveFile("Save Attachment As...", folder.filePath("PLAN.txt"));
    person.expect("Source and Destination files are identical!").kind(prompts::Kind::Critical);
    click("cmdSaveAs");
    const QString missing = outside.filePath("no/such/folder.txt");
    person.expectSaveFile("Save Attachment As...", missing);
    person.expect(u"Unable to copy '" + folder.filePath("plan.txt") + u"' to '" + missing + u"'!");
    click("cmdSaveAs");
    const QString beside = folder.filePath("Copy of plan.txt");
    person.expectSaveFile("Save Attachment As...", beside);
    person.expect("has been saved!");
    click("cmdSaveAs");
    EXPECT_EQ(names(), (QStringList{"Copy of plan.txt", "plan.txt"}));
    EXPECT_EQ(stored("plan.txt"), "plan");
}

TEST_F(AttachmentsTab, RemovingAsksAndTakesTheSelectedOne)
{
    attach(source("a.txt"));
    attach(source("b.txt"));
    ASSERT_TRUE(LvSelectItemByText(list, "a.txt"));
    const QString question = u"Are you sure you want to PERMANENTLY DELETE this attachment: '" +
                             folder.filePath("a.txt") + u"' ?";
    person.expect(question, Answer::No).preset(Answer::No);
    click("cmdRemove");
    EXPECT_EQ(names().size(), 2);
    person.expect(question, Answer::Yes);
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(names(), QStringList("b.txt"));

    QDir(folder.path()).mkdir("sub");
    ctl->LoadLV();
    ASSERT_TRUE(LvSelectItemByText(list, "sub"));
    person.expect("PERMANENTLY DELETE", Answer::Yes);
    person.expect(u"Unable to delete '" + folder.filePath("sub") + u"'!")
        .kind(prompts::Kind::Warning);
    click("cmdRemove");
    EXPECT_EQ(names(), (QStringList{"b.txt", "sub"}));
}

TEST_F(AttachmentsTab, ANameIsTypedOver)
{
    attach(source("a.txt", "a"));
    attach(source("b.txt", "b"));
    person.expect("Are you sure you want to rename 'b.txt' to 'New Name.txt' ?", Answer::Yes)
        .preset(Answer::No);
    retype("New Name.txt");
    EXPECT_EQ(names(), (QStringList{"a.txt", "New Name.txt"}));
    EXPECT_EQ(LvGetSelectedItemText(list), "New Name.txt");
    EXPECT_EQ(stored("New Name.txt"), "b");

    person.expect("Are you sure you want to rename", Answer::Cancel);
    retype("c.txt");
    person.expect("Are you sure you want to rename", Answer::Yes);
    person.expect("There is already an attachment named 'a.txt'.");
    retype("a.txt");
    for (const QString &unfit : {u"../c.txt"_s, u".."_s, u"sub/c"_s, u"sub\\c"_s, u""_s}) {
        person.expect(u"'" + unfit + u"' cannot be the name of an attachment.");
        retype(unfit);
    }
    retype("New Name.txt"); // asks nothing
    EXPECT_EQ(names(), (QStringList{"a.txt", "New Name.txt"}));
    EXPECT_EQ(stored("a.txt"), "a");
}

TEST_F(AttachmentsTab, FilesAreDroppedOnTheListAndDraggedOut)
{
    const QString a = source("a.txt");
    const QString b = source("b.txt");
    QDir(outside.path()).mkdir("folder");
    person.expect("is a folder. Only files can be attached.");
    drop({QUrl::fromLocalFile(a), QUrl::fromLocalFile(outside.filePath("folder")),
          QUrl("https://example.com/c.txt"), QUrl::fromLocalFile(b)});
    EXPECT_EQ(names(), (QStringList{"a.txt", "b.txt"}));
    EXPECT_TRUE(QFile::exists(a));

    drop({QUrl("https://example.com/c.txt")}); // no file
    person.expect("Source and Destination files are identical!");
    drop({QUrl::fromLocalFile(folder.filePath("a.txt"))});

    ASSERT_TRUE(LvSelectItemByText(list, "b.txt"));
    EXPECT_EQ(list->selectedFile()->urls(),
              QList<QUrl>{QUrl::fromLocalFile(folder.filePath("b.txt"))});
    list->clearSelection();
    EXPECT_EQ(list->selectedFile(), nullptr);
}

TEST_F(AttachmentsTab, ALargeFileShowsHowFarItIsAndCanBeStopped)
{
    const QString large = source("large.bin", QByteArray(9 << 20, 'n'));
    attach(large);
    ASSERT_EQ(person.progress().size(), 1u);
    EXPECT_EQ(person.progress()[0].message, "Copying 'large.bin'...");
    EXPECT_TRUE(person.progress()[0].bar && person.progress()[0].cancel);
    EXPECT_EQ(person.progress()[0].percents.size(), 9u);
    EXPECT_TRUE(person.progress()[0].closed);
    EXPECT_EQ(stored("large.bin").size(), 9 << 20);

    // The window waits, whatever is pressed meanwhile; what is under way does not lose its form.
    host().pumpEvents = [this] {
        EXPECT_FALSE(form.isEnabled());
        EXPECT_FALSE(form.close());
    };
    source("large.bin", QByteArray(9 << 20, 'o'));
    person.cancelProgressAt(4);
    person.expectOpenFile("Open file to attach", large);
    person.expect("is already attached", Answer::Yes);
    click("cmdAttach");
    EXPECT_TRUE(stored("large.bin").startsWith("nnn"));
    EXPECT_EQ(person.progress().back().percents.size(), 4u);
    EXPECT_EQ(names(), QStringList("large.bin"));
    EXPECT_TRUE(form.isEnabled());
    EXPECT_FALSE(machine.isBusy());
    EXPECT_EQ(QDir(gDB.AttachPath()).entryList(QDir::Files | QDir::Hidden), QStringList());

    person.cancelProgressAt(1); // the files behind a cancelled one stay out too
    drop({QUrl::fromLocalFile(source("second.bin", QByteArray(9 << 20, 'x'))),
          QUrl::fromLocalFile(source("third.txt"))});
    EXPECT_EQ(names(), QStringList("large.bin"));
}

TEST_F(AttachmentsTab, WhatCannotBeWrittenIsToldAndNothingIsLeft)
{
    const QString path = source("a.txt");
    // A file stands where the folder should be made.
    QDir(gDB.AttachPath()).removeRecursively();
    QFile inTheWay(gDB.AttachPath());
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    person.expectOpenFile("Open file to attach", path);
    person.expect(u"Unable to create directory: " + folder.path()).kind(prompts::Kind::Critical);
    click("cmdAttach");
    inTheWay.remove();

    const QString gone = outside.filePath("gone.txt");
    person.expectOpenFile("Open file to attach", gone);
    person.expect(u"Unable to copy '" + gone + u"' to '" + folder.filePath("gone.txt") + u"'!");
    click("cmdAttach");
    EXPECT_EQ(names(), QStringList());

    attach(path);
    const QString moved = database.path() + QLatin1String(".away"); // as an unplugged network
    ASSERT_TRUE(QDir().rename(database.path(), moved));
    person.expectOpenFile("Open file to attach", path);
    person.expect("Unable to create directory: ");
    click("cmdAttach");
    ctl->LoadLV();
    EXPECT_EQ(names(), QStringList());
    ASSERT_TRUE(QDir().rename(moved, database.path()));
    ctl->LoadLV();
    EXPECT_EQ(names(), QStringList("a.txt"));
}
