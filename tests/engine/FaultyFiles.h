// The system's files, with their calls counted and a chosen write failing.
#pragma once

#include "db/engine/File.h"

#include <memory>
#include <string>

namespace enginetest
{

class FaultyFiles final : public norvane::engine::FileSystem
{
public:
    // The n-th write or resize from now on fails as on a full disk, once; 0: none.
    void failWriteAt(int n);
    bool hasFailed() const { return m_failed; }
    int calls() const { return m_calls; }

    norvane::engine::Result<std::unique_ptr<norvane::engine::File>>
    open(const std::string &path, norvane::engine::OpenMode mode) override;
    norvane::engine::Result<std::string> findIgnoringCase(const std::string &path) override;
    norvane::engine::Status rename(const std::string &from, const std::string &to) override;
    norvane::engine::Status remove(const std::string &path) override;
    norvane::engine::Status syncFolderOf(const std::string &path) override;
    std::uint64_t bootMark() override;

private:
    friend class FaultyFile;
    bool nextWriteFails();

    int m_calls = 0;
    int m_writesLeft = 0;
    bool m_failed = false;
};

} // namespace enginetest
