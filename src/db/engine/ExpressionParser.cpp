#include "db/engine/ExpressionNode.h"
#include "db/engine/ExpressionTokens.h"
#include "db/engine/KeyEncoding.h"

#include <algorithm>
#include <optional>

namespace norvane::engine
{

// Recursive descent over the tokens. Each method gives the position of the node it made, or
// `failed` with the reason in m_problem.
class ExpressionParser
{
public:
    ExpressionParser(std::string_view text, const RowLayout &layout)
        : m_text(text), m_tokens(text), m_layout(layout)
    {
    }
    Result<KeyExpression> parse();

private:
    static constexpr int failed = -1;
    static constexpr std::size_t maxArguments = 3;
    using Arguments = std::vector<int>;

    int parseOr();
    int parseAnd();
    int parseNot();
    int parseComparison();
    int parseSum();
    int parseTerm();
    int parseGroup();
    int parseNumber();
    int parseName();
    int parseField(std::string_view name);
    int parseFunction(std::string_view name);

    int makeText(ExpressionOp op, const Arguments &arguments);
    int makePart(const Arguments &arguments, bool fromLeft);
    int makeNumberText(const Arguments &arguments);
    int makeCompare(CompareSign sign, int left, int right);
    int makeLogical(ExpressionOp op, int left, int right);
    int makeSum(int left, int right);
    int add(ExpressionNode node);
    int fail(std::string_view problem);
    int failNoField(std::string_view name);

    std::optional<int> constant(const Arguments &arguments, std::size_t place, int absent);
    const ExpressionNode &node(int place) const { return m_nodes[static_cast<std::size_t>(place)]; }
    bool isType(int place, ValueType type) const { return node(place).type == type; }

