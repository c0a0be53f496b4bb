// Door to the person: message boxes, file and folder dialogs, input boxes, long messages and
// progress windows. Product code calls the functions; one replaceable backend stands behind each.
// Without a graphical layer (norvanectl) messages go to standard error and questions are answered
// with their default.
#pragma once

#include <QList>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace prompts
{

enum class Kind { Information = 1, Warning = 2, Critical = 3, Locked = 4, Question = 5 };
enum class Answer { Ok, Yes, No, Cancel };

// Everything a person sees of a box, so that tests can check it.
struct Message {
    Kind kind = Kind::Information;
    QString title;
    QString text;
    QList<Answer> buttons{Answer::Ok};
    Answer preset = Answer::Ok; // the default button
    int helpContext = 0;        // below 1: none
};

struct FileRequest {
    QString title;
    QString filter; // "Label (*.csv)|*.csv|All Files (*.*)|*.*"
    QString initialName;
    QString defaultExtension;
};

// A progress window; destroying it closes it and ends the hourglass.
class Progress
{
public:
    Progress();
    virtual ~Progress();
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;
    virtual void setPercent(int percent) = 0; // outside 0 to 100: ignored
    virtual void setMessage(const QString &message) = 0;
    virtual bool cancelled() const = 0;
};

// Boxes with an OK button and the application's title, unless one is given.
void inform(const QString &text, const QString &title = {});
void warn(const QString &text, const QString &title = {});
void critical(const QString &text, const QString &title = {});
// Question with Yes, No and Cancel; the application's title unless one is given.
Answer ask(const QString &text, Answer preset = Answer::No, const QString &title = {});
Answer message(const Message &message);

// A long text in the scrollable message window (frmMessage).
void showText(const QString &text, Kind kind, int helpContext = 0);
// The text as typed; nothing when cancelled.
std::optional<QString> input(const QString &prompt, const QString &title, const QString &preset,
                             int helpContext = 0);
// Paths; empty when cancelled.
QString pickFolder(const QString &prompt, const QString &start);
QString pickFileToOpen(const FileRequest &request);
QString pickFileToSave(const FileRequest &request);
std::unique_ptr<Progress> progress(const QString &title, const QString &message, bool bar,
                                   bool cancel);
bool isWorking(); // a progress window is open

struct Backend {
    std::function<Answer(const Message &)> message;
    std::function<void(const Message &)> text; // long message
    std::function<std::optional<QString>(const QString &prompt, const QString &title,
                                         const QString &preset, int helpContext)>
        input;
    std::function<QString(const QString &prompt, const QString &start)> folder;
    std::function<QString(const FileRequest &)> openFile;
    std::function<QString(const FileRequest &)> saveFile;
    std::function<std::unique_ptr<Progress>(const QString &title, const QString &message, bool bar,
                                            bool cancel)>
        progress;
};

Backend &backend();

} // namespace prompts
