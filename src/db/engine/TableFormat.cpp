#include "db/engine/TableFormat.h"

#include "db/engine/LockPlaces.h"

#include <algorithm>
#include <ctime>

namespace norvane::engine
{

namespace
{

constexpr std::size_t kPrefix = 32;     // bytes before the field descriptors
constexpr std::size_t kDescriptor = 32; // bytes of each
constexpr Byte kFieldsEnd = 0x0D;
constexpr Byte kCodePage1252 = 0x03;
constexpr std::size_t kMaxRecord = 65500;

Error damaged(const std::string &path, std::string detail, std::int64_t place)
{
    return {ErrorKind::Damaged, path, std::move(detail), place};
}

bool widthFits(const FieldDef &field, Byte version)
{
    const bool wide = version == kVersionWide;
    switch (field.type) {
    case 'C':
        return field.length >= 1 && field.length <= 254 && field.decimals == 0;
    case 'N':
    case 'F':
        return field.length >= 1 && field.length <= 20 &&
               (field.decimals == 0 || field.decimals + 2 <= field.length);
    case 'D':
        return field.length == 8;
    case 'L':
        return field.length == 1;
    case 'I':
        return wide && field.length == 4;
    case 'M':
        return wide ? field.length == 4 : version == kVersionMemo && field.length == 10;
    default:
        return false;
    }
}

Result<FieldDef> parseField(const std::string &path, const Byte *bytes, std::int64_t place,
                            Byte version)
{
    FieldDef field;
    const auto *nameEnd = std::find(bytes, bytes + 11, Byte{0});
    field.name.assign(bytes, nameEnd);
    field.type = static_cast<char>(bytes[11]);
    field.length = bytes[16];
    field.decimals = bytes[17];
    if (field.name.empty() || field.name.size() > 10)
        return damaged(path, "a field name is empty or too long", place);
    constexpr Byte unsupported = 0x01 | 0x02; // system and nullable fields
    constexpr std::string_view foreignTypes = "YBTGPQVW0@O+";
    if ((bytes[18] & unsupported) != 0 || foreignTypes.find(field.type) != std::string_view::npos)
        return Error{ErrorKind::Refused, path,
                     "field " + field.name + " is of a kind not supported", place};
    if (!widthFits(field, version))
        return damaged(path, "field " + field.name + " has an impossible type or width", place);
    return field;
}

Status parseFields(const std::string &path, ByteView bytes, TableHeader &header)
{
    std::size_t at = kPrefix;
    std::size_t offset = 1;
    while (at < bytes.size() && bytes[at] != kFieldsEnd) {
        const auto place = static_cast<std::int64_t>(at);
        if (at + kDescriptor >= bytes.size())
            return damaged(path, "the field descriptions do not end inside the header", place);
        Result<FieldDef> field = parseField(path, bytes.data() + at, place, header.version);
        if (!field.ok())
            return field.error();
        field->offset = static_cast<std::uint16_t>(offset);
        offset += field->length;
        if (offset > kMaxRecord)
            return damaged(path, "the fields are wider than a record may be", place);
        header.layout.fields.push_back(std::move(*field));
        at += kDescriptor;
    }
    if (at >= bytes.size() || header.layout.fields.empty())
        return damaged(path, "the field descriptions do not end inside the header",
                       static_cast<std::int64_t>(at));
    if (offset != header.layout.recordLength)
        return damaged(path, "the record length differs from the widths of the fields", 10);
    return {};
}

} // namespace

Date today()
{
    const std::time_t now = std::time(nullptr);
    std::tm parts = {};
#ifdef _WIN32
    localtime_s(&parts, &now);
#else
    localtime_r(&now, &parts);
#endif
    return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday};
}

bool TableHeader::hasMemo() const
{
    return std::any_of(layout.fields.begin(), layout.fields.end(),
                       [](const FieldDef &field) { return field.type == 'M'; });
}

bool TableHeader::hasUsualLength() const
{
    constexpr std::size_t kBacklink = 263; // bytes that some programs keep there
    const std::size_t fieldsEnd = kPrefix + layout.fields.size() * kDescriptor + 1;
    return length == fieldsEnd || length == fieldsEnd + 1 || length == fieldsEnd + kBacklink;
}

