#include "db/engine/KeyExpression.h"

#include "db/engine/CodePage.h"
#include "db/engine/ExpressionNode.h"
#include "db/engine/KeyEncoding.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace norvane::engine
{

namespace
{

using Nodes = std::vector<ExpressionNode>;
using TextBuffer = std::array<Byte, maxTextWidth>;

// Evaluates a node tree over one record.
class Evaluator
{
public:
    Evaluator(const Nodes &nodes, ByteView row) : m_nodes(nodes), m_row(row) {}

    std::size_t text(const ExpressionNode &node, Byte *out) const; // at most node.width bytes
    double number(const ExpressionNode &node) const;               // dates as Julian days
    bool truth(const ExpressionNode &node) const;

private:
    const ExpressionNode &left(const ExpressionNode &node) const
    {
        return m_nodes[static_cast<std::size_t>(node.left)];
    }
    const ExpressionNode &right(const ExpressionNode &node) const
    {
        return m_nodes[static_cast<std::size_t>(node.right)];
    }
    const Byte *bytes(const ExpressionNode &field) const { return m_row.data() + field.offset; }
    std::string_view fieldText(const ExpressionNode &field) const
    {
        return asText({bytes(field), field.length});
    }

    std::size_t partText(const ExpressionNode &node, Byte *out) const;
    std::size_t numberText(const ExpressionNode &node, Byte *out) const;
    std::size_t trimmedText(const ExpressionNode &node, Byte *out) const;
    double fieldValue(const ExpressionNode &field) const;
    bool compare(const ExpressionNode &node) const;
    bool compareTexts(const ExpressionNode &node) const;
    bool empty(const ExpressionNode &node) const;

    const Nodes &m_nodes;
    ByteView m_row;
};

std::size_t Evaluator::text(const ExpressionNode &node, Byte *out) const
{
    std::size_t length = 0;
    switch (node.op) {
    case ExpressionOp::Field:
        std::copy_n(bytes(node), node.length, out);
        return node.length;
    case ExpressionOp::TextLiteral:
        std::copy(node.text.begin(), node.text.end(), out);
        return node.text.size();
    case ExpressionOp::Upper:
    case ExpressionOp::Lower:
        length = text(left(node), out);
        mapCase(node.op == ExpressionOp::Upper ? upperCase : lowerCase, out, length);
        return length;
    case ExpressionOp::TrimLeft:
    case ExpressionOp::TrimRight:
    case ExpressionOp::TrimBoth:
        return trimmedText(node, out);
    case ExpressionOp::Part:
        return partText(node, out);
    case ExpressionOp::NumberText:
        return numberText(node, out);
    case ExpressionOp::DateText:
        if (number(left(node)) == 0.0)
            std::fill_n(out, node.width, Byte{' '});
        else
            std::copy_n(bytes(left(node)), node.width, out);
        return node.width;
    case ExpressionOp::Join:
        length = text(left(node), out);
        return length + text(right(node), out + length);
    default:
        return 0;
    }
}

std::size_t Evaluator::trimmedText(const ExpressionNode &node, Byte *out) const
{
    std::size_t length = text(left(node), out);
    if (node.op != ExpressionOp::TrimLeft) {
        while (length > 0 && out[length - 1] == ' ')
            --length;
    }
    if (node.op != ExpressionOp::TrimRight) {
        const Byte *first = std::find_if(out, out + length, [](Byte b) { return b != ' '; });
        std::copy(first, static_cast<const Byte *>(out + length), out);
        length -= static_cast<std::size_t>(first - out);
    }
    return length;
}

std::size_t Evaluator::partText(const ExpressionNode &node, Byte *out) const
{
    TextBuffer whole;
    const std::size_t length = text(left(node), whole.data());
    const std::size_t start = std::min<std::size_t>(node.offset, length);
    const std::size_t size = std::min<std::size_t>(node.length, length - start);
    std::copy_n(whole.data() + start, size, out);
    return size;
}

// Right-justified; asterisks when the number does not fit.
std::size_t Evaluator::numberText(const ExpressionNode &node, Byte *out) const
{
    std::array<char, 600> digits{};
    const auto [end, failure] =
        std::to_chars(digits.data(), digits.data() + digits.size(), number(left(node)),
                      std::chars_format::fixed, node.length);
    const auto length = static_cast<std::size_t>(end - digits.data());
    if (failure != std::errc() || length > node.width) {
        std::fill_n(out, node.width, Byte{'*'});
        return node.width;
    }
    std::fill_n(out, node.width - length, Byte{' '});
    std::copy_n(digits.data(), length, out + node.width - length);
    return node.width;
}

double Evaluator::fieldValue(const ExpressionNode &field) const
{
    switch (field.type) {
    case ValueType::Integer:
        return static_cast<std::int32_t>(getLe32(bytes(field)));
    case ValueType::Date:
        return julianDay(fieldText(field));
    default:
        return fieldNumber(fieldText(field));
    }
}

double Evaluator::number(const ExpressionNode &node) const
{
    switch (node.op) {
    case ExpressionOp::Field:
        return fieldValue(node);
    case ExpressionOp::NumberLiteral:
        return node.number;
    case ExpressionOp::Minus:
        return 0.0 - number(left(node));
    case ExpressionOp::Sum:
        return number(left(node)) + number(right(node));
    default:
        return 0.0;
    }
}

bool Evaluator::truth(const ExpressionNode &node) const
{
    switch (node.op) {
    case ExpressionOp::Field:
        return std::string_view("TtYy").find(fieldText(node)[0]) != std::string_view::npos;
    case ExpressionOp::TruthLiteral:
        return node.truth;
    case ExpressionOp::Compare:
        return compare(node);
    case ExpressionOp::And:
        return truth(left(node)) && truth(right(node));
    case ExpressionOp::Or:
        return truth(left(node)) || truth(right(node));
    case ExpressionOp::Not:
        return !truth(left(node));
    case ExpressionOp::Empty:
        return empty(left(node));
    case ExpressionOp::Deleted:
        return m_row[0] == '*';
    default:
        return false;
    }
}

bool Evaluator::empty(const ExpressionNode &node) const
{
    if (node.type == ValueType::Logical)
        return !truth(node);
    if (node.type != ValueType::Character)
        return number(node) == 0.0;
    TextBuffer value;
    const Byte *end = value.data() + text(node, value.data());
    return std::all_of(static_cast<const Byte *>(value.data()), end,
                       [](Byte b) { return b == ' ' || (b >= '\t' && b <= '\r'); });
}

template <class T>
bool holds(CompareSign sign, const T &a, const T &b)
{
    switch (sign) {
    case CompareSign::Equal:
    case CompareSign::Same:
        return a == b;
    case CompareSign::Different:
        return a != b;
    case CompareSign::Less:
        return a < b;
    case CompareSign::LessEqual:
        return a <= b;
    case CompareSign::More:
        return a > b;
    case CompareSign::MoreEqual:
        return a >= b;
    }
    return false;
}

bool Evaluator::compare(const ExpressionNode &node) const
{
    switch (left(node).type) {
    case ValueType::Character:
        return compareTexts(node);
    case ValueType::Logical:
        return holds(node.sign, truth(left(node)), truth(right(node)));
    default:
        return holds(node.sign, number(left(node)), number(right(node)));
    }
}

bool Evaluator::compareTexts(const ExpressionNode &node) const
{
    TextBuffer a, b;
    std::size_t sizeA = text(left(node), a.data());
    std::size_t sizeB = text(right(node), b.data());
    if (node.sign == CompareSign::Equal || node.sign == CompareSign::Different) {
        const bool begins = sizeA >= sizeB && std::equal(b.data(), b.data() + sizeB, a.data());
        return begins == (node.sign == CompareSign::Equal);
    }
    for (; sizeA < sizeB; ++sizeA)
        a[sizeA] = ' ';
    for (; sizeB < sizeA; ++sizeB)
        b[sizeB] = ' ';
    return holds(node.sign, asText({a.data(), sizeA}), asText({b.data(), sizeB}));
}

void fold(const Nodes &nodes, const ExpressionNode &node, Byte *text, std::size_t length)
{
    if (node.left < 0)
        return;
    const ExpressionNode &left = nodes[static_cast<std::size_t>(node.left)];
    switch (node.op) {
    case ExpressionOp::Upper:
        mapCase(upperCase, text, length);
        break;
    case ExpressionOp::Lower:
        mapCase(lowerCase, text, length);
        break;
    case ExpressionOp::Join: {
        const std::size_t size = std::min<std::size_t>(left.width, length);
        fold(nodes, left, text, size);
        fold(nodes, nodes[static_cast<std::size_t>(node.right)], text + size, length - size);
        break;
    }
    case ExpressionOp::TrimLeft:
    case ExpressionOp::TrimRight:
    case ExpressionOp::TrimBoth:
    case ExpressionOp::Part:
        fold(nodes, left, text, length);
        break;
    default:
        break;
    }
}

} // namespace

KeyExpression::KeyExpression(std::vector<ExpressionNode> nodes) : m_nodes(std::move(nodes)) {}
KeyExpression::KeyExpression(KeyExpression &&) noexcept = default;
KeyExpression &KeyExpression::operator=(KeyExpression &&) noexcept = default;
KeyExpression::~KeyExpression() = default;

ValueType KeyExpression::type() const
{
    return m_nodes.back().type;
}

std::size_t KeyExpression::keyLength() const
{
    return m_nodes.back().width;
}

Byte KeyExpression::padByte() const
{
    return type() == ValueType::Character || type() == ValueType::Logical ? Byte{' '} : Byte{0};
}

void KeyExpression::writeKey(ByteView row, Byte *out) const
{
    const Evaluator evaluator(m_nodes, row);
    const ExpressionNode &root = m_nodes.back();
    switch (root.type) {
    case ValueType::Character: {
        const std::size_t length = evaluator.text(root, out);
        std::fill(out + length, out + root.width, Byte{' '});
        break;
    }
    case ValueType::Logical:
        *out = evaluator.truth(root) ? 'T' : 'F';
        break;
    case ValueType::Integer:
        putIntegerKey(static_cast<std::int32_t>(evaluator.number(root)), out);
        break;
    default:
        putNumberKey(evaluator.number(root), out);
    }
}

bool KeyExpression::isTrue(ByteView row) const
{
    return Evaluator(m_nodes, row).truth(m_nodes.back());
}

void KeyExpression::foldSought(std::string &text) const
{
    fold(m_nodes, m_nodes.back(), reinterpret_cast<Byte *>(text.data()), text.size());
}

} // namespace norvane::engine
