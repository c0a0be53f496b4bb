#include "db/engine/ExpressionTokens.h"

#include <algorithm>

namespace norvane::engine
{

namespace
{

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

char upper(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

struct Word {
    std::string_view text;
    TokenKind kind;
};

constexpr Word dottedWords[] = {{"T", TokenKind::True},
                                {"F", TokenKind::False},
                                {"AND", TokenKind::And},
                                {"OR", TokenKind::Or},
                                {"NOT", TokenKind::Not}};
constexpr Word plainWords[] = {
    {"AND", TokenKind::And}, {"OR", TokenKind::Or}, {"NOT", TokenKind::Not}};
// Longer signs stand before their beginnings.
constexpr Word signs[] = {
    {"==", TokenKind::Same},      {"<>", TokenKind::Different}, {"!=", TokenKind::Different},
    {"<=", TokenKind::LessEqual}, {">=", TokenKind::MoreEqual}, {"=", TokenKind::Equal},
    {"<", TokenKind::Less},       {">", TokenKind::More},       {"#", TokenKind::Different},
    {"!", TokenKind::Not},        {"+", TokenKind::Plus},       {"-", TokenKind::Minus},
    {"(", TokenKind::Open},       {")", TokenKind::Close},      {",", TokenKind::Comma}};

} // namespace

bool sameWord(std::string_view a, std::string_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return upper(x) == upper(y); });
}

void ExpressionTokens::advance()
{
    while (at(m_place) == ' ' || at(m_place) == '\t')
        ++m_place;
    const char c = at(m_place);
    if (m_place >= m_text.size())
        m_current = {};
    else if (isLetter(c))
        m_current = readName();
    else if (isDigit(c) || (c == '.' && isDigit(at(m_place + 1))))
        m_current = readNumber();
    else if (c == '"' || c == '\'')
        m_current = readQuoted();
    else if (c == '.')
        m_current = readDotted();
    else
        m_current = readSign();
}

bool ExpressionTokens::take(TokenKind kind)
{
    if (m_current.kind != kind)
        return false;
    advance();
    return true;
}

Token ExpressionTokens::cut(TokenKind kind, std::size_t length)
{
    const Token token{kind, m_text.substr(m_place, length)};
    m_place = std::min(m_text.size(), m_place + length);
    return token;
}

Token ExpressionTokens::readName()
{
    std::size_t length = 1;
    while (isLetter(at(m_place + length)) || isDigit(at(m_place + length)))
        ++length;
    const std::string_view text = m_text.substr(m_place, length);
    for (const Word &word : plainWords) {
        if (sameWord(word.text, text))
            return cut(word.kind, length);
    }
    return cut(TokenKind::Name, length);
}

Token ExpressionTokens::readNumber()
{
    std::size_t length = 0;
    while (isDigit(at(m_place + length)))
        ++length;
    // The point of "5.AND." belongs to the word behind it.
    if (at(m_place + length) == '.' && isDigit(at(m_place + length + 1))) {
        ++length;
        while (isDigit(at(m_place + length)))
            ++length;
    }
    return cut(TokenKind::Number, length);
}

Token ExpressionTokens::readQuoted()
{
    const std::size_t end = m_text.find(m_text[m_place], m_place + 1);
    if (end == std::string_view::npos)
        return cut(TokenKind::Bad, m_text.size());
    Token token = cut(TokenKind::Text, end - m_place + 1);
    token.text = token.text.substr(1, token.text.size() - 2);
    return token;
}

Token ExpressionTokens::readDotted()
{
    const std::size_t end = m_text.find('.', m_place + 1);
    if (end != std::string_view::npos) {
        const std::string_view text = m_text.substr(m_place + 1, end - m_place - 1);
        for (const Word &word : dottedWords) {
            if (sameWord(word.text, text))
                return cut(word.kind, end - m_place + 1);
        }
    }
    return cut(TokenKind::Bad, 1);
}

Token ExpressionTokens::readSign()
{
    for (const Word &sign : signs) {
        if (m_text.substr(m_place, sign.text.size()) == sign.text)
            return cut(sign.kind, sign.text.size());
    }
    return cut(TokenKind::Bad, 1);
}

} // namespace norvane::engine
