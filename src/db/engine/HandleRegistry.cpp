#include "db/engine/HandleRegistry.h"

#include "db/engine/Session.h"

namespace norvane::engine
{

namespace
{

// A handle is generation and slot: 11 and 20 bits below the sign.
constexpr std::uint32_t kSlotBits = 20;
constexpr std::uint32_t kMostSlots = 1U << kSlotBits;
constexpr std::uint16_t kMostGenerations = 0x7FF;

} // namespace

HandleRegistry::HandleRegistry() = default;
HandleRegistry::~HandleRegistry() = default;

HandleRegistry &handleRegistry()
{
    // Never destroyed: a session may be ended by another object that outlives main().
    static HandleRegistry *const registry = new HandleRegistry;
    return *registry;
}

Handle HandleRegistry::add(Slot slot)
{
    std::uint32_t number = 0;
    if (!m_free.empty()) {
        number = m_free.back();
        m_free.pop_back();
        slot.generation = m_slots[number].generation;
        m_slots[number] = std::move(slot);
    } else {
        if (m_slots.size() == kMostSlots)
            return 0;
        number = static_cast<std::uint32_t>(m_slots.size());
        if (m_free.capacity() <= m_slots.size()) // giving a handle back takes no memory
            m_free.reserve(2 * m_slots.size() + 16);
        m_slots.push_back(std::move(slot));
    }
    return static_cast<Handle>(std::uint32_t{m_slots[number].generation} << kSlotBits | number);
}

Handle HandleRegistry::addSession(std::unique_ptr<Session> session)
{
    Slot slot;
    slot.kind = HandleKind::Session;
    slot.session = std::move(session);
    return add(std::move(slot));
}

Handle HandleRegistry::addTable(OpenTable *table)
{
    Slot slot;
    slot.kind = HandleKind::Table;
    slot.table = table;
    return add(std::move(slot));
}

Handle HandleRegistry::addField(OpenTable *table, int position)
{
    Slot slot;
    slot.kind = HandleKind::Field;
    slot.table = table;
    slot.position = position;
    return add(std::move(slot));
}

Handle HandleRegistry::addTag(OpenTable *table, int position)
{
    Slot slot;
    slot.kind = HandleKind::Tag;
    slot.table = table;
    slot.position = position;
    return add(std::move(slot));
}

void HandleRegistry::remove(Handle handle)
{
    const std::uint32_t number = static_cast<std::uint32_t>(handle) & (kMostSlots - 1);
    if (handle <= 0 || number >= m_slots.size() || m_slots[number].kind == HandleKind::None ||
        !find(handle, m_slots[number].kind))
        return;
    Slot freed;
    const std::uint16_t generation = m_slots[number].generation;
    freed.generation =
        generation == kMostGenerations ? 1 : static_cast<std::uint16_t>(generation + 1);
    const std::unique_ptr<Session> ending = std::move(m_slots[number].session);
    m_slots[number] = std::move(freed);
    m_free.push_back(number);
}

const HandleRegistry::Slot *HandleRegistry::find(Handle handle, HandleKind kind) const
{
    if (handle <= 0)
        return nullptr;
    const auto bits = static_cast<std::uint32_t>(handle);
    const std::uint32_t number = bits & (kMostSlots - 1);
    if (number >= m_slots.size())
        return nullptr;
    const Slot &slot = m_slots[number];
    return slot.kind == kind && slot.generation == bits >> kSlotBits ? &slot : nullptr;
}

Session *HandleRegistry::session(Handle handle) const
{
    const Slot *slot = find(handle, HandleKind::Session);
    return slot ? slot->session.get() : nullptr;
}

OpenTable *HandleRegistry::table(Handle handle) const
{
    const Slot *slot = find(handle, HandleKind::Table);
    return slot ? slot->table : nullptr;
}

OpenTable *HandleRegistry::part(Handle handle, HandleKind kind, int &position) const
{
    const Slot *slot = find(handle, kind);
    if (!slot)
        return nullptr;
    position = slot->position;
    return slot->table;
}

} // namespace norvane::engine
