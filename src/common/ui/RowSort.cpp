#include "common/ui/RowSort.h"

#include "common/base/TextOrder.h"

#include <algorithm>
#include <limits>
#include <string>

namespace
{

constexpr int StepsBetweenQuestions = 1 << 14;
constexpr int Sample = 1000; // rows
constexpr char EndOfKey = '\0';

class RowSort
{
public:
    RowSort(const ListRows &rows, int column, Qt::SortOrder order, const TextOrder &texts,
            const std::function<bool()> &goOn)
        : m_descending(order == Qt::DescendingOrder), m_goOn(goOn)
    {
        const auto count = static_cast<std::size_t>(rows.count());
        m_items.reserve(count);
        for (int row = 0; row < rows.count(); ++row) {
            step();
            m_items.push_back(
                {0, static_cast<std::uint32_t>(row), static_cast<std::uint32_t>(m_keys.size())});
            texts.appendKey(rows.text(row, column), m_keys);
            m_keys += EndOfKey;
            if (row == Sample) // growing by halves would take twice the memory for a moment
                m_keys.reserve(m_keys.size() / Sample * count * 9 / 8);
        }
        if (m_keys.size() > std::numeric_limits<std::uint32_t>::max())
            throw Stopped(); // far beyond what a table can hold
    }

    std::vector<std::uint32_t> run()
    {
        sortFrom(m_items.begin(), m_items.end(), 0);
        m_keys = std::string();
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
        std::uint32_t key; // where it begins
    };
    using Place = std::vector<Item>::iterator;
    static constexpr std::size_t PieceBytes = sizeof(std::uint64_t);

    void step()
    {
        if (++m_steps % StepsBetweenQuestions == 0 && !m_goOn())
            throw Stopped();
    }

    // Padded with 0 behind the end of the key.
    std::uint64_t pieceOf(const Item &item, std::size_t at) const
    {
        const char *byte = m_keys.data() + item.key + at;
        std::uint64_t piece = 0;
        for (std::size_t left = PieceBytes; left > 0; --left) {
            piece = piece << 8U | static_cast<unsigned char>(*byte);
            byte += *byte == EndOfKey ? 0 : 1;
        }
        return piece;
    }
    static bool endsIn(std::uint64_t piece) { return (piece & 0xFFU) == 0; }

    // Eight bytes of the keys at a time, kept beside the rows: comparing jumps nowhere. Rows with
    // the same eight are then sorted by what follows.
    void sortFrom(Place first, Place last, std::size_t at)
    {
        for (Place item = first; item != last; ++item) {
            step();
            item->piece = pieceOf(*item, at);
        }
        std::sort(first, last, [this](const Item &a, const Item &b) {
            step();
            if (a.piece != b.piece)
                return m_descending ? a.piece > b.piece : a.piece < b.piece;
            return a.row < b.row;
        });
        while (first != last) {
            const Place end = std::find_if(first, last, [piece = first->piece](const Item &item) {
                return item.piece != piece;
            });
            if (end - first > 1 && !endsIn(first->piece))
                sortFrom(first, end, at + PieceBytes);
            first = end;
        }
    }

    const bool m_descending;
    const std::function<bool()> &m_goOn;
    unsigned m_steps = 0;
    std::string m_keys; // side by side
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
