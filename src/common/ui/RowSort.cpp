#include "common/ui/RowSort.h"

#include "common/base/TextOrder.h"

#include <QtEndian>

#include <algorithm>
#include <string>

namespace
{

constexpr int StepsBetweenQuestions = 1 << 14;

class RowSort
{
public:
    RowSort(const ListRows &rows, int column, Qt::SortOrder order, const TextOrder &texts,
            const std::function<bool()> &goOn)
        : m_rows(rows),
          m_column(column),
          m_descending(order == Qt::DescendingOrder),
          m_texts(texts),
          m_goOn(goOn),
          m_items(static_cast<std::size_t>(rows.count()))
    {
        std::uint32_t row = 0;
        for (Item &item : m_items)
            item.row = row++;
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
    struct Item { // sixteen bytes of the row's key, the first one highest, 0 behind its end
        std::uint64_t high;
        std::uint64_t low;
        std::uint32_t row;

        bool hasSamePiece(const Item &other) const
        {
            return high == other.high && low == other.low;
        }
        bool endsHere() const { return (low & 0xFFU) == 0; }
    };
    static constexpr std::size_t PieceBytes = 16;
    using Place = std::vector<Item>::iterator;

    void step()
    {
        if (++m_steps % StepsBetweenQuestions != 0)
            return;
        // Events go through meanwhile, and with them what fills the list anew.
        if (!m_goOn() || m_rows.version() != m_version)
            throw Stopped();
    }

    void takePiece(Item &item, std::size_t at)
    {
        m_key.clear();
        m_texts.appendKey(m_rows.text(static_cast<int>(item.row), m_column), m_key);
        m_key.resize(std::max(m_key.size(), at + PieceBytes), '\0');
        item.high = qFromBigEndian<std::uint64_t>(m_key.data() + at);
        item.low = qFromBigEndian<std::uint64_t>(m_key.data() + at + sizeof(item.high));
    }

    // Sixteen bytes of the keys at a time, kept beside the rows: comparing jumps nowhere, and whole
    // keys would take as much memory as the texts. Rows with the same sixteen are then sorted by
    // what follows.
    void sortFrom(Place first, Place last, std::size_t at)
    {
        for (Place item = first; item != last; ++item) {
            step();
            takePiece(*item, at);
        }
        std::sort(first, last, [this](const Item &a, const Item &b) {
            step();
            if (a.high != b.high)
                return (a.high < b.high) != m_descending;
            if (a.low != b.low)
                return (a.low < b.low) != m_descending;
            return a.row < b.row;
        });
        while (first != last) {
            const Place end = std::find_if(
                first, last, [first](const Item &item) { return !item.hasSamePiece(*first); });
            if (end - first > 1 && !first->endsHere())
                sortFrom(first, end, at + PieceBytes);
            first = end;
        }
    }

    const ListRows &m_rows;
    const unsigned m_version = m_rows.version();
    const int m_column;
    const bool m_descending;
    const TextOrder &m_texts;
    const std::function<bool()> &m_goOn;
    unsigned m_steps = 0;
    std::string m_key; // of the row at hand
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
