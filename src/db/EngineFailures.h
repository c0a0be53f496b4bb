// What the engine could not do, kept while tables are in use and told in plain words once they are
// closed: never from the midst of an engine call, and once however many calls failed.
#pragma once

#include "db/engine/Status.h"

#include <QString>
#include <QStringList>

class EngineFailures
{
public:
    // Keeps the first failure; a lock held elsewhere is an answer and not a failure.
    void note(const norvane::engine::Error &error);
    // Tells the kept failure, if any, in a critical box and forgets it. What the list of texts
    // holds is not told again; null: everything is.
    void show(QStringList *told = nullptr);
    void clear() { m_first = {}; }
    bool any() const { return bool(m_first); }
    // Between these two damaged memos are not kept: a search over many counts them itself.
    void beginPassingOverMemos() { ++m_passingOverMemos; }
    void endPassingOverMemos() { --m_passingOverMemos; }

private:
    norvane::engine::Error m_first;
    int m_passingOverMemos = 0;
};

// One or two sentences: what is wrong with which file, and what to do about it.
QString engineFailureText(const norvane::engine::Error &error);
