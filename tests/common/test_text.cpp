// Texts: padding, cutting, quoting, splitting, and the checks of their characters.
#include "common/base/Ansi.h"
#include "common/base/clsSystem.h"

#include <gtest/gtest.h>

namespace
{

using Side = clsSystem::Side;

int widthOf(const QString &text)
{
    return static_cast<int>(text.size()) * 10;
}

} // namespace

TEST(Text, PaddingNeverLeavesMoreThanTheWidth)
{
    EXPECT_EQ("007", gSys.PadZeros("7", 3));
    EXPECT_EQ("7..", gSys.PadChar("7", 3, ".x", Side::Behind));
    EXPECT_EQ("123", gSys.PadChar("12345", 3, "0", Side::Front));
    EXPECT_EQ("123", gSys.PadChar("12345", 3, "0", Side::Behind));
    EXPECT_EQ("", gSys.PadSpaces("abc", 0));
    EXPECT_EQ("", gSys.PadSpaces("abc", -5));
    EXPECT_EQ("20", gSys.PrePad2Zeros("2004"));
    EXPECT_EQ("00", gSys.PrePad2Zeros(""));
}

TEST(Text, PadOrTruncateGivesOneLessThanTheWidth)
{
    EXPECT_EQ("abcd     ", gSys.PadOrTruncate("abcd", 10));
    EXPECT_EQ("abcdefghi", gSys.PadOrTruncate("abcdefghi", 10));
    EXPECT_EQ("abcdef.. ", gSys.PadOrTruncate("abcdefghij", 10));
    EXPECT_EQ(".. ", gSys.PadOrTruncate("abcdefghij", 4));
    for (int width = 1; width < 12; ++width)
        EXPECT_EQ(width - 1, gSys.PadOrTruncate("abcdefg", width).size()) << width;
}

TEST(Text, TrimTextToFitTakesFourMore)
{
    EXPECT_EQ("abcdefghij", gSys.TrimTextToFit(widthOf, "abcdefghij", 101));
    EXPECT_EQ("abcde..", gSys.TrimTextToFit(widthOf, "abcdefghij", 100)); // 9 fit, 5 stay
    EXPECT_EQ("..", gSys.TrimTextToFit(widthOf, "abcdefghij", 31));
    EXPECT_EQ("", gSys.TrimTextToFit(widthOf, "abcdefghij", 10));
    EXPECT_EQ("", gSys.TrimTextToFit(widthOf, "", 0));
}

TEST(Text, StrTruncateAddsItsPoints)
{
    EXPECT_EQ("abc", gSys.StrTruncate("abc", 3));
    EXPECT_EQ("abc...", gSys.StrTruncate("abcd", 3));
}

TEST(Text, CommasInsideQuotesStay)
{
    EXPECT_EQ("a|\"b,c\"|d", gSys.StrReplaceChar("a,\"b,c\",d", u',', u'|', false));
    EXPECT_EQ("a|\"b|c\"|d", gSys.StrReplaceChar("a,\"b,c\",d", u',', u'|', true));
    EXPECT_EQ("\"a,b,c", gSys.StrReplaceChar("\"a,b,c", u',', u'|', false));
    EXPECT_EQ("\"\"|a", gSys.StrReplaceChar("\"\",a", u',', u'|', false));
}

TEST(Text, StrParse2ArrayCountsTheEmptyEnds)
{
    EXPECT_EQ(QStringList({"a", "b", "c"}), gSys.StrParse2Array("a, b ,c", ","));
    EXPECT_EQ(QStringList({"a", "", ""}), gSys.StrParse2Array("a,,", ","));
    EXPECT_EQ(QStringList({"a", "b", ""}), gSys.StrParse2Array("a,b,", ","));
    EXPECT_EQ(QStringList(""), gSys.StrParse2Array("", ","));
    EXPECT_EQ(QStringList({"", ""}), gSys.StrParse2Array(",", ","));
    EXPECT_EQ(QStringList({"ÄB", "C"}), gSys.StrParse2Array(" äb;c", ";", true));
    EXPECT_EQ(QStringList("\ta\t"), gSys.StrParse2Array(" \ta\t ", ",")); // blanks only go
}

TEST(Text, StrExistsInArrayIsExact)
{
    int at = -1;
    EXPECT_FALSE(gSys.StrExistsInArray("B", {"a", "b"}, at));
    EXPECT_EQ(-1, at);
    EXPECT_TRUE(gSys.StrExistsInArray("b", {"a", "b", "b"}, at));
    EXPECT_EQ(1, at);
}

