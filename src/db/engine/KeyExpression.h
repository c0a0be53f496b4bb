// Key and filter expressions of an index, parsed once into a small tree and evaluated over the
// raw bytes of a record. The language is closed:
//   field names; "text" 'text'; numbers; .T. .F.; ( )
//   UPPER LOWER TRIM RTRIM LTRIM ALLTRIM LEFT SUBSTR STR DTOS EMPTY DELETED
//   + (texts or numbers), = == <> != # < <= > >=, .AND. .OR. .NOT. (also without the points, and !)
// "=" compares texts as far as the right side reaches. Anything else is ErrorKind::Refused,
// a field that the table does not have ErrorKind::NotFound.
#pragma once

#include "db/engine/Bytes.h"
#include "db/engine/RowLayout.h"
#include "db/engine/Status.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvane::engine
{

enum class ValueType : std::uint8_t { Character, Number, Integer, Date, Logical };

struct ExpressionNode;

class KeyExpression
{
public:
    // Fields are bound to `layout`; rows given later must have its record length.
    static Result<KeyExpression> parse(std::string_view text, const RowLayout &layout);

    KeyExpression(KeyExpression &&) noexcept;
    KeyExpression &operator=(KeyExpression &&) noexcept;
    ~KeyExpression();

    ValueType type() const;
    std::size_t keyLength() const; // bytes of a key; 0 for an empty text
    Byte padByte() const;          // fills keys up at the end

    // Writes keyLength() bytes.
    void writeKey(ByteView row, Byte *out) const;
    // REQUIRES: type() is Logical.
    bool isTrue(ByteView row) const;
    // Changes letter case in a sought text where the expression would have done it.
    void foldSought(std::string &text) const;

private:
    friend class ExpressionParser;
    explicit KeyExpression(std::vector<ExpressionNode> nodes);

    std::vector<ExpressionNode> m_nodes; // children before parents, the root is the last
};

} // namespace norvane::engine
