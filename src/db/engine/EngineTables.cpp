// The face: tables, their parts, and their check.
#include "db/engine/engine.h"
#include "db/engine/EngineAnswers.h"
#include "db/engine/TableCheck.h"

namespace norvane::engine
{

Handle d4open(Handle session, std::string_view path)
{
    Session *owner = handleRegistry().session(session);
    if (!owner)
        return 0;
    const std::string name(path);
    const Result<OpenTable *> open = owner->openTable(name);
    if (open.ok()) {
        (*open)->handle = handleRegistry().addTable(*open);
        // Rows that are left can be read, but whoever reads them must know that some are not.
        if (const Status whole = (*open)->table.files().checkCount(); !whole.ok())
            owner->note(whole.error(), Session::Answer::Failure);
        return (*open)->handle;
    }
    const Error &error = open.error();
    const bool expected = error.kind == ErrorKind::Locked ||
                          (error.kind == ErrorKind::NotFound && error.file == name);
    owner->note(error, expected ? Session::Answer::Expected : Session::Answer::Failure);
    return 0;
}

Code d4close(Handle table)
{
    OpenTable *open = handleRegistry().table(table);
    if (!open)
        return r4failure;
    Session &owner = open->session;
    const Status status = owner.closeTable(open);
    if (!status.ok())
        owner.note(status.error(), Session::Answer::Failure);
    return status.ok() ? r4success : r4failure;
}

Handle d4fieldAt(Handle table, int position)
{
    OpenTable *open = handleRegistry().table(table);
    if (!open || position < 1 || position > static_cast<int>(open->fields.size()))
        return 0;
    Handle &handle = open->fields[static_cast<std::size_t>(position - 1)];
    if (handle == 0)
        handle = handleRegistry().addField(open, position - 1);
    return handle;
}

Handle d4field(Handle table, std::string_view name)
{
    OpenTable *open = handleRegistry().table(table);
    if (!open)
        return 0;
    const int position = open->table.layout().find(name);
    if (position >= 0)
        return d4fieldAt(table, position + 1);
    open->session.note(
        {ErrorKind::NotFound, open->table.files().path(), "no field " + std::string(name)},
        Session::Answer::Failure);
    return 0;
}

int d4numFields(Handle table)
{
    const OpenTable *open = handleRegistry().table(table);
    return open ? static_cast<int>(open->fields.size()) : 0;
}

Handle d4tag(Handle table, std::string_view name)
{
    OpenTable *open = handleRegistry().table(table);
    if (!open)
        return 0;
    const IndexFile *index = open->table.files().index();
    const int position = index ? index->findTag(name) : -1;
    if (position >= 0) {
        Handle &handle = open->tags[static_cast<std::size_t>(position)];
        if (handle == 0)
            handle = handleRegistry().addTag(open, position);
        return handle;
    }
    open->session.note(
        {ErrorKind::NotFound, open->table.files().path(), "no tag " + std::string(name)},
        open->session.settings.reportTagNames ? Session::Answer::Failure
                                              : Session::Answer::Expected);
    return 0;
}

std::vector<std::string> d4tagNames(Handle table)
{
    std::vector<std::string> names;
    OpenTable *open = handleRegistry().table(table);
    if (open && open->table.files().index()) {
        for (const TagInfo &tag : open->table.files().index()->tags())
            names.push_back(tag.name);
    }
    return names;
}

void d4tagSelect(Handle table, Handle tag)
{
    OpenTable *open = handleRegistry().table(table);
    if (!open)
        return;
    int position = -1;
    if (tag == 0 || handleRegistry().part(tag, HandleKind::Tag, position) == open)
        open->table.selectTag(tag == 0 ? -1 : position);
}

std::uint32_t d4recCountDo(Handle table)
{
    OpenTable *open = handleRegistry().table(table);
    if (!open)
        return 0;
    const Result<std::uint32_t> count = open->table.countRows();
    if (!count.ok())
        open->session.note(count.error(), Session::Answer::Failure);
    return count.ok() ? *count : 0;
}

std::uint32_t d4recNo(Handle table)
{
    const OpenTable *open = handleRegistry().table(table);
    return open ? open->table.recNo() : 0;
}

std::vector<std::string> d4check(Handle table)
{
    OpenTable *open = handleRegistry().table(table);
    if (!open)
        return {"no such table"};
    return checkTable(open->table.files(), open->session.settings.patience);
}

} // namespace norvane::engine
