#include "support/TestEnvironment.h"

#include "common/base/Host.h"
#include "common/base/Prompts.h"

#include <gtest/gtest.h>

#include <QLocale>

namespace
{

void forbid(const char *door, const QString &text)
{
    ADD_FAILURE() << "a " << door << " nobody expected: " << qPrintable(text);
}

void forbidPrompts()
{
    prompts::Backend &backend = prompts::backend();
    backend.message = [](const prompts::Message &message) {
        forbid("box", message.text);
        return prompts::Answer::Cancel;
    };
    backend.text = [](const prompts::Message &message) { forbid("long message", message.text); };
    backend.input = [](const QString &prompt, const QString &, const QString &, int) {
        forbid("input box", prompt);
        return std::optional<QString>();
    };
    backend.folder = [](const QString &prompt, const QString &) {
        forbid("folder dialog", prompt);
        return QString();
    };
    backend.openFile = [](const prompts::FileRequest &request) {
        forbid("file dialog", request.title);
        return QString();
    };
    backend.saveFile = backend.openFile;
}

} // namespace

void prepareTestEnvironment()
{
    const QLocale american(QLocale::English, QLocale::UnitedStates);
    QLocale::setDefault(american);
    host().locale = [american] { return american; };
    host().open = [](const QString &item) {
        forbid("program for", item);
        return false;
    };
    host().launch = [](const QString &program, const QStringList &) {
        forbid("program", program);
        return false;
    };
    host().handOver = [](const QString &program, const QStringList &, int) {
        forbid("program", program);
        return false;
    };
    forbidPrompts();
}
