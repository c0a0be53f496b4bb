// Fields of the row buffer, in and out.
#include "db/engine/FieldForms.h"
#include "db/engine/KeyEncoding.h"
#include "db/engine/Table.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace norvane::engine
{

namespace
{

// T, F or blank; nothing for anything else.
std::optional<std::string_view> truthText(std::string_view text)
{
    const std::string_view value = trimmed(text);
    if (value.empty() || value == "?")
        return " ";
    if (std::string_view("TtYy").find(value.front()) != std::string_view::npos)
        return "T";
    if (std::string_view("FfNn").find(value.front()) != std::string_view::npos)
        return "F";
    return std::nullopt;
}

} // namespace

ByteView Table::fieldBytes(int field) const
{
    const FieldDef &def = layout().fields[static_cast<std::size_t>(field)];
    return ByteView(m_row).subspan(def.offset, def.length);
}

double Table::number(int field) const
{
    const ByteView bytes = fieldBytes(field);
    if (layout().fields[static_cast<std::size_t>(field)].type == 'I')
        return static_cast<std::int32_t>(getLe32(bytes.data()));
    return leadingNumber(asText(bytes)).value_or(0.0);
}

std::int32_t Table::integer(int field) const
{
    const ByteView bytes = fieldBytes(field);
    if (layout().fields[static_cast<std::size_t>(field)].type == 'I')
        return static_cast<std::int32_t>(getLe32(bytes.data()));
    return leadingInteger(asText(bytes));
}

void Table::blankField(const FieldDef &field)
{
    const bool binary = field.type == 'I' || (field.type == 'M' && field.length == 4);
    std::fill_n(m_row.begin() + field.offset, field.length, binary ? Byte{0} : Byte{' '});
}

// Bytes into the field: cut when longer, blanks behind when shorter.
Status Table::putField(int field, std::string_view text)
{
    if (Status status = beginChange(); !status.ok())
        return status;
    const FieldDef &def = layout().fields[static_cast<std::size_t>(field)];
    const std::size_t taken = std::min<std::size_t>(text.size(), def.length);
    const auto to = m_row.begin() + def.offset;
    std::copy_n(text.begin(), taken, to);
    std::fill(to + static_cast<std::ptrdiff_t>(taken), to + def.length, Byte{' '});
    return {};
}

Status Table::assignNumber(int field, double value)
{
    const FieldDef &def = layout().fields[static_cast<std::size_t>(field)];
    if (def.type == 'I') {
        using Limits = std::numeric_limits<std::int32_t>;
        const double whole = std::nearbyint(value);
        if (whole >= Limits::min() && whole <= Limits::max())
            return assignInteger(field, static_cast<std::int32_t>(whole));
    } else if (def.type == 'N' || def.type == 'F' || def.type == 'C') {
        if (const auto text = numberText(value, def.length, def.decimals))
            return putField(field, *text);
    }
    return Error{ErrorKind::Refused, m_files->path(),
                 "the number does not fit the field " + def.name, m_recNo};
}

Status Table::assignInteger(int field, std::int32_t value)
{
    const FieldDef &def = layout().fields[static_cast<std::size_t>(field)];
    if (def.type == 'I') {
        std::string bytes(4, '\0');
        putLe32(reinterpret_cast<Byte *>(bytes.data()), static_cast<std::uint32_t>(value));
        return putField(field, bytes);
    }
    if (def.type == 'N' || def.type == 'F' || def.type == 'C') {
        if (const auto text = integerText(value, def.length, def.decimals))
            return putField(field, *text);
    }
    return Error{ErrorKind::Refused, m_files->path(),
                 "the number does not fit the field " + def.name, m_recNo};
}

// What another program would stumble over is never stored: a number field takes numbers only, a
// date field a day or blanks.
Status Table::assignText(int field, std::string_view text)
{
    const FieldDef &def = layout().fields[static_cast<std::size_t>(field)];
    const auto refused = [&] {
        return Error{ErrorKind::Refused, m_files->path(),
                     "the text is no value of the field " + def.name, m_recNo};
    };
    switch (def.type) {
    case 'M':
        return assignMemo(field, text);
    case 'D':
        return putField(field, isDate(trimmed(text)) ? trimmed(text) : std::string_view());
    case 'L': {
        const auto truth = truthText(text);
        return truth ? putField(field, *truth) : refused();
    }
    case 'N':
    case 'F':
        if (trimmed(text).empty())
            return putField(field, {});
        [[fallthrough]];
    case 'I': {
        const auto value = wholeNumber(text);
        return value ? assignNumber(field, *value) : refused();
    }
    default:
        break;
    }
    std::string clean(text.substr(0, def.length));
    std::replace(clean.begin(), clean.end(), '\0', ' ');
    return putField(field, clean);
}

// ---- memos

void Table::putMemoBlock(int field, std::uint32_t block)
{
    const FieldDef &def = layout().fields[static_cast<std::size_t>(field)];
    blankField(def);
    Byte *at = m_row.data() + def.offset;
    if (def.length == 4) {
        putLe32(at, block);
    } else if (block != 0) {
        const std::string text = std::to_string(block);
        std::copy(text.begin(), text.end(), at + (def.length - text.size()));
    }
}

void Table::forgetMemos()
{
    for (Memo &memo : m_memos) {
        memo.known = false;
        memo.changed = false;
    }
}

Result<const std::string *> Table::memo(int field)
{
    Memo &memo = m_memos[static_cast<std::size_t>(field)];
    if (memo.known)
        return &memo.text;
    const std::optional<std::uint32_t> block = memoPointer(fieldBytes(field));
    if (!block)
        return Error{ErrorKind::Damaged, m_files->path(), "a memo pointer is no number", m_recNo};
    memo.text.clear();
    if (*block != 0) {
        const Status read =
            m_files->memo()->read(*block, memo.text, m_inPass ? &m_memosAhead : nullptr);
        if (!read.ok())
            return read.error();
    }
    memo.known = true;
    return &memo.text;
}

Status Table::assignMemo(int field, std::string_view text)
{
    if (layout().fields[static_cast<std::size_t>(field)].type != 'M')
        return Error{ErrorKind::Misuse, m_files->path(), "the field is no memo field", m_recNo};
    if (Status status = beginChange(); !status.ok())
        return status;
    // An unchanged text keeps its blocks, or every save would grow the file.
    const Result<const std::string *> before = memo(field);
    const bool damaged = !before.ok() && before.error().kind == ErrorKind::Damaged;
    if (before.ok() ? **before == text : damaged && text.empty())
        return {}; // a damaged one shows as empty and is not lost by that
    Memo &memo = m_memos[static_cast<std::size_t>(field)];
    memo.text.assign(text);
    memo.known = true;
    memo.changed = true;
    return {};
}

} // namespace norvane::engine
