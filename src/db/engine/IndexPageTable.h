// Pages by their place in the file: a list of short lists, so that a page is found in two steps and
// a large file of which little is read takes little room.
#pragma once

#include "db/engine/IndexPage.h"

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace norvane::engine
{

class IndexPageTable
{
public:
    // Null when there is none.
    IndexPage *find(std::uint32_t offset) const
    {
        const std::size_t part = offset / indexPageSize / partPages;
        if (part >= m_parts.size() || !m_parts[part] || offset % indexPageSize != 0)
            return nullptr;
        return (*m_parts[part])[offset / indexPageSize % partPages].get();
    }
    // REQUIRES: there is one.
    IndexPage &at(std::uint32_t offset) const
    {
        const std::size_t page = offset / indexPageSize;
        return *(*m_parts[page / partPages])[page % partPages];
    }
    // The place of a page, to be filled. REQUIRES: a multiple of the page size, inside the file.
    std::unique_ptr<IndexPage> &slot(std::uint32_t offset)
    {
        const std::size_t part = offset / indexPageSize / partPages;
        if (part >= m_parts.size())
            m_parts.resize(part + 1);
        if (!m_parts[part])
            m_parts[part] = std::make_unique<Part>();
        return (*m_parts[part])[offset / indexPageSize % partPages];
    }
    void erase(std::uint32_t offset) { slot(offset).reset(); }
    void clear() { m_parts.clear(); }
    template <class F>
    void eraseIf(F unwanted)
    {
        for (const auto &part : m_parts) {
            for (std::unique_ptr<IndexPage> *page = part ? part->data() : nullptr;
                 page && page != part->data() + part->size(); ++page) {
                if (*page && unwanted(**page))
                    page->reset();
            }
        }
    }

private:
    static constexpr std::size_t partPages = 128;
    using Part = std::array<std::unique_ptr<IndexPage>, partPages>;

    std::vector<std::unique_ptr<Part>> m_parts;
};

} // namespace norvane::engine
