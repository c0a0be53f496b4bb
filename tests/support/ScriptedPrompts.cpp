#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

namespace
{

const char *doorName(ScriptedPrompts::Door door)
{
    switch (door) {
    case ScriptedPrompts::Door::Message:
        return "box";
    case ScriptedPrompts::Door::Text:
        return "long message";
    case ScriptedPrompts::Door::Input:
        return "input box";
    case ScriptedPrompts::Door::Folder:
        return "folder dialog";
    case ScriptedPrompts::Door::OpenFile:
        return "file-open dialog";
    case ScriptedPrompts::Door::SaveFile:
        return "file-save dialog";
    }
    return "";
}

template <class T>
void check(const std::optional<T> &wanted, const T &found, const char *what, const QString &text)
{
    EXPECT_TRUE(!wanted || *wanted == found)
        << "another " << what << " than expected: " << qPrintable(text);
}

} // namespace

class ScriptedPrompts::RecordedProgress : public prompts::Progress
{
public:
    RecordedProgress(SeenProgress &record, const int &cancelAt)
        : m_record(record), m_cancelAt(cancelAt)
    {
    }
    ~RecordedProgress() override { m_record.closed = true; }
    RecordedProgress(const RecordedProgress &) = delete;
    RecordedProgress &operator=(const RecordedProgress &) = delete;
    void setPercent(int percent) override { m_record.percents.push_back(percent); }
    void setMessage(const QString &message) override { m_record.message = message; }
    bool cancelled() const override { return m_cancelAt > 0 && ++m_questions >= m_cancelAt; }

private:
    SeenProgress &m_record;
    const int &m_cancelAt;
    mutable int m_questions = 0;
};

ScriptedPrompts::Step &ScriptedPrompts::Step::kind(Kind kind)
{
    m_kind = kind;
    return *this;
}

ScriptedPrompts::Step &ScriptedPrompts::Step::title(const QString &title)
{
    m_title = title;
    return *this;
}

ScriptedPrompts::Step &ScriptedPrompts::Step::buttons(const QList<Answer> &buttons)
{
    m_buttons = buttons;
    return *this;
}

ScriptedPrompts::Step &ScriptedPrompts::Step::preset(Answer preset)
{
    m_preset = preset;
    return *this;
}

ScriptedPrompts::Step &ScriptedPrompts::Step::helpContext(int context)
{
    m_helpContext = context;
    return *this;
}

ScriptedPrompts::Step &ScriptedPrompts::Step::meanwhile(std::function<void()> action)
{
    m_meanwhile = std::move(action);
    return *this;
}

ScriptedPrompts::ScriptedPrompts() : m_before(prompts::backend())
{
    install();
}

ScriptedPrompts::~ScriptedPrompts()
{
    prompts::backend() = m_before;
    for (const Step &step : m_steps) {
        ADD_FAILURE() << "a " << doorName(step.m_door)
                      << " never came: " << qPrintable(step.m_fragment);
    }
}

ScriptedPrompts::Step &ScriptedPrompts::add(Door door, const QString &fragment)
{
    m_steps.emplace_back();
    m_steps.back().m_door = door;
    m_steps.back().m_fragment = fragment;
    return m_steps.back();
}

ScriptedPrompts::Step &ScriptedPrompts::expect(const QString &fragment, Answer answer)
{
    Step &step = add(Door::Message, fragment);
    step.m_answer = answer;
    return step;
}

ScriptedPrompts::Step &ScriptedPrompts::expectText(const QString &fragment)
{
    return add(Door::Text, fragment);
}

ScriptedPrompts::Step &ScriptedPrompts::expectInput(const QString &fragment,
                                                    const std::optional<QString> &answer)
{
    Step &step = add(Door::Input, fragment);
    step.m_text = answer;
    return step;
}

ScriptedPrompts::Step &ScriptedPrompts::expectFolder(const QString &fragment, const QString &path)
{
    Step &step = add(Door::Folder, fragment);
    step.m_text = path;
    return step;
}

ScriptedPrompts::Step &ScriptedPrompts::expectOpenFile(const QString &fragment, const QString &path)
{
    Step &step = add(Door::OpenFile, fragment);
    step.m_text = path;
    return step;
}

ScriptedPrompts::Step &ScriptedPrompts::expectSaveFile(const QString &fragment, const QString &path)
{
    Step &step = add(Door::SaveFile, fragment);
    step.m_text = path;
    return step;
}

std::optional<ScriptedPrompts::Step> ScriptedPrompts::take(const Seen &seen)
{
    m_seen.push_back(seen);
    const prompts::Message &message = seen.message;
    m_texts += message.text;
    if (m_steps.empty() || m_steps.front().m_door != seen.door ||
        !message.text.contains(m_steps.front().m_fragment)) {
        ADD_FAILURE() << "an unexpected " << doorName(seen.door) << ": " << qPrintable(message.text)
                      << "\nexpected: "
                      << (m_steps.empty() ? "nothing" : qPrintable(m_steps.front().m_fragment));
        return std::nullopt;
    }
    const Step step = m_steps.front();
    m_steps.pop_front();
    check(step.m_kind, message.kind, "kind", message.text);
    check(step.m_title, message.title, "title", message.text);
    check(step.m_buttons, message.buttons, "set of buttons", message.text);
    check(step.m_preset, message.preset, "default button", message.text);
    check(step.m_helpContext, message.helpContext, "help topic", message.text);
    EXPECT_TRUE(seen.door != Door::Message || message.buttons.contains(step.m_answer))
        << "no such button: " << qPrintable(message.text);
    if (step.m_meanwhile)
        step.m_meanwhile();
    return step;
}

QString ScriptedPrompts::takePath(Door door, const QString &title, const QString &preset,
                                  const prompts::FileRequest &request)
{
    Seen seen{door, {}, preset, request};
    seen.message.text = title;
    seen.message.title = title;
    const auto step = take(seen);
    return step ? step->m_text.value_or(QString()) : QString();
}

void ScriptedPrompts::install()
{
    prompts::Backend &backend = prompts::backend();
    backend.message = [this](const prompts::Message &message) {
        const auto step = take({Door::Message, message, {}, {}});
        return step ? step->m_answer : Answer::Cancel;
    };
    backend.text = [this](const prompts::Message &message) { take({Door::Text, message, {}, {}}); };
    backend.input = [this](const QString &prompt, const QString &title, const QString &preset,
                           int helpContext) {
        Seen seen{Door::Input, {}, preset, {}};
        seen.message.text = prompt;
        seen.message.title = title;
        seen.message.helpContext = helpContext;
        const auto step = take(seen);
        return step ? step->m_text : std::nullopt;
    };
    backend.folder = [this](const QString &prompt, const QString &start) {
        return takePath(Door::Folder, prompt, start, {});
    };
    backend.openFile = [this](const prompts::FileRequest &request) {
        return takePath(Door::OpenFile, request.title, request.initialName, request);
    };
    backend.saveFile = [this](const prompts::FileRequest &request) {
        return takePath(Door::SaveFile, request.title, request.initialName, request);
    };
    backend.progress = [this](const QString &title, const QString &message, bool bar,
                              bool cancel) -> std::unique_ptr<prompts::Progress> {
        m_progress.push_back({title, message, bar, cancel, {}, false});
        return std::make_unique<RecordedProgress>(m_progress.back(), m_cancelAt);
    };
}
