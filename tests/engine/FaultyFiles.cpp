#include "engine/FaultyFiles.h"

using namespace norvane::engine;

namespace enginetest
{

class FaultyFile final : public File
{
public:
    FaultyFile(FaultyFiles &files, std::unique_ptr<File> file)
        : m_files(files), m_file(std::move(file))
    {
    }

    Result<std::size_t> read(std::uint64_t offset, ByteSpan into) override
    {
        ++m_files.m_calls;
        return m_file->read(offset, into);
    }
    Status write(std::uint64_t offset, ByteView bytes) override
    {
        ++m_files.m_calls;
        if (!m_files.nextWriteFails())
            return m_file->write(offset, bytes);
        (void)m_file->write(offset, bytes.first(bytes.size() / 2)); // as much as there was room for
        return full();
    }
    Result<std::uint64_t> size() override
    {
        ++m_files.m_calls;
        return m_file->size();
    }
    Status resize(std::uint64_t size) override
    {
        ++m_files.m_calls;
        return m_files.nextWriteFails() ? full() : m_file->resize(size);
    }
    Status sync() override { return m_file->sync(); }
    Status tryLock(std::uint64_t offset, std::uint64_t length, LockMode mode) override
    {
        ++m_files.m_calls;
        return m_file->tryLock(offset, length, mode);
    }
    Status unlock(std::uint64_t offset, std::uint64_t length) override
    {
        ++m_files.m_calls;
        return m_file->unlock(offset, length);
    }
    const std::string &path() const override { return m_file->path(); }
    bool readOnly() const override { return m_file->readOnly(); }

private:
    Status full() const { return Error{ErrorKind::NoSpace, m_file->path(), "no space"}; }

    FaultyFiles &m_files;
    std::unique_ptr<File> m_file;
};

void FaultyFiles::failWriteAt(int n)
{
    m_writesLeft = n;
    m_failed = false;
}

bool FaultyFiles::nextWriteFails()
{
    if (m_writesLeft == 0 || --m_writesLeft > 0)
        return false;
    m_failed = true;
    return true;
}

Result<std::unique_ptr<File>> FaultyFiles::open(const std::string &path, OpenMode mode)
{
    ++m_calls;
    Result<std::unique_ptr<File>> file = systemFiles().open(path, mode);
    if (!file.ok())
        return file.error();
    return std::unique_ptr<File>(std::make_unique<FaultyFile>(*this, std::move(*file)));
}

Result<std::string> FaultyFiles::findIgnoringCase(const std::string &path)
{
    ++m_calls;
    return systemFiles().findIgnoringCase(path);
}

Status FaultyFiles::rename(const std::string &from, const std::string &to)
{
    ++m_calls;
    return systemFiles().rename(from, to);
}

Status FaultyFiles::remove(const std::string &path)
{
    ++m_calls;
    return systemFiles().remove(path);
}

Status FaultyFiles::syncFolderOf(const std::string &path)
{
    ++m_calls;
    return systemFiles().syncFolderOf(path);
}

std::uint64_t FaultyFiles::bootMark()
{
    return systemFiles().bootMark();
}

} // namespace enginetest
