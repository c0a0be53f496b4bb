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

// Gives a whole copy its name; takes the path it was written under.
using FileCopyPlacing = std::function<FileCopyOutcome(const QString &written)>;

// Copies a file over whatever has the target's name; that stays until the copy is whole, and when
// it fails or is cancelled nothing is left behind. The copy is written in `workFolder` first, which
// must be on the target's volume, and moved from there as `place` does it; without a work folder it
// is written beside the target. The watch is asked before each block of a megabyte.
FileCopyOutcome copyFile(const QString &source, const QString &target,
                         const QString &workFolder = {}, const FileCopyWatch &watch = {},
                         const FileCopyPlacing &place = {});

// A placing: under that name in the folder, in place of what has it. Fails, and removes the copy,
// when a link stands in the folder's place; what that leads to is not touched.
FileCopyOutcome moveIntoFolder(const QString &written, const QString &folder, const QString &name);
