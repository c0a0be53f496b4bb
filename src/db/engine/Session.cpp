#include "db/engine/Session.h"

#include "db/engine/HandleRegistry.h"

#include <algorithm>
#include <filesystem>
#include <new>

namespace norvane::engine
{

OpenTable::OpenTable(Session &owner, std::shared_ptr<TableFiles> files)
    : session(owner),
      table(owner.settings, std::move(files)),
      fields(table.layout().fields.size()),
      tags(table.files().index() ? table.files().index()->tags().size() : 0)
{
}

Result<std::shared_ptr<TableFiles>> Session::filesFor(const std::string &path)
{
    std::error_code failed;
    std::string key = std::filesystem::absolute(path, failed).lexically_normal().string();
    key.append(settings.readOnly ? "|r" : "|w");
    if (std::shared_ptr<TableFiles> open = m_open[key].lock())
        return open;
    Result<std::shared_ptr<TableFiles>> opened =
        TableFiles::open(m_files, path, settings, m_known[key]);
    if (opened.ok())
        m_open[key] = *opened;
    else
        m_open.erase(key);
    return opened;
}

Result<OpenTable *> Session::openTable(const std::string &path)
{
    Result<std::shared_ptr<TableFiles>> files = filesFor(path);
    if (!files.ok())
        return files.error();
    auto open = std::make_unique<OpenTable>(*this, std::move(*files));
    if (settings.exclusive) {
        if (Status status = open->table.enterExclusive(); !status.ok())
            return status.error();
    }
    m_tables.push_back(std::move(open));
    return m_tables.back().get();
}

Status Session::closeTable(OpenTable *table)
{
    HandleRegistry &registry = handleRegistry();
    registry.remove(table->handle);
    for (const Handle handle : table->fields)
        registry.remove(handle);
    for (const Handle handle : table->tags)
        registry.remove(handle);
    Status status = table->table.close();
    std::erase_if(m_tables, [table](const auto &open) { return open.get() == table; });
    return status;
}

Status Session::closeAll()
{
    Status first;
    while (!m_tables.empty()) {
        const Status status = closeTable(m_tables.back().get());
        if (first.ok())
            first = status;
    }
    return first;
}

// Must not fail itself: the handler that cannot get memory for its words says nothing.
void Session::noteNoMemory()
{
    m_lastError = noMemory();
    errorCode = -static_cast<int>(ErrorKind::NoMemory);
    try {
        if (onError)
            onError(m_lastError);
    } catch (const std::bad_alloc &) {
        errorCode = -static_cast<int>(ErrorKind::NoMemory);
    }
}

void Session::note(const Error &error, Answer answer)
{
    m_lastError = error;
    errorCode = -static_cast<int>(error.kind);
    if (answer == Answer::Failure && onError)
        onError(error);
}

} // namespace norvane::engine
