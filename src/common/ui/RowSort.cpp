#include "common/ui/RowSort.h"

#include "common/base/TextOrder.h"

#include <algorithm>
#include <string>

namespace
{

constexpr int StepsBetweenQuestions = 1 << 14;
constexpr int Sample = 1000; // rows

class RowSort
{
public:
    RowSort(const ListRows &rows, int column, Qt::SortOrder order, const TextOrder &texts,
            const std::function<bool()> &goOn)
        : m_descending(order == Qt::DescendingOrder), m_goOn(goOn)
    {
        const auto count = static_cast<std::size_t>(rows.count());
        m_items.reserve(count);
        m_starts.reserve(count + 1);
        for (int row = 0; row < rows.count(); ++row) {
            step();
            m_items.push_back({0, static_cast<std::uint32_t>(row)});
            m_starts.push_back(m_keys.size());
            texts.appendKey(rows.text(row, column), m_keys);
            if (row == Sample) // growing by halves would take twice the memory for a moment
                m_keys.reserve(m_keys.size() / Sample * count * 9 / 8);
        }
        m_starts.push_back(m_keys.size());
    }

    std::vector<std::uint32_t> run()
    {
        sortFrom(m_items.begin(), m_items.end(), 0);
        std::vector<std::uint32_t> rows;
        rows.reserve(m_items.size());
        for (const Item &item : m_items)
            rows.push_back(item.row);
        return rows;
    }

    struct Stopped {
    };

private:
    struct Item {
        std::uint64_t piece; // of the row's key
        std::uint32_t row;
    };
    using Place = std::vector<Item>::iterator;
    static constexpr std::size_t PieceBytes = sizeof(std::uint64_t);

    void step()
    {
        if (++m_steps % StepsBetweenQuestions == 0 && !m_goOn())
            throw Stopped();
    }

    std::uint64_t pieceOf(std::uint32_t row, std::size_t at) const
    {
        const std::size_t begin = m_starts[row] + at;
        const std::size_t end = std::min(begin + PieceBytes, m_starts[row + 1]);
        std::uint64_t piece = 0;
        for (std::size_t byte = begin; byte < end; ++byte)
            piece = piece << 8U | static_cast<unsigned char>(m_keys[byte]);
        return begin < end ? piece << 8U * (PieceBytes - (end - begin)) : 0;
    }
    bool hasMore(std::uint32_t row, std::size_t at) const
    {
        return m_starts[row + 1] - m_starts[row] > at;
    }

    // Eight bytes of the keys at a time, kept beside the rows: comparing jumps nowhere. Rows with
    // the same eight are then sorted by what follows.
    void sortFrom(Place first, Place last, std::size_t at)
    {
        for (Place item = first; item != last; ++item) {
            step();
            item->piece = pieceOf(item->row, at);
        }
        std::sort(first, last, [this](const Item &a, const Item &b) {
            step();
            if (a.piece != b.piece)
                return m_descending ? a.piece > b.piece : a.piece < b.piece;
            return a.row < b.row;
        });
        const std::size_t next = at + PieceBytes;
        while (first != last) {
            const Place end = std::find_if(first, last, [piece = first->piece](const Item &item) {
                return item.piece != piece;
            });
            const bool more = std::any_of(
                first, end, [this, next](const Item &item) { return hasMore(item.row, next); });
            if (end - first > 1 && more)
                sortFrom(first, end, next);
            first = end;
        }
    }

    const bool m_descending;
    const std::function<bool()> &m_goOn;
    int m_steps = 0;
    std::string m_keys; // side by side
    std::vector<std::size_t> m_starts;
    std::vector<Item> m_items;
};

} // namespace

std::optional<std::vector<std::uint32_t>> sortedRows(const ListRows &rows, int column,
                                                     Qt::SortOrder order, const TextOrder &texts,
                                                     const std::function<bool()> &goOn)
{
    try {
        return RowSort(rows, column, order, texts, goOn).run();
    } catch (const RowSort::Stopped &) {
        return std::nullopt;
    }
}
