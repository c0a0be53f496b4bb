#include "common/base/Prompts.h"

#include "common/base/AppInfo.h"

#include <cstdio>

namespace prompts
{

namespace
{

int g_progressWindows = 0;

// Without a screen nobody sees how far the work is, and nobody can cancel it.
class SilentProgress : public Progress
{
public:
    void setPercent(int) override {}
    void setMessage(const QString &) override {}
    bool cancelled() const override { return false; }
};

void say(const Message &message)
{
    // A lone CR would send a terminal back over what it has just written.
    QString text = message.text;
    text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    const QByteArray line = text.toLocal8Bit();
    std::fprintf(stderr, "%s\n", line.constData());
    std::fflush(stderr);
}

// Boxes are said on standard error and answered with their default button; whatever needs a
// person to fill in is cancelled.
Backend screenless()
{
    Backend backend;
    backend.message = [](const Message &message) {
        say(message);
        return message.preset;
    };
    backend.text = say;
    backend.input = [](const QString &, const QString &, const QString &, int) {
        return std::optional<QString>();
    };
    backend.folder = [](const QString &, const QString &) { return QString(); };
    backend.openFile = [](const FileRequest &) { return QString(); };
    backend.saveFile = backend.openFile;
    backend.progress = [](const QString &, const QString &, bool, bool) {
        return std::unique_ptr<Progress>(std::make_unique<SilentProgress>());
    };
    return backend;
}

QString titleOr(const QString &title)
{
    return title.isEmpty() ? app::title() : title;
}

void box(Kind kind, const QString &text, const QString &title)
{
    Message box;
    box.kind = kind;
    box.title = titleOr(title);
    box.text = text;
    message(box);
}

} // namespace

Progress::Progress()
{
    ++g_progressWindows;
}

Progress::~Progress()
{
    --g_progressWindows;
}

Backend &backend()
{
    static Backend instance = screenless();
    return instance;
}

void inform(const QString &text, const QString &title)
{
    box(Kind::Information, text, title);
}

void warn(const QString &text, const QString &title)
{
    box(Kind::Warning, text, title);
}

void critical(const QString &text, const QString &title)
{
    box(Kind::Critical, text, title);
}

Answer ask(const QString &text, Answer preset, const QString &title)
{
    Message question;
    question.kind = Kind::Question;
    question.title = titleOr(title);
    question.text = text;
    question.buttons = {Answer::Yes, Answer::No, Answer::Cancel};
    question.preset = preset;
    return message(question);
}

Answer message(const Message &message)
{
    return backend().message(message);
}

void showText(const QString &text, Kind kind, int helpContext)
{
    Message message;
    message.kind = kind;
    message.title = app::title();
    message.text = text;
    message.helpContext = helpContext;
    backend().text(message);
}

std::optional<QString> input(const QString &prompt, const QString &title, const QString &preset,
                             int helpContext)
{
    return backend().input(prompt, titleOr(title), preset, helpContext);
}

QString pickFolder(const QString &prompt, const QString &start)
{
    return backend().folder(prompt, start);
}

QString pickFileToOpen(const FileRequest &request)
{
    return backend().openFile(request);
}

QString pickFileToSave(const FileRequest &request)
{
    return backend().saveFile(request);
}

std::unique_ptr<Progress> progress(const QString &title, const QString &message, bool bar,
                                   bool cancel)
{
    return backend().progress(title, message, bar, cancel);
}

bool isWorking()
{
    return g_progressWindows > 0;
}

} // namespace prompts
