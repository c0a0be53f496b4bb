// The files attached to one record: a folder of its own, in which a file's name is the name of the
// attachment. A name is only ever a name: one that leads elsewhere is refused. A link is an entry
// like any other: it can be removed, renamed and replaced, and what it leads to stays as it is.
#pragma once

#include "common/base/FileCopy.h"

#include <QString>

class AttachmentFolder
{
public:
    AttachmentFolder() = default; // of no record
    // Copies are written in `workFolder`, the folder above all of these, until they are whole.
    AttachmentFolder(const QString &path, const QString &workFolder);

    const QString &path() const { return m_path; }
    // False also when a link stands in its place: that could lead anywhere.
    bool exists() const;
    // Makes it, and the folder above it. Who may write there may write here.
    bool create() const;

    // Not empty, no separator, no way up, and nothing that could not be deleted again.
    static bool isPlainName(const QString &name);
    QString filePath(const QString &name) const;
    bool contains(const QString &name) const; // a link that leads nowhere too
    bool holds(const QString &path) const;    // the path is that of an entry

    // Puts a copy of the file in under that name, in place of one that is there.
    FileCopyOutcome add(const QString &source, const QString &name,
                        const FileCopyWatch &watch = {}) const;
    bool remove(const QString &name) const;                    // a file or a link
    bool rename(const QString &from, const QString &to) const; // never replaces

private:
    void dropOldWork() const;

    QString m_path;
    QString m_workFolder;
};