TEST(Text, RemovingCharacters)
{
    EXPECT_EQ("bnn", gSys.RemoveChar("banana", u'a'));
    EXPECT_EQ("Abc", gSys.RemoveChar("Abc", u'a'));
    EXPECT_EQ("c:", gSys.RemoveLastChar("c:\\", "\\"));
    EXPECT_EQ("c:", gSys.RemoveLastChar("c:", "\\"));
    EXPECT_EQ("c", gSys.RemoveLastChar("c:", ""));
    EXPECT_EQ("", gSys.RemoveLastChar("", ""));
    EXPECT_EQ("two    lines", gSys.RemoveCRLF("two\r\nlines"));
    EXPECT_EQ("ab", gSys.StrTrimNull(QStringLiteral("ab\0cd")));
    EXPECT_EQ("a", gSys.StrGetTextTilChar("a;b", ";,"));
    EXPECT_EQ("ab", gSys.StrGetTextTilChar("ab", ";"));
}

TEST(Text, Quotes)
{
    EXPECT_EQ("\"a\"b\"", gSys.QuoteStr("a\"b"));
    EXPECT_EQ("'a'", gSys.QuoteStr("a", true));
    EXPECT_EQ("my data", gSys.RemoveSurroundingQuote("\"my data\""));
    EXPECT_EQ("\"", gSys.RemoveSurroundingQuote("\""));
    EXPECT_EQ("", gSys.RemoveSurroundingQuote("\"\""));
    EXPECT_EQ("\"a", gSys.RemoveSurroundingQuote("\"a"));
    EXPECT_EQ("\r\n\r\n", gSys.CRLF(2));
}

TEST(Text, CharacterChecks)
{
    EXPECT_TRUE(gSys.StrDigitsOnly(""));
    EXPECT_TRUE(gSys.StrDigitsOnly("0129"));
    EXPECT_FALSE(gSys.StrDigitsOnly("1.0"));
    EXPECT_FALSE(gSys.StrDigitsOnly("٣")); // a digit, but none of ours
    EXPECT_TRUE(gSys.StrAlphaOnly("azAZ"));
    EXPECT_FALSE(gSys.StrAlphaOnly("é"));
    EXPECT_TRUE(gSys.StrAlphaDigitOnly("sysop1"));
    EXPECT_FALSE(gSys.StrAlphaDigitOnly("sys op"));
}

TEST(Text, EmailAddresses)
{
    for (const char *good : {"bob", "bob@x.example", "", "@x"})
        EXPECT_TRUE(gSys.EmailAddressIsValid(good)) << good;
    for (const char *bad : {"a@b@c", "bob @x", "bob@", " bob@x"})
        EXPECT_FALSE(gSys.EmailAddressIsValid(bad)) << bad;
}

TEST(Text, FullNames)
{
    EXPECT_EQ("Doe, Jane", gSys.MakeFullName("Jane", "Doe"));
    EXPECT_EQ("Doe", gSys.MakeFullName("", "Doe"));
    EXPECT_EQ(", Jane", gSys.MakeFullName("Jane", ""));
    EXPECT_EQ("Jane Doe", gSys.MakeFullNameNoComma("Jane", "Doe"));
    EXPECT_EQ("Doe", gSys.MakeFullNameNoComma("", "Doe"));
    EXPECT_EQ("Jane", gSys.MakeFullNameNoComma("Jane", ""));
}

TEST(Text, HexadecimalTexts)
{
    EXPECT_EQ("7379736F70", gSys.StringToHexStr("sysop"));
    EXPECT_EQ("0A80E93F", gSys.StringToHexStr("\n€é漢"));
    EXPECT_EQ("€é", gSys.HexStrToString("80e9"));
    EXPECT_EQ("ab", gSys.HexStrToString("61zz62"));
    EXPECT_EQ("a", gSys.HexStrToString("616"));
}

TEST(Text, EveryByteSurvivesTheWayInAndOut)
{
    QByteArray all;
    for (int code = 0; code < 256; ++code)
        all += static_cast<char>(code);
    EXPECT_EQ(all, toAnsi(fromAnsi(all)));
    EXPECT_EQ("€ ‘ ’ “ ” – — ™ Ÿ", fromAnsi("\x80 \x91 \x92 \x93 \x94 \x96 \x97 \x99 \x9F"));
}

TEST(Text, FoldsLongTextsAsItFoldsEachByte)
{
    const std::string letters = "aZ @[`{z\x9A\xE9\xF7\xFF\xDF";
    for (std::size_t seed = 0; seed < 40; ++seed) {
        for (std::size_t length = 0; length < 50; ++length) {
            std::string text;
            std::string expected;
            for (std::size_t at = 0; at < length; ++at) {
                // Some have nothing but ASCII in them.
                text += letters[(seed * 7 + at * at) % (seed % 2 == 0 ? letters.size() : 8)];
                char folded = 0;
                foldAnsi({&text[at], 1}, &folded);
                expected += folded;
            }
            std::string folded(length, '?');
            foldAnsi(text, folded.data());
            EXPECT_EQ(folded, expected);
        }
    }
}

TEST(Text, ACharacterWithoutAnEightBitFormIsOneQuestionMark)
{
    EXPECT_EQ("?a?", toAnsi("漢a😀"));
    EXPECT_EQ("\xE9", toAnsi("e\u0301")); // typed as letter and accent
}