std::uint32_t TableHeader::possibleCount(std::uint32_t claimed, std::uint64_t fileSize) const
{
    const std::uint64_t rows = fileSize > length ? (fileSize - length) / layout.recordLength : 0;
    const std::uint64_t most =
        std::min<std::uint64_t>(rows, maxRecords(length, layout.recordLength));
    return static_cast<std::uint32_t>(std::min<std::uint64_t>(claimed, most));
}

Result<TableHeader> readTableHeader(File &file)
{
    const std::string &path = file.path();
    std::vector<Byte> bytes(2048); // nearly always the whole header in one read
    Result<std::size_t> got = file.read(0, bytes);
    if (!got.ok())
        return got.error();
    if (*got < kPrefix + 1)
        return damaged(path, "the file is shorter than a table header", 0);

    TableHeader header;
    header.version = bytes[0];
    header.changed = {bytes[1], bytes[2], bytes[3]};
    header.count = getLe32(&bytes[4]);
    header.length = getLe16(&bytes[8]);
    header.layout.recordLength = getLe16(&bytes[10]);
    header.flags = bytes[28];
    if (header.version != kVersionPlain && header.version != kVersionMemo &&
        header.version != kVersionWide)
        return Error{ErrorKind::Refused, path, "not a table of a supported kind", 0};
    if (header.length > *got && *got == bytes.size()) {
        bytes.resize(header.length);
        got = file.read(0, bytes);
        if (!got.ok())
            return got.error();
    }
    if (header.length <= kPrefix || header.length > *got)
        return damaged(path, "the header length does not fit the file", 8);
    if (Status status = parseFields(path, ByteView(bytes).first(header.length), header);
        !status.ok())
        return status.error();
    return header;
}

Result<RowLayout> layOutFields(std::vector<FieldDef> fields)
{
    RowLayout layout;
    std::size_t offset = 1;
    for (FieldDef &field : fields) {
        const auto misuse = [&field](const char *what) {
            return Error{ErrorKind::Misuse, {}, "field " + field.name + ": " + what};
        };
        constexpr std::string_view nameCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ_0123456789";
        if (field.name.empty() || field.name.size() > 10 || field.name.front() <= '9' ||
            field.name.find_first_not_of(nameCharacters) != std::string::npos)
            return misuse("not a field name");
        if (layout.find(field.name) >= 0)
            return misuse("name used twice");
        if (field.type == 'I' || !widthFits(field, kVersionMemo))
            return misuse("impossible type or width");
        field.offset = static_cast<std::uint16_t>(offset);
        offset += field.length;
        if (offset > kMaxRecord || layout.fields.size() == 255)
            return misuse("the record is full");
        layout.fields.push_back(std::move(field));
    }
    if (layout.fields.empty())
        return Error{ErrorKind::Misuse, {}, "a table needs a field"};
    layout.recordLength = static_cast<std::uint16_t>(offset);
    return layout;
}

std::vector<Byte> makeTableHeader(const RowLayout &layout, bool withIndex, const Date &changed)
{
    TableHeader header;
    header.layout = layout;
    const std::size_t length = kPrefix + kDescriptor * layout.fields.size() + 1;
    std::vector<Byte> bytes(length);
    bytes[0] = header.hasMemo() ? kVersionMemo : kVersionPlain;
    const std::vector<Byte> start = makeDateAndCount(changed, 0);
    std::copy(start.begin(), start.end(), bytes.begin() + kCountPlace);
    putLe16(&bytes[8], static_cast<std::uint16_t>(length));
    putLe16(&bytes[10], layout.recordLength);
    bytes[28] = withIndex ? kFlagIndex : 0;
    bytes[29] = kCodePage1252;
    Byte *at = bytes.data() + kPrefix;
    for (const FieldDef &field : layout.fields) {
        std::copy(field.name.begin(), field.name.end(), at);
        at[11] = static_cast<Byte>(field.type);
        putLe32(at + 12, field.offset);
        at[16] = static_cast<Byte>(field.length);
        at[17] = field.decimals;
        at += kDescriptor;
    }
    *at = kFieldsEnd;
    return bytes;
}

std::vector<Byte> makeDateAndCount(const Date &changed, std::uint32_t count)
{
    std::vector<Byte> bytes(7);
    bytes[0] = static_cast<Byte>(changed.year % 100);
    bytes[1] = static_cast<Byte>(changed.month);
    bytes[2] = static_cast<Byte>(changed.day);
    putLe32(&bytes[3], count);
    return bytes;
}

} // namespace norvane::engine
