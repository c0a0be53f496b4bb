// One operation of a parsed key expression. Children are positions in the same list, -1 for none.
#pragma once

#include "db/engine/KeyExpression.h"

namespace norvane::engine
{

enum class ExpressionOp : std::uint8_t {
    Field,
    TextLiteral,
    NumberLiteral,
    TruthLiteral,
    Upper,
    Lower,
    TrimLeft,
    TrimRight,
    TrimBoth,
    Part,       // offset, length: bytes of the operand
    NumberText, // width, length: decimals
    DateText,
    Join, // texts
    Sum,  // numbers
    Minus,
    Compare,
    And,
    Or,
    Not,
    Empty,
    Deleted
};

enum class CompareSign : std::uint8_t { Equal, Same, Different, Less, LessEqual, More, MoreEqual };

struct ExpressionNode {
    ExpressionOp op = ExpressionOp::TruthLiteral;
    ValueType type = ValueType::Logical;
    CompareSign sign = CompareSign::Equal;
    bool truth = false;
    std::uint16_t width = 1;  // most bytes a text can have; key length of the other types
    std::uint16_t offset = 0; // of a field in the record, of a part in its operand
    std::uint16_t length = 0; // of a field, of a part; decimals of a number's text
    std::int16_t left = -1;
    std::int16_t right = -1;
    double number = 0.0;
    std::string text;
};

inline constexpr std::size_t maxTextWidth = 1024; // of any intermediate text, bytes
inline constexpr std::size_t maxKeyLength = 240;
inline constexpr int maxExpressionDepth = 64;

inline bool isNumeric(ValueType type)
{
    return type == ValueType::Number || type == ValueType::Integer;
}

} // namespace norvane::engine