    std::string_view m_text;
    ExpressionTokens m_tokens;
    const RowLayout &m_layout;
    std::vector<ExpressionNode> m_nodes;
    std::vector<int> m_depths; // of each node's own tree
    int m_nesting = 0;
    std::string m_problem;
    ErrorKind m_kind = ErrorKind::Refused; // of the problem
};

Result<KeyExpression> ExpressionParser::parse()
{
    const int root = parseOr();
    if (root != failed && m_tokens.current().kind != TokenKind::End)
        fail("something is left over at its end");
    if (!m_problem.empty())
        return Error{m_kind, {}, "expression \"" + std::string(m_text) + "\": " + m_problem};
    return KeyExpression(std::move(m_nodes));
}

int ExpressionParser::fail(std::string_view problem)
{
    if (m_problem.empty())
        m_problem = problem;
    return failed;
}

int ExpressionParser::failNoField(std::string_view name)
{
    if (m_problem.empty())
        m_kind = ErrorKind::NotFound;
    return fail("there is no field " + std::string(name));
}

int ExpressionParser::add(ExpressionNode made)
{
    if (made.width > maxTextWidth)
        return fail("a text in it is too long");
    int depth = 1;
    for (const int child : {int{made.left}, int{made.right}}) {
        if (child >= 0)
            depth = std::max(depth, m_depths[static_cast<std::size_t>(child)] + 1);
    }
    if (depth > maxExpressionDepth)
        return fail("it is nested too deeply");
    m_nodes.push_back(std::move(made));
    m_depths.push_back(depth);
    return static_cast<int>(m_nodes.size()) - 1;
}

int ExpressionParser::parseOr()
{
    int left = parseAnd();
    while (left != failed && m_tokens.take(TokenKind::Or))
        left = makeLogical(ExpressionOp::Or, left, parseAnd());
    return left;
}

int ExpressionParser::parseAnd()
{
    int left = parseNot();
    while (left != failed && m_tokens.take(TokenKind::And))
        left = makeLogical(ExpressionOp::And, left, parseNot());
    return left;
}

int ExpressionParser::parseNot()
{
    bool negated = false;
    bool any = false;
    while (m_tokens.take(TokenKind::Not)) {
        negated = !negated;
        any = true;
    }
    const int inner = parseComparison();
    if (inner == failed || !any)
        return inner;
    if (!isType(inner, ValueType::Logical))
        return fail(".NOT. needs a logical value");
    if (!negated)
        return inner;
    ExpressionNode made;
    made.op = ExpressionOp::Not;
    made.left = static_cast<std::int16_t>(inner);
    return add(std::move(made));
}

int ExpressionParser::parseComparison()
{
    struct Pair {
        TokenKind token;
        CompareSign sign;
    };
    static constexpr Pair pairs[] = {
        {TokenKind::Equal, CompareSign::Equal},         {TokenKind::Same, CompareSign::Same},
        {TokenKind::Different, CompareSign::Different}, {TokenKind::Less, CompareSign::Less},
        {TokenKind::LessEqual, CompareSign::LessEqual}, {TokenKind::More, CompareSign::More},
        {TokenKind::MoreEqual, CompareSign::MoreEqual}};
    int left = parseSum();
    for (bool again = left != failed; again;) {
        again = false;
        for (const Pair &pair : pairs) {
            if (!m_tokens.take(pair.token))
                continue;
            left = makeCompare(pair.sign, left, parseSum());
            again = left != failed;
            break;
        }
    }
    return left;
}

int ExpressionParser::parseSum()
{
    int left = parseTerm();
    while (left != failed && m_tokens.take(TokenKind::Plus))
        left = makeSum(left, parseTerm());
    return left;
}

int ExpressionParser::parseTerm()
{
    if (m_tokens.take(TokenKind::Minus)) {
        const int inner = m_tokens.current().kind == TokenKind::Minus ? failed : parseTerm();
        if (inner == failed || !isNumeric(node(inner).type))
            return fail("\"-\" needs a number behind it");
        ExpressionNode made;
        made.op = ExpressionOp::Minus;
        made.type = ValueType::Number;
        made.width = numberKeyLength;
        made.left = static_cast<std::int16_t>(inner);
        return add(std::move(made));
    }
    const Token token = m_tokens.current();
    m_tokens.advance();
    ExpressionNode made;
    switch (token.kind) {
    case TokenKind::Open:
        return parseGroup();
    case TokenKind::Name:
        return m_tokens.take(TokenKind::Open) ? parseFunction(token.text) : parseField(token.text);
    case TokenKind::Text:
        made.op = ExpressionOp::TextLiteral;
        made.type = ValueType::Character;
        made.width = static_cast<std::uint16_t>(std::min<std::size_t>(token.text.size(), 0xFFFF));
        made.text = token.text;
        return add(std::move(made));
    case TokenKind::Number:
        made.op = ExpressionOp::NumberLiteral;
        made.type = ValueType::Number;
        made.width = numberKeyLength;
        made.number = fieldNumber(token.text);
        return add(std::move(made));
    case TokenKind::True:
    case TokenKind::False:
        made.truth = token.kind == TokenKind::True;
        return add(std::move(made));
    case TokenKind::End:
        return fail("it ends too early");
    default:
        return fail(std::string("\"").append(token.text) + "\" is out of place");
    }
}

int ExpressionParser::parseGroup()
{
    if (++m_nesting > maxExpressionDepth)
        return fail("it is nested too deeply");
    const int inner = parseOr();
    --m_nesting;
    if (inner != failed && !m_tokens.take(TokenKind::Close))
        return fail("a bracket is missing");
    return inner;
}

int ExpressionParser::parseField(std::string_view name)
{
    const int place = m_layout.find(name);
    if (place < 0)
        return failNoField(name);
    const FieldDef &field = m_layout.fields[static_cast<std::size_t>(place)];
    ExpressionNode made;
    made.op = ExpressionOp::Field;
    made.offset = field.offset;
    made.length = field.length;
    made.width = numberKeyLength;
    bool fits = field.offset >= 1 && field.offset + field.length <= m_layout.recordLength;
    switch (field.type) {
    case 'C':
        made.type = ValueType::Character;
        made.width = field.length;
        break;
    case 'N':
    case 'F':
        made.type = ValueType::Number;
        break;
    case 'D':
        made.type = ValueType::Date;
        fits = fits && field.length == 8;
        break;
    case 'L':
        made.type = ValueType::Logical;
        made.width = 1;
        fits = fits && field.length == 1;
        break;
    case 'I':
        made.type = ValueType::Integer;
        made.width = integerKeyLength;
        fits = fits && field.length == 4;
        break;
    default:
        fits = false;
    }
    return fits ? add(std::move(made)) : fail("field " + std::string(name) + " cannot be used");
}

int ExpressionParser::parseFunction(std::string_view name)
{
    if (++m_nesting > maxExpressionDepth)
        return fail("it is nested too deeply");
    Arguments arguments;
    while (!m_tokens.take(TokenKind::Close)) {
        if (!arguments.empty() && !m_tokens.take(TokenKind::Comma))
            return fail("a bracket is missing");
        arguments.push_back(parseOr());
        if (arguments.back() == failed)
            return failed;
        if (arguments.size() > maxArguments)
            return fail("function " + std::string(name) + " has too many arguments");
    }
    --m_nesting;

    struct TextFunction {
        std::string_view name;
        ExpressionOp op;
    };
    static constexpr TextFunction textFunctions[] = {
        {"UPPER", ExpressionOp::Upper},     {"LOWER", ExpressionOp::Lower},
        {"TRIM", ExpressionOp::TrimRight},  {"RTRIM", ExpressionOp::TrimRight},
        {"LTRIM", ExpressionOp::TrimLeft},  {"ALLTRIM", ExpressionOp::TrimBoth},
        {"DTOS", ExpressionOp::DateText},   {"EMPTY", ExpressionOp::Empty},
        {"DELETED", ExpressionOp::Deleted},
    };
    for (const TextFunction &function : textFunctions) {
        if (sameWord(function.name, name))
            return makeText(function.op, arguments);
    }
    if (sameWord("LEFT", name) || sameWord("SUBSTR", name))
        return makePart(arguments, sameWord("LEFT", name));
    if (sameWord("STR", name))
        return makeNumberText(arguments);
    return fail("function " + std::string(name) + " is not supported");
}

// The functions that take one value at most.
int ExpressionParser::makeText(ExpressionOp op, const Arguments &arguments)
{
    if (arguments.size() != (op == ExpressionOp::Deleted ? 0u : 1u))
        return fail("a function has the wrong number of arguments");
    ExpressionNode made;
    made.op = op;
    if (op == ExpressionOp::Deleted)
        return add(std::move(made));
    made.left = static_cast<std::int16_t>(arguments[0]);
    if (op == ExpressionOp::Empty)
        return add(std::move(made));
    if (!isType(arguments[0],
                op == ExpressionOp::DateText ? ValueType::Date : ValueType::Character))
        return fail("a function has an argument of the wrong type");
    made.type = ValueType::Character;
    made.width = node(arguments[0]).width;
    return add(std::move(made));
}

std::optional<int> ExpressionParser::constant(const Arguments &arguments, std::size_t place,
                                              int absent)
{
    if (place >= arguments.size())
        return absent;
    const ExpressionNode &given = node(arguments[place]);
    if (given.op != ExpressionOp::NumberLiteral || given.number > 0xFFFF)
        return std::nullopt;
    return static_cast<int>(given.number);
}

// LEFT(text, size) and SUBSTR(text, start [, size]).
int ExpressionParser::makePart(const Arguments &arguments, bool fromLeft)
{
    const std::size_t sizePlace = fromLeft ? 1 : 2;
    if (arguments.size() < 2 || arguments.size() > sizePlace + 1 ||
        !isType(arguments[0], ValueType::Character))
        return fail("a part of a text has unsuitable arguments");
    const int whole = node(arguments[0]).width;
    const auto start = fromLeft ? std::optional(1) : constant(arguments, 1, 1);
    const auto size = constant(arguments, sizePlace, whole);
    if (!start || !size)
        return fail("places and sizes of a part must be plain numbers");
    const int offset = std::min(whole, std::max(0, *start - 1));
    ExpressionNode made;
    made.op = ExpressionOp::Part;
    made.type = ValueType::Character;
    made.left = static_cast<std::int16_t>(arguments[0]);
    made.offset = static_cast<std::uint16_t>(offset);
    made.length = static_cast<std::uint16_t>(std::min(whole - offset, *size));
    made.width = made.length;
    return add(std::move(made));
}

// STR(number [, width [, decimals]])
int ExpressionParser::makeNumberText(const Arguments &arguments)
{
    if (arguments.empty() || !isNumeric(node(arguments[0]).type))
        return fail("STR needs a number");
    const auto width = constant(arguments, 1, 10);
    const auto decimals = constant(arguments, 2, 0);
    if (!width || !decimals || *width < 1 || *width > static_cast<int>(maxKeyLength) ||
        *decimals >= *width)
        return fail("STR has an impossible width");
    ExpressionNode made;
    made.op = ExpressionOp::NumberText;
    made.type = ValueType::Character;
    made.left = static_cast<std::int16_t>(arguments[0]);
    made.width = static_cast<std::uint16_t>(*width);
    made.length = static_cast<std::uint16_t>(*decimals);
    return add(std::move(made));
}

int ExpressionParser::makeCompare(CompareSign sign, int left, int right)
{
    if (right == failed)
        return failed;
    const ValueType a = node(left).type, b = node(right).type;
    if (a != b && !(isNumeric(a) && isNumeric(b)))
        return fail("it compares values of different types");
    ExpressionNode made;
    made.op = ExpressionOp::Compare;
    made.sign = sign;
    made.left = static_cast<std::int16_t>(left);
    made.right = static_cast<std::int16_t>(right);
    return add(std::move(made));
}

int ExpressionParser::makeLogical(ExpressionOp op, int left, int right)
{
    if (right == failed)
        return failed;
    if (!isType(left, ValueType::Logical) || !isType(right, ValueType::Logical))
        return fail(".AND. and .OR. need logical values");
    ExpressionNode made;
    made.op = op;
    made.left = static_cast<std::int16_t>(left);
    made.right = static_cast<std::int16_t>(right);
    return add(std::move(made));
}

int ExpressionParser::makeSum(int left, int right)
{
    if (right == failed)
        return failed;
    const bool texts = isType(left, ValueType::Character) && isType(right, ValueType::Character);
    if (!texts && !(isNumeric(node(left).type) && isNumeric(node(right).type)))
        return fail("\"+\" needs two texts or two numbers");
    ExpressionNode made;
    made.op = texts ? ExpressionOp::Join : ExpressionOp::Sum;
    made.type = texts ? ValueType::Character : ValueType::Number;
    made.width = texts ? static_cast<std::uint16_t>(node(left).width + node(right).width)
                       : static_cast<std::uint16_t>(numberKeyLength);
    made.left = static_cast<std::int16_t>(left);
    made.right = static_cast<std::int16_t>(right);
    return add(std::move(made));
}

Result<KeyExpression> KeyExpression::parse(std::string_view text, const RowLayout &layout)
{
    constexpr std::size_t longest = 512; // both expressions of a tag share one page
    if (text.size() > longest)
        return Error{ErrorKind::Refused, {}, "an index expression is too long"};
    return ExpressionParser(text, layout).parse();
}

} // namespace norvane::engine
