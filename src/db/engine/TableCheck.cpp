#include "db/engine/TableCheck.h"

#include "db/engine/Cleanup.h"
#include "db/engine/FieldForms.h"
#include "db/engine/LockPlaces.h"

#include <algorithm>
#include <array>

namespace norvane::engine
{

namespace
{

using Findings = std::vector<CheckFinding>;
using Place = CheckFinding::Place;

constexpr std::size_t kMostFindings = 1000; // a wrecked file need not fill the memory

void add(Findings &findings, Place place, std::string text)
{
    if (findings.size() < kMostFindings)
        findings.push_back({place, std::move(text)});
}

std::string told(const Error &error)
{
    std::string text = error.file + ": " + error.detail;
    if (error.place >= 0)
        text += " (at " + std::to_string(error.place) + ")";
    return text;
}

void checkHeader(TableFiles &files, Findings &findings)
{
    std::array<Byte, 8> bytes;
    const Result<std::size_t> got = files.table().file().read(0, bytes);
    const Result<std::uint64_t> size = files.table().file().size();
    if (!got.ok() || !size.ok()) {
        add(findings, Place::Check, told(got.ok() ? size.error() : got.error()));
        return;
    }
    const std::uint64_t claimed = getLe32(&bytes[4]);
    const std::uint64_t end = files.header().length + claimed * files.layout().recordLength;
    if (end > *size)
        add(findings, Place::Header,
            "the header counts " + std::to_string(claimed) + " rows, the file has room for " +
                std::to_string(files.count()));
    else if (*size > end + 1)
        add(findings, Place::Header,
            std::to_string(*size - end) + " bytes lie behind the last row");
    const bool date =
        bytes[1] < 100 && bytes[2] >= 1 && bytes[2] <= 12 && bytes[3] >= 1 && bytes[3] <= 31;
    if (!date)
        add(findings, Place::Header, "the header's date of change is no date");
}

struct MemoUse {
    MemoFile::Extent extent;
    std::string owner;
};

// The memo file, its length asked for once, and what is used of it.
struct Memos {
    MemoFile *file = nullptr;
    std::uint64_t size = 0; // bytes
    std::vector<MemoUse> uses;
};

void checkMemoPointer(Memos &memos, const FieldDef &field, ByteView row, const std::string &where,
                      Findings &findings)
{
    const std::uint32_t block =
        memoPointer(row.subspan(field.offset, field.length)).value_or(UINT32_MAX); // in no file
    if (block == 0)
        return;
    const Result<MemoFile::Extent> extent = memos.file->extentOf(block, memos.size);
    if (extent.ok())
        memos.uses.push_back({*extent, where});
    else
        add(findings, Place::Row, where + ": " + extent.error().detail);
}

void checkRow(TableFiles &files, std::uint32_t record, ByteView row, Memos &memos,
              Findings &findings)
{
    const std::string number = "row " + std::to_string(record);
    if (row[0] != kLiveRow && row[0] != kDeletedRow)
        add(findings, Place::Row, number + ": neither live nor deleted");
    for (const FieldDef &field : files.layout().fields) {
        const std::string problem = fieldProblem(field, row);
        if (!problem.empty())
            add(findings, Place::Row, number + ", " + field.name + ": " + problem);
        else if (field.type == 'M')
            checkMemoPointer(memos, field, row, number + ", " + field.name, findings);
    }
}

void checkSharedBlocks(std::vector<MemoUse> &uses, Findings &findings)
{
    std::sort(uses.begin(), uses.end(),
              [](const MemoUse &a, const MemoUse &b) { return a.extent.first < b.extent.first; });
    for (std::size_t i = 1; i < uses.size(); ++i) {
        if (uses[i].extent.first < uses[i - 1].extent.end)
            add(findings, Place::Row,
                uses[i - 1].owner + " and " + uses[i].owner + " share memo blocks");
    }
}

void checkRows(TableFiles &files, Findings &findings)
{
    Memos memos{files.memo(), 0, {}};
    if (files.memo()) {
        const Result<std::uint64_t> size = files.memo()->file().size();
        if (!size.ok())
            return add(findings, Place::Check, told(size.error()));
        memos.size = *size;
    }
    const RowSource rows = files.allRows();
    std::uint32_t record = 0;
    ByteView row;
    Result<bool> more = rows.next(record, row);
    while (more.ok() && *more) {
        checkRow(files, record, row, memos, findings);
        more = rows.next(record, row);
    }
    if (!more.ok())
        add(findings, Place::Check, told(more.error()));
    checkSharedBlocks(memos.uses, findings);
    if (!files.memo())
        return;
    const Result<std::string> header = files.memo()->headerProblem();
    if (!header.ok())
        add(findings, Place::Memo, told(header.error()));
    else if (!header->empty())
        add(findings, Place::Memo, files.memo()->path() + ": " + *header);
}

void checkTags(TableFiles &files, Findings &findings)
{
    const std::size_t before = findings.size();
    if (IndexFile *index = files.fileIndex()) {
        const auto found = checkIndex(*index, files.allRows());
        if (!found.ok())
            add(findings, Place::Index, told(found.error()));
        for (std::size_t i = 0; found.ok() && i < found->size(); ++i)
            add(findings, Place::Index, (*found)[i]);
    } else if (files.header().hasIndex() && !files.damage()) {
        add(findings, Place::Index, "the index is missing");
    }
    // what a look at the tags alone does not tell: that some are not there
    if (findings.size() == before && files.damage() && files.isIndexDamage(files.damage()))
        add(findings, Place::Index, told(files.damage()));
}

void checkLocked(TableFiles &files, Findings &findings)
{
    if (Status status = files.refreshCount(); !status.ok()) {
        add(findings, Place::Check, told(status.error()));
        return;
    }
    checkHeader(files, findings);
    checkRows(files, findings);
    checkTags(files, findings);
}

} // namespace

std::vector<CheckFinding> checkTable(TableFiles &files, const LockPatience &patience)
{
    Findings findings;
    if (Status status = files.writeOut(); !status.ok())
        return {{Place::Check, told(status.error())}};
    const bool needsLock = !files.exclusive() && !files.readOnly();
    if (needsLock) {
        const Status locked = waitForLock(patience, LockPace::Brief, [&files] {
            return files.table().tryLock(kLockByte, LockMode::Exclusive);
        });
        if (!locked.ok())
            return {{Place::Check, told(locked.error())}};
    }
    const Cleanup letGo([&] {
        if (needsLock)
            (void)files.table().unlock(kLockByte, LockMode::Exclusive);
    });
    {
        TableFiles::IndexLock lock;
        Status locked = files.index() ? lock.take(files, LockMode::Shared, patience) : Status();
        if (locked.ok() && files.memo())
            locked = files.memo()->file().freshen();
        if (locked.ok())
            checkLocked(files, findings);
        else
            add(findings, Place::Check, told(locked.error()));
    }
    return findings;
}

} // namespace norvane::engine
