#include "common/ui/frmFind.h"

#include "ui_frmFind.h"

#include "common/base/HelpTopics.h"
#include "common/base/Prompts.h"
#include "common/ui/Icons.h"

#include <QPlainTextEdit>
#include <QShortcut>

namespace
{

bool findFrom(QPlainTextEdit *box, const QTextCursor &start, const frmFind::Request &request)
{
    QTextDocument::FindFlags flags;
    flags.setFlag(QTextDocument::FindBackward, request.directionUp);
    flags.setFlag(QTextDocument::FindCaseSensitively, request.matchCase);
    flags.setFlag(QTextDocument::FindWholeWords, request.wholeWordOnly);
    const QTextCursor found = box->document()->find(request.text, start, flags);
    if (found.isNull())
        return false;
    box->setTextCursor(found);
    box->ensureCursorVisible();
    return true;
}

void findInText(QPlainTextEdit *box, const frmFind::Request &request)
{
    if (findFrom(box, box->textCursor(), request))
        return;
    QTextCursor otherEnd(box->document());
    otherEnd.movePosition(request.directionUp ? QTextCursor::End : QTextCursor::Start);
    const QString none = frmFind::tr("No occurences of '%1' found!").arg(request.text);
    const bool fromEnd = box->textCursor() == otherEnd;
    const QString more =
        request.directionUp
            ? frmFind::tr("No more occurences of '%1' found! Would you like to search from the "
                          "end of this text?")
            : frmFind::tr("No more occurences of '%1' found! Would you like to search from the "
                          "top of this text?");
    if (!fromEnd && prompts::ask(more.arg(request.text)) != prompts::Answer::Yes)
        return;
    if (fromEnd || !findFrom(box, otherEnd, request))
        prompts::inform(none);
}

} // namespace

frmFind::frmFind(QWidget *parent) : QDialog(parent), ui(std::make_unique<Ui::frmFind>())
{
    ui->setupUi(this);
    setProperty("helpTopic", help::Printing);
    setWindowIcon(icon(QStringLiteral("search")));
    connect(ui->textFind, &QLineEdit::textChanged, this,
            [this](const QString &text) { ui->OKButton->setEnabled(!text.isEmpty()); });
    connect(ui->OKButton, &QPushButton::clicked, this, &frmFind::findNext);
    connect(ui->CancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

frmFind::~frmFind() = default;

void frmFind::setOwner(std::function<void(const Request &)> find)
{
    m_find = std::move(find);
}

void frmFind::setOwner(QPlainTextEdit *box)
{
    setOwner([box](const Request &request) { findInText(box, request); });
}

void frmFind::setTitle(const QString &title)
{
    setWindowTitle(title);
}

void frmFind::start()
{
    show();
    raise();
    activateWindow();
    ui->textFind->setFocus();
    ui->textFind->selectAll();
}

void frmFind::findNext()
{
    if (m_find)
        m_find({ui->textFind->text(), ui->ckWholeWordOnly->isChecked(),
                ui->ckMatchCase->isChecked(), ui->optDirectionUp->isChecked()});
}

void installFind(QWidget *window, QPlainTextEdit *box)
{
    auto *shortcut = new QShortcut(QKeySequence::Find, window);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(shortcut, &QShortcut::activated, window, [window, box] {
        auto *form = window->findChild<frmFind *>();
        if (form == nullptr) {
            form = new frmFind(window);
            form->setOwner(box);
        }
        form->setTitle(frmFind::tr("Find in %1").arg(window->windowTitle()));
        form->start();
    });
}
