// The face: tables and their parts.
#include "db/engine/Cleanup.h"
#include "db/engine/engine.h"
#include "db/engine/EngineAnswers.h"

#include <new>

namespace norvane::engine
{

namespace
{

Handle openTable(Session &owner, const std::string &name)
{
    const Result<OpenTable *> open = owner.openTable(name);
    if (!open.ok()) {
        Error error = open.error();
        const bool expected = error.kind == ErrorKind::Locked ||
                              (error.kind == ErrorKind::NotFound && error.file == name);
        if (error.file.empty())
            error.file = name;
        owner.note(error, expected ? Session::Answer::Expected : Session::Answer::Failure);
        return 0;
    }
    Cleanup close([&] { (void)owner.closeTable(*open); });
    (*open)->handle = handleRegistry().addTable(*open);
    // What is left can be read, but whoever reads it must know.
    TableFiles &files = (*open)->table.files();
    if (files.damage() && !files.damageIsQuiet())
        owner.note(files.damage(), Session::Answer::Failure);
    close.cancel();
    return (*open)->handle;
}

} // namespace

Handle d4open(Handle session, std::string_view path)
{
    Session *owner = handleRegistry().session(session);
    if (!owner)
        return 0;
    try {
        return openTable(*owner, std::string(path));
    } catch (const std::bad_alloc &) {
        owner->noteNoMemory();
        return 0;
    }
}

Code d4close(Handle table)
{
    OpenTable *open = handleRegistry().table(table);
    if (!open)
        return r4failure;
    Session &owner = open->session;
    try {
        const Status status = owner.closeTable(open);
        if (!status.ok())
            owner.note(status.error(), Session::Answer::Failure);
        return status.ok() ? r4success : r4failure;
    } catch (const std::bad_alloc &) {
        owner.noteNoMemory(); // closed all the same
        return r4failure;
    }
}

Handle d4fieldAt(Handle table, int position)
{
    OpenTable *open = handleRegistry().table(table);
    if (!open || position < 1 || position > static_cast<int>(open->fields.size()))
        return 0;
    Handle &handle = open->fields[static_cast<std::size_t>(position - 1)];
    return withTable(open, 0, [&](OpenTable &own) {
        if (handle == 0)
            handle = handleRegistry().addField(&own, position - 1);
        return handle;
    });
}

Handle d4field(Handle table, std::string_view name)
{
    OpenTable *open = handleRegistry().table(table);
    if (!open)
        return 0;
    return withTable(open, 0, [&](OpenTable &own) -> Handle {
        const int position = own.table.layout().find(name);
        if (position >= 0)
            return d4fieldAt(table, position + 1);
        own.session.note(
            {ErrorKind::NotFound, own.table.files().path(), "no field " + std::string(name)},
            Session::Answer::Failure);
        return 0;
    });
}

int d4numFields(Handle table)
{
    const OpenTable *open = handleRegistry().table(table);
    return open ? static_cast<int>(open->fields.size()) : 0;
}

Handle d4tag(Handle table, std::string_view name)
{
    return withTable(handleRegistry().table(table), 0, [&](OpenTable &open) -> Handle {
        const IndexFile *index = open.table.files().index();
        const int position = index ? index->findTag(name) : -1;
        if (position >= 0) {
            if (open.tags.size() < index->tags().size())
                open.tags.resize(index->tags().size()); // built anew with more of them
            Handle &handle = open.tags[static_cast<std::size_t>(position)];
            if (handle == 0)
                handle = handleRegistry().addTag(&open, position);
            return handle;
        }
        open.session.note(
            {ErrorKind::NotFound, open.table.files().path(), "no tag " + std::string(name)},
            open.session.settings.reportTagNames ? Session::Answer::Failure
                                                 : Session::Answer::Expected);
        return 0;
    });
}

std::vector<std::string> d4tagNames(Handle table)
{
    using Names = std::vector<std::string>;
    return withTable(handleRegistry().table(table), Names(), [](OpenTable &open) {
        Names names;
        if (open.table.files().index()) {
            for (const TagInfo &tag : open.table.files().index()->tags())
                names.push_back(tag.name);
        }
        return names;
    });
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
    return withTable(handleRegistry().table(table), 0U, [](OpenTable &open) {
        const Result<std::uint32_t> count = open.table.countRows();
        if (!count.ok())
            open.session.note(count.error(), Session::Answer::Failure);
        return count.ok() ? *count : 0U;
    });
}

std::uint32_t d4recNo(Handle table)
{
    const OpenTable *open = handleRegistry().table(table);
    return open ? open->table.recNo() : 0;
}

} // namespace norvane::engine
