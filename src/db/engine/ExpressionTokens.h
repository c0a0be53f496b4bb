// Cuts the text of a key expression into words and signs.
#pragma once

#include <cstdint>
#include <string_view>

namespace norvane::engine
{

enum class TokenKind : std::uint8_t {
    End,
    Bad, // a character or word that has no meaning here
    Name,
    Number,
    Text, // the token's text is without its quotes
    True,
    False,
    And,
    Or,
    Not,
    Plus,
    Minus,
    Equal,
    Same,
    Different,
    Less,
    LessEqual,
    More,
    MoreEqual,
    Open,
    Close,
    Comma
};

struct Token {
    TokenKind kind = TokenKind::End;
    std::string_view text;
};

class ExpressionTokens
{
public:
    explicit ExpressionTokens(std::string_view text) : m_text(text) { advance(); }

    const Token &current() const { return m_current; }
    void advance();
    // Goes on when the current token is of that kind.
    bool take(TokenKind kind);

private:
    Token readName();
    Token readNumber();
    Token readQuoted();
    Token readDotted();
    Token readSign();
    Token cut(TokenKind kind, std::size_t length);
    char at(std::size_t place) const { return place < m_text.size() ? m_text[place] : '\0'; }

    std::string_view m_text;
    std::size_t m_place = 0;
    Token m_current;
};

// Upper-cased ASCII comparison.
bool sameWord(std::string_view a, std::string_view b);

} // namespace norvane::engine
