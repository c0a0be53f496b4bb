// The face: sessions.
#include "db/engine/engine.h"
#include "db/engine/HandleRegistry.h"
#include "db/engine/Session.h"

#include <new>

namespace norvane::engine
{

Handle d4init_v(FileSystem *files)
{
    try {
        return handleRegistry().addSession(
            std::make_unique<Session>(files ? *files : systemFiles()));
    } catch (const std::bad_alloc &) {
        return 0;
    }
}

Code d4initUndo(Handle session)
{
    Session *ending = handleRegistry().session(session);
    if (!ending)
        return r4failure;
    Code code = r4failure;
    try {
        const Status status = ending->closeAll();
        if (!status.ok())
            ending->note(status.error(), Session::Answer::Failure);
        code = status.ok() ? r4success : r4failure;
    } catch (const std::bad_alloc &) {
        ending->noteNoMemory();
    }
    handleRegistry().remove(session);
    return code;
}

void code4accessMode(Handle session, int mode)
{
    if (Session *found = handleRegistry().session(session))
        found->settings.exclusive = mode != 0;
}

void code4readOnly(Handle session, int flag)
{
    if (Session *found = handleRegistry().session(session))
        found->settings.readOnly = flag != 0;
}

void code4readLock(Handle /*session*/, int /*flag*/)
{
    // reading never takes a record lock
}

void code4lockAttempts(Handle session, int attempts)
{
    if (Session *found = handleRegistry().session(session))
        found->settings.patience.attempts = attempts;
}

void code4lockEnforce(Handle session, int flag)
{
    if (Session *found = handleRegistry().session(session))
        found->settings.lockEnforce = flag != 0;
}

void code4lockDelay(Handle session, int hundredths)
{
    if (Session *found = handleRegistry().session(session))
        found->settings.patience.delay = std::chrono::milliseconds(10) * hundredths;
}

void code4errTagName(Handle session, int flag)
{
    if (Session *found = handleRegistry().session(session))
        found->settings.reportTagNames = flag != 0;
}

void code4durability(Handle session, std::string_view setting)
{
    if (Session *found = handleRegistry().session(session))
        found->settings.durability = setting == "process" ? Durability::Process : Durability::Full;
}

Code code4errorCode(Handle session, int value)
{
    Session *found = handleRegistry().session(session);
    if (!found)
        return r4failure;
    const auto before = static_cast<Code>(found->errorCode);
    found->errorCode = value;
    if (value == 0)
        found->clearError();
    return before;
}

const Error &lastError(Handle session)
{
    static const Error noSession{ErrorKind::Misuse, {}, "no such session"};
    const Session *found = handleRegistry().session(session);
    return found ? found->lastError() : noSession;
}

void code4errorHandler(Handle session, std::function<void(const Error &)> handler)
{
    if (Session *found = handleRegistry().session(session))
        found->onError = std::move(handler);
}

void code4waitHandler(Handle session, std::function<void(std::chrono::milliseconds)> handler)
{
    if (Session *found = handleRegistry().session(session))
        found->settings.patience.onWait = std::move(handler);
}

} // namespace norvane::engine
