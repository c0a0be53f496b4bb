// Stands for the person: every box, dialog and input of the program must be expected by the test,
// in order. An unexpected one fails the test and is cancelled; a step left over fails it at the
// end. Progress windows need no step, they are recorded.
#pragma once

#include "common/base/Prompts.h"

#include <QStringList>

#include <deque>
#include <optional>
#include <vector>

class ScriptedPrompts
{
public:
    using Answer = prompts::Answer;
    using Kind = prompts::Kind;

    enum class Door { Message, Text, Input, Folder, OpenFile, SaveFile };

    // What a door was asked, whether it was expected or not.
    struct Seen {
        Door door;
        prompts::Message message; // the prompt is its text
        QString preset;           // of an input; the start of a folder dialog
        prompts::FileRequest request;
    };
    struct SeenProgress {
        QString title;
        QString message;
        bool bar = false;
        bool cancel = false;
        std::vector<int> percents;
        bool closed = false;
    };

    // One thing to come; what is set is checked.
    class Step
    {
    public:
        Step &kind(Kind kind);
        Step &title(const QString &title);
        Step &buttons(const QList<Answer> &buttons);
        Step &preset(Answer preset);
        Step &helpContext(int context);
        // Runs while the box is up, for what happens behind it.
        Step &meanwhile(std::function<void()> action);

    private:
        friend class ScriptedPrompts;
        Door m_door = Door::Message;
        QString m_fragment;
        Answer m_answer = Answer::Ok;
        std::optional<QString> m_text;
        std::optional<Kind> m_kind;
        std::optional<QString> m_title;
        std::optional<QList<Answer>> m_buttons;
        std::optional<Answer> m_preset;
        std::optional<int> m_helpContext;
        std::function<void()> m_meanwhile;
    };

    ScriptedPrompts();
    ~ScriptedPrompts();
    ScriptedPrompts(const ScriptedPrompts &) = delete;
    ScriptedPrompts &operator=(const ScriptedPrompts &) = delete;

    // A box whose text holds the fragment, and the button to press. The step stays valid until it
    // is used.
    Step &expect(const QString &fragment, Answer answer = Answer::Ok);
    Step &expectText(const QString &fragment); // a long message
    Step &expectInput(const QString &fragment, const std::optional<QString> &answer);
    // The fragment is one of the dialog's title; an empty path cancels.
    Step &expectFolder(const QString &fragment, const QString &path);
    Step &expectOpenFile(const QString &fragment, const QString &path);
    Step &expectSaveFile(const QString &fragment, const QString &path);
    // Cancel counts as pressed in every progress window from its nth question on, from 1.
    void cancelProgressAt(int question) { m_cancelAt = question; }

    const std::vector<Seen> &seen() const { return m_seen; }
    const QStringList &texts() const { return m_texts; } // of all that was seen
    const std::deque<SeenProgress> &progress() const { return m_progress; }
    qsizetype left() const { return static_cast<qsizetype>(m_steps.size()); }

private:
    class RecordedProgress;
    Step &add(Door door, const QString &fragment);
    std::optional<Step> take(const Seen &seen);
    QString takePath(Door door, const QString &title, const QString &preset,
                     const prompts::FileRequest &request);
    void install();

    prompts::Backend m_before;
    std::deque<Step> m_steps;
    std::vector<Seen> m_seen;
    QStringList m_texts;
    std::deque<SeenProgress> m_progress;
    int m_cancelAt = 0;
};
