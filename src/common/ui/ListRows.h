// The rows of a ListView, kept small: a list may have a million. Each row is one piece of memory
// with its key and texts side by side, 8 bits a character where they allow it.
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

class ListRows
{
public:
    int count() const { return static_cast<int>(m_rows.size()); }
    // Moved by every change but setText(): places and keys known before are no longer good.
    unsigned version() const { return m_version; }
    void append(const QString &key, const QStringList &texts);
    void insert(int row, const QString &key, const QStringList &texts);
    void removeAt(int row);
    void clear();
    void setText(int row, int column, const QString &text);

    QString key(int row) const;
    QString text(int row, int column) const; // empty behind the row's last text
    // The first of the first `limit` rows with that key; -1 when there is none.
    int rowOfKey(const QString &key, int limit) const;

    // The row that was at order[i] comes to i.
    void arrange(const std::vector<std::uint32_t> &order);

private:
    const char *store(const QString &key, const QStringList &texts);
    char *room(std::size_t bytes);
    QStringList texts(int row) const;

    std::vector<const char *> m_rows;
    std::vector<std::unique_ptr<char[]>> m_blocks;
    std::size_t m_blockSize = 0;
    std::size_t m_used = 0; // of the last block
    unsigned m_version = 0;
};
