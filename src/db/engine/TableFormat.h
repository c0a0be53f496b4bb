// The header of a table file, read and made (docs/table-format.md).
#pragma once

#include "db/engine/File.h"
#include "db/engine/RowLayout.h"

#include <cstdint>
#include <string>

namespace norvane::engine
{

inline constexpr Byte kVersionPlain = 0x03; // no memo fields
inline constexpr Byte kVersionMemo = 0xF5;  // memo pointers as text
inline constexpr Byte kVersionWide = 0x30;  // of other programs: binary memo pointers, I fields
inline constexpr Byte kFlagIndex = 0x01;    // has a production index
inline constexpr Byte kFlagMemo = 0x02;     // has memo fields; version 0x30 only
inline constexpr Byte kLiveRow = ' ';
inline constexpr Byte kDeletedRow = '*';
inline constexpr Byte kEndOfFile = 0x1A;

struct Date {
    int year = 0;
    int month = 0;
    int day = 0;

    friend bool operator==(const Date &, const Date &) = default;
};

// The local calendar day.
Date today();

struct TableHeader {
    Byte version = kVersionPlain;
    Byte flags = 0;
    Date changed;             // the year has two digits
    std::uint32_t count = 0;  // as it stands in the file
    std::uint16_t length = 0; // bytes, up to the first record
    RowLayout layout;

    bool hasIndex() const { return (flags & kFlagIndex) != 0; }
    bool hasMemo() const;
    // The fields, their end mark, and of the usual kinds of further bytes at most one.
    bool hasUsualLength() const;
    std::uint64_t rowPlace(std::uint32_t record) const
    {
        return length + std::uint64_t{record - 1} * layout.recordLength;
    }
    // The rows that a file of this size really holds, at most `claimed`.
    std::uint32_t possibleCount(std::uint32_t claimed, std::uint64_t fileSize) const;
};

// Damaged when the bytes make no sense, Refused for kinds of tables and fields outside this
// engine. Offsets of fields are worked out from their widths.
Result<TableHeader> readTableHeader(File &file);

// Offsets and record length for a table to be made; Misuse names what is wrong with a field.
Result<RowLayout> layOutFields(std::vector<FieldDef> fields);

// The bytes of a whole header: flags and version follow from the fields.
std::vector<Byte> makeTableHeader(const RowLayout &layout, bool withIndex, const Date &changed);

// The seven bytes from offset 1: date of change and record count.
inline constexpr std::uint64_t kCountPlace = 1;
std::vector<Byte> makeDateAndCount(const Date &changed, std::uint32_t count);

} // namespace norvane::engine
