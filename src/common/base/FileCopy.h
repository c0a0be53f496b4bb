// Copies of files that appear under their name only when they are whole.
#pragma once

#include <QString>
#include <QtGlobal>

#include <functional>

struct FileCopyOutcome {
    enum class End { Done, Cancelled, Failed };
    End end = End::Failed;
    QString cause = {}; // of a failure, in the system's words

    bool done() const { return end == End::Done; }
};

// Hears how many bytes of how many are copied; false cancels.
using FileCopyWatch = std::function<bool(qint64 done, qint64 all)>;

// Copies a file over whatever has the target's name; that stays until the copy is whole, and when
// it fails or is cancelled nothing is left behind. The copy is written in `workFolder` first, which
// must be on the target's volume; without one beside the target. The watch is asked before each
// block of a megabyte.
FileCopyOutcome copyFile(const QString &source, const QString &target,
                         const QString &workFolder = {}, const FileCopyWatch &watch = {});
