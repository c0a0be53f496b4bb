// clsSystem: operations on texts.
#include "common/base/clsSystem.h"

#include "common/base/Ansi.h"

#include <algorithm>

namespace
{

bool isAsciiDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool isAsciiLetter(QChar c)
{
    return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
}

int hexValue(QChar c)
{
    if (isAsciiDigit(c))
        return c.unicode() - u'0';
    const char16_t lower = c.toLower().unicode();
    return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : -1;
}

} // namespace

QString clsSystem::Trim(const QString &text)
{
    qsizetype first = 0;
    qsizetype last = text.size();
    while (first < last && text[first] == u' ')
        ++first;
    while (last > first && text[last - 1] == u' ')
        --last;
    return text.mid(first, last - first);
}

QString clsSystem::QuoteStr(const QString &text, bool single)
{
    const QChar mark = single ? u'\'' : u'"';
    return mark + text + mark;
}

QString clsSystem::DoubleQuote()
{
    return QStringLiteral("\"");
}

QString clsSystem::CRLF(int count)
{
    return QStringLiteral("\r\n").repeated(count);
}

QString clsSystem::CR(int count)
{
    return QStringLiteral("\r").repeated(count);
}

QString clsSystem::LF(int count)
{
    return QStringLiteral("\n").repeated(count);
}

QString clsSystem::RemoveChar(const QString &text, QChar character)
{
    return QString(text).remove(character);
}

QString clsSystem::RemoveLastChar(const QString &text, const QString &character)
{
    if (text.isEmpty() || !(character.isEmpty() || text.back() == character.front()))
        return text;
    return text.chopped(1);
}

QString clsSystem::RemoveSurroundingQuote(const QString &text)
{
    const bool quoted = text.size() > 1 && text.front() == u'"' && text.back() == u'"';
    return quoted ? text.mid(1, text.size() - 2) : text;
}

QString clsSystem::RemoveCRLF(const QString &text)
{
    QString flat = text;
    flat.replace(u'\r', QLatin1String("  ")).replace(u'\n', QLatin1String("  "));
    return flat;
}

QString clsSystem::StrGetTextTilChar(const QString &text, const QString &stop)
{
    return stop.isEmpty() ? text : text.section(stop.front(), 0, 0);
}

QString clsSystem::StrTrimNull(const QString &text)
{
    return text.section(QChar(u'\0'), 0, 0);
}

QString clsSystem::PadChar(const QString &text, int width, const QString &pad, Side side)
{
    const int wanted = std::max(width, 0);
    const QChar fill = pad.isEmpty() ? QChar(u' ') : pad.front();
    return side == Side::Front ? text.left(wanted).rightJustified(wanted, fill)
                               : text.left(wanted).leftJustified(wanted, fill);
}

QString clsSystem::PadZeros(const QString &text, int width, Side side)
{
    return PadChar(text, width, QStringLiteral("0"), side);
}

QString clsSystem::PadSpaces(const QString &text, int width, Side side)
{
    return PadChar(text, width, QStringLiteral(" "), side);
}

QString clsSystem::PadOrTruncate(const QString &text, int width)
{
    constexpr int reserved = 4;
    if (text.size() < width)
        return PadSpaces(text, width - 1);
    const QString cut = text.left(std::max(width - reserved, 0)) + QLatin1String(".. ");
    return cut.left(std::max(width - 1, 0));
}

QString clsSystem::StrTruncate(const QString &text, int length)
{
    if (text.size() <= length)
        return text;
    return text.left(std::max(length, 0)) + QLatin1String("...");
}

QString clsSystem::TrimTextToFit(const std::function<int(const QString &)> &measure,
                                 const QString &text, int width)
{
    if (text.isEmpty() || measure(text) < width)
        return text;
    // The width grows with the length, so the longest part that fits is found by halving.
    qsizetype fits = 0;
    qsizetype tooLong = text.size();
    while (tooLong - fits > 1) {
        const qsizetype middle = (fits + tooLong) / 2;
        (measure(text.left(middle)) < width ? fits : tooLong) = middle;
    }
    if (fits == 0)
        return {};
    constexpr qsizetype roomForPoints = 4;
    return text.left(std::max<qsizetype>(fits - roomForPoints, 0)) + QLatin1String("..");
}

QString clsSystem::StrReplaceChar(const QString &text, QChar find, QChar replacement,
                                  bool ignoreQuotes)
{
    QString result = text;
    bool inQuotes = false;
    for (QChar &c : result) {
        if (c == u'"')
            inQuotes = !inQuotes;
        if (c == find && (ignoreQuotes || !inQuotes))
            c = replacement;
    }
    return result;
}

QStringList clsSystem::StrParse2Array(const QString &text, const QString &delimiter, bool upperCase)
{
    QStringList pieces = delimiter.isEmpty() ? QStringList(text) : text.split(delimiter);
    for (QString &piece : pieces)
        piece = upperCase ? Trim(piece).toUpper() : Trim(piece);
    return pieces;
}

bool clsSystem::StrExistsInArray(const QString &text, const QStringList &array, int &position)
{
    const qsizetype found = array.indexOf(text);
    if (found < 0)
        return false;
    position = static_cast<int>(found);
    return true;
}

int clsSystem::CharCountInStr(const QString &text, QChar character)
{
    return static_cast<int>(text.count(character));
}

bool clsSystem::StrDigitsOnly(const QString &text)
{
    return std::all_of(text.begin(), text.end(), isAsciiDigit);
}

bool clsSystem::StrAlphaOnly(const QString &text)
{
    return std::all_of(text.begin(), text.end(), isAsciiLetter);
}

bool clsSystem::StrAlphaDigitOnly(const QString &text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar c) { return isAsciiDigit(c) || isAsciiLetter(c); });
}

bool clsSystem::EmailAddressIsValid(const QString &address)
{
    return CharCountInStr(address, u'@') < 2 && !address.endsWith(u'@') && !address.contains(u' ');
}

QString clsSystem::MakeFullName(const QString &first, const QString &last)
{
    if (first.isEmpty())
        return last;
    return last + QLatin1String(", ") + first;
}

QString clsSystem::MakeFullNameNoComma(const QString &first, const QString &last)
{
    if (first.isEmpty() || last.isEmpty())
        return first + last;
    return first + u' ' + last;
}

QString clsSystem::StringToHexStr(const QString &text)
{
    return QString::fromLatin1(toAnsi(text).toHex().toUpper());
}

QString clsSystem::HexStrToString(const QString &hex)
{
    QByteArray bytes;
    for (qsizetype i = 0; i + 1 < hex.size(); i += 2) {
        const int high = hexValue(hex[i]);
        const int low = hexValue(hex[i + 1]);
        if (high >= 0 && low >= 0)
            bytes += static_cast<char>(high * 16 + low);
    }
    return fromAnsi(bytes);
}
