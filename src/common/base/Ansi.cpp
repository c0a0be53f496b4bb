#include "common/base/Ansi.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace
{

constexpr int FirstSpecial = 0x80;
constexpr int LastSpecial = 0x9F;

// Codes 80 to 9F; the others are those of Latin-1.
constexpr std::array<char16_t, LastSpecial - FirstSpecial + 1> specials = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool isLatin(char16_t c)
{
    return c < FirstSpecial || (c > LastSpecial && c <= 0xFF);
}

char ansiCode(char16_t c)
{
    if (isLatin(c))
        return static_cast<char>(c);
    for (std::size_t i = 0; i < specials.size(); ++i) {
        if (specials[i] == c)
            return static_cast<char>(FirstSpecial + i);
    }
    return '?';
}

char upperByte(char byte)
{
    const QString upper = fromAnsi(QByteArrayView(&byte, 1)).toUpper();
    const QByteArray stored = toAnsi(upper);
    return stored.size() == 1 && fromAnsi(stored) == upper ? stored.front() : byte;
}

std::array<char, 256> makeUpper()
{
    std::array<char, 256> upper{};
    for (std::size_t code = 0; code < upper.size(); ++code)
        upper[code] = upperByte(static_cast<char>(code));
    return upper;
}

// Most text is ASCII, and of that a processor folds so many bytes in a few steps.
constexpr std::size_t FoldedAtOnce = 16;

// False when there is another character among them; nothing is written then.
bool foldPlain(const char *in, char *out)
{
    std::array<std::uint8_t, FoldedAtOnce> bytes{};
    std::memcpy(bytes.data(), in, FoldedAtOnce);
    std::uint8_t all = 0;
    for (const std::uint8_t byte : bytes)
        all |= byte;
    if (all >= FirstSpecial)
        return false;
    for (std::uint8_t &byte : bytes) {
        const bool small = static_cast<std::uint8_t>(byte - 'a') < 26;
        byte = static_cast<std::uint8_t>(byte - (small ? 'a' - 'A' : 0));
    }
    std::memcpy(out, bytes.data(), FoldedAtOnce);
    return true;
}

} // namespace

void foldAnsi(std::string_view bytes, char *out)
{
    static const std::array<char, 256> upper = makeUpper();
    while (!bytes.empty()) {
        const std::string_view block = bytes.substr(0, FoldedAtOnce);
        if (block.size() < FoldedAtOnce || !foldPlain(block.data(), out))
            std::transform(block.begin(), block.end(), out,
                           [](char byte) { return upper[static_cast<unsigned char>(byte)]; });
        out += block.size();
        bytes.remove_prefix(block.size());
    }
}

QByteArray toAnsi(const QString &text)
{
    // Composed, so that a letter typed as base and accent finds its one code.
    const QString composed = text.normalized(QString::NormalizationForm_C);
    QByteArray bytes;
    bytes.reserve(composed.size());
    for (const QChar c : composed) {
        if (!c.isLowSurrogate())
            bytes += ansiCode(c.unicode());
    }
    return bytes;
}

QString fromAnsi(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    QChar *out = text.data();
    for (const char byte : bytes) {
        const int code = static_cast<unsigned char>(byte);
        const bool special = code >= FirstSpecial && code <= LastSpecial;
        *out++ = special ? QChar(specials[static_cast<std::size_t>(code - FirstSpecial)])
                         : QChar(static_cast<char16_t>(code));
    }
    return text;
}
