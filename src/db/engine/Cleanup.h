// Undoes something when a scope is left before it came through, by an error or for lack of memory.
#pragma once

#include <exception>
#include <utility>

namespace norvane::engine
{

template <class Undo>
class Cleanup
{
public:
    explicit Cleanup(Undo undo) : m_undo(std::move(undo)) {}
    ~Cleanup()
    {
        if (!m_armed)
            return;
        try {
            m_undo();
        } catch (const std::exception &) {
            // nothing is left to be done; the lock goes with its file
            m_armed = false;
        }
    }
    Cleanup(const Cleanup &) = delete;
    Cleanup &operator=(const Cleanup &) = delete;

    void cancel() { m_armed = false; }

private:
    Undo m_undo;
    bool m_armed = true;
};

} // namespace norvane::engine
