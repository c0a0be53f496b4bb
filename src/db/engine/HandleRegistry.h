// The integers of the face and what they stand for. A number given back is not soon given out
// again, so a stale one is recognised.
#pragma once

#include "db/engine/engine.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace norvane::engine
{

class Session;
struct OpenTable;

enum class HandleKind : std::uint8_t { None, Session, Table, Field, Tag };

class HandleRegistry
{
public:
    // 0 when there are no more.
    Handle addSession(std::unique_ptr<Session> session);
    Handle addTable(OpenTable *table);
    Handle addField(OpenTable *table, int position);
    Handle addTag(OpenTable *table, int position);
    void remove(Handle handle); // a session ends with it

    // Null when the handle is no (longer a) handle of that kind.
    Session *session(Handle handle) const;
    OpenTable *table(Handle handle) const;
    // The table a field or tag belongs to, and its position there.
    OpenTable *part(Handle handle, HandleKind kind, int &position) const;

    HandleRegistry();
    ~HandleRegistry();

private:
    struct Slot {
        HandleKind kind = HandleKind::None;
        std::uint16_t generation = 1;
        int position = 0;
        OpenTable *table = nullptr;
        std::unique_ptr<Session> session;
    };

    Handle add(Slot slot);
    const Slot *find(Handle handle, HandleKind kind) const;

    std::vector<Slot> m_slots;
    std::vector<std::uint32_t> m_free;
};

// The one of this process.
HandleRegistry &handleRegistry();

} // namespace norvane::engine
