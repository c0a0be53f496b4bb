#include "db/engine/UndoFile.h"

#include <algorithm>

namespace norvane::engine
{

void UndoFile::keep()
{
    m_recording = false;
    m_before.clear();
    m_sizeBefore.reset();
}

Status UndoFile::write(std::uint64_t offset, ByteView bytes)
{
    if (m_recording) {
        Before before{offset, std::vector<Byte>(bytes.size())};
        const Result<std::size_t> got = m_file->read(offset, before.bytes);
        if (!got.ok())
            return got.error();
        if (*got < bytes.size() && !m_sizeBefore) {
            const Result<std::uint64_t> size = m_file->size();
            if (!size.ok())
                return size.error();
            m_sizeBefore = *size;
        }
        before.bytes.resize(*got);
        m_before.push_back(std::move(before));
    }
    return m_file->write(offset, bytes);
}

Status UndoFile::undo()
{
    Status first;
    for (auto it = m_before.rbegin(); it != m_before.rend(); ++it) {
        const Status status = m_file->write(it->offset, it->bytes);
        if (first.ok())
            first = status;
    }
    if (m_sizeBefore) {
        const Status status = m_file->resize(*m_sizeBefore);
        if (first.ok())
            first = status;
    }
    keep();
    return first;
}

} // namespace norvane::engine
