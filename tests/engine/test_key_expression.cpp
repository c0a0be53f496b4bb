#include "db/engine/KeyExpression.h"
#include "engine/IndexSupport.h"

#include "db/engine/KeyEncoding.h"

using namespace norvane::test;

namespace
{

const RowLayout layout = makeLayout({{"NAME", 'C', 10},
                                     {"CITY", 'C', 6},
                                     {"AMOUNT", 'N', 8},
                                     {"BORN", 'D', 8},
                                     {"ACTIVE", 'L', 1},
                                     {"NUMBER", 'I', 4},
                                     {"NOTES", 'M', 10}});

std::string sampleRow(bool deleted = false)
{
    std::string number(4, '\0');
    putLe32(reinterpret_cast<Byte *>(number.data()), static_cast<std::uint32_t>(-5));
    return makeRow(layout, {"  M\xFCller", "Ulm", "   12.50", "20240229", "T", number, ""},
                   deleted);
}

std::string textKey(const char *expression, const std::string &row = sampleRow())
{
    const auto parsed = KeyExpression::parse(expression, layout);
    EXPECT_TRUE(parsed.ok()) << expression << ": " << parsed.error().detail;
    if (!parsed.ok())
        return {};
    std::string key(parsed->keyLength(), '?');
    parsed->writeKey(asBytes(row), reinterpret_cast<Byte *>(key.data()));
    return key;
}

bool isTrue(const char *expression, const std::string &row = sampleRow())
{
    const auto parsed = KeyExpression::parse(expression, layout);
    EXPECT_TRUE(parsed.ok()) << expression << ": " << parsed.error().detail;
    return parsed.ok() && parsed->type() == ValueType::Logical && parsed->isTrue(asBytes(row));
}

} // namespace

TEST(KeyExpression, TextsKeepTheirWidth)
{
    EXPECT_EQ(textKey("name"), "  M\xFCller  ");
    EXPECT_EQ(textKey("UPPER(NAME)"), "  M\xDCLLER  ");
    EXPECT_EQ(textKey("lower(NAME)"), "  m\xFCller  ");
    EXPECT_EQ(textKey("LTRIM(NAME)"), "M\xFCller    ");
    EXPECT_EQ(textKey("ALLTRIM(NAME)+CITY"), "M\xFCllerUlm       ");
    EXPECT_EQ(textKey("RTRIM(NAME)+'-'+TRIM(CITY)"), "  M\xFCller-Ulm     ");
    EXPECT_EQ(textKey("LEFT(CITY,2)"), "Ul");
    EXPECT_EQ(textKey("SUBSTR(CITY,2)"), "lm   ");
    EXPECT_EQ(textKey("SUBSTR(NAME,3,3) + \"x\""), "M\xFClx");
    EXPECT_EQ(textKey("LEFT(CITY,99)"), "Ulm   ");
}

TEST(KeyExpression, NumbersAndDates)
{
    const std::string row = sampleRow();
    EXPECT_EQ(textKey("STR(AMOUNT,8,2)"), "   12.50");
    EXPECT_EQ(textKey("STR(AMOUNT)"), "        12"); // halves go to the even neighbour
    EXPECT_EQ(textKey("STR(AMOUNT,1)"), "*");
    EXPECT_EQ(textKey("STR(NUMBER,4)"), "  -5");
    EXPECT_EQ(textKey("DTOS(BORN)+STR(AMOUNT,6,1)"), "20240229  12.5");
    EXPECT_EQ(numberOfKey(asBytes(textKey("AMOUNT")).data()), 12.5);
    EXPECT_EQ(numberOfKey(asBytes(textKey("-AMOUNT+1")).data()), -11.5);
    EXPECT_EQ(numberOfKey(asBytes(textKey("BORN")).data()), julianDay("20240229"));
    EXPECT_EQ(textKey("NUMBER"), "\x7F\xFF\xFF\xFB");
    EXPECT_EQ(textKey("ACTIVE"), "T");
    const std::string blank = makeRow(layout, {"", "", "", "", "", std::string(4, '\0'), ""});
    EXPECT_EQ(numberOfKey(asBytes(textKey("AMOUNT", blank)).data()), 0.0);
    EXPECT_EQ(numberOfKey(asBytes(textKey("BORN", blank)).data()), 0.0);
    EXPECT_EQ(textKey("DTOS(BORN)", blank), "        ");
    EXPECT_EQ(textKey("ACTIVE", blank), "F");
}

TEST(KeyExpression, ConditionsAndPrecedence)
{
    EXPECT_TRUE(isTrue(".NOT.DELETED()"));
    EXPECT_FALSE(isTrue(".not. deleted()", sampleRow(true)));
    EXPECT_TRUE(isTrue("!DELETED() AND ACTIVE"));
    EXPECT_TRUE(isTrue(".F. .AND. .F. .OR. .T."));
    EXPECT_TRUE(isTrue(".T. .OR. .F. .AND. .F."));
    EXPECT_FALSE(isTrue(".NOT. .F. .AND. .F."));
    EXPECT_TRUE(isTrue(".NOT. AMOUNT = 13 .AND. AMOUNT>12.AND.AMOUNT<=12.5"));
    EXPECT_TRUE(isTrue("NUMBER <> 5 .AND. NUMBER = -5 .AND. -NUMBER = 5"));
    EXPECT_TRUE(isTrue("EMPTY(SUBSTR(NAME,1,2)) .AND. .NOT. (EMPTY(NAME) .OR. EMPTY(BORN))"));
    EXPECT_TRUE(isTrue("ACTIVE = .T. .AND. BORN = BORN"));
}

TEST(KeyExpression, EqualSignReachesAsFarAsItsRightSide)
{
    EXPECT_TRUE(isTrue("CITY = 'U'"));
    EXPECT_TRUE(isTrue("CITY = ''"));
    EXPECT_FALSE(isTrue("'U' = CITY"));
    EXPECT_FALSE(isTrue("CITY == 'U'"));
    EXPECT_TRUE(isTrue("CITY == 'Ulm'")); // blanks at the end do not count here
    EXPECT_FALSE(isTrue("CITY <> 'Ul'"));
    EXPECT_FALSE(isTrue("CITY # \"Ul\""));
    EXPECT_TRUE(isTrue("CITY != 'ul'"));
    EXPECT_TRUE(isTrue("CITY > 'Ul' .AND. CITY < 'Um' .AND. CITY >= 'Ulm' .AND. CITY <= 'Ulm'"));
}

TEST(KeyExpression, EverythingElseIsRefused)
{
    for (const char *text : {"",
                             "NOTES",
                             "UPPER(AMOUNT)",
                             "UPPER(NAME",
                             "UPPER(NAME))",
                             "UPPER()",
                             "SOUNDEX(NAME)",
                             "NAME+AMOUNT",
                             "NAME-CITY",
                             "AMOUNT*2",
                             "NAME = 1",
                             ".NOT. NAME",
                             "NAME .AND. ACTIVE",
                             "LEFT(NAME,AMOUNT)",
                             "LEFT(NAME)",
                             "STR(NAME)",
                             "STR(AMOUNT,0)",
                             "STR(AMOUNT,300)",
                             "STR(AMOUNT,5,5)",
                             "DTOS(NAME)",
                             "DELETED(1)",
                             "'open",
                             ".XOR.",
                             "NAME $ CITY",
                             "NAME CITY",
                             "1..",
                             "-NAME",
                             "--1",
                             "SUBSTR(NAME,1,2,3)",
                             "BORN+1",
                             "NAME.CITY",
                             "\x01",
                             "BORN = 1",
                             "[text]",
                             "DATE()"}) {
        const auto parsed = KeyExpression::parse(text, layout);
        ASSERT_FALSE(parsed.ok()) << text;
        EXPECT_EQ(parsed.error().kind, ErrorKind::Refused) << text;
        EXPECT_FALSE(parsed.error().detail.empty());
    }
    EXPECT_EQ(KeyExpression::parse("UPPER(MISSING)", layout).error().kind, ErrorKind::NotFound);
}

TEST(KeyExpression, DepthAndLengthAreBounded)
{
    const auto nested = [](int depth) {
        const auto count = static_cast<std::size_t>(depth);
        return std::string(count, '(') + "NAME" + std::string(count, ')');
    };
    EXPECT_TRUE(KeyExpression::parse(nested(20), layout).ok());
    EXPECT_FALSE(KeyExpression::parse(nested(200), layout).ok());
    std::string functions = "NAME", sums = "AMOUNT", nots = "ACTIVE", longText = "NAME";
    for (int i = 0; i < 70; ++i) {
        functions = "TRIM(" + functions + ")";
        sums += "+AMOUNT";
        nots = "!" + nots;
    }
    EXPECT_FALSE(KeyExpression::parse(functions, layout).ok());
    EXPECT_FALSE(KeyExpression::parse(sums, layout).ok());
    EXPECT_TRUE(KeyExpression::parse(nots, layout).ok());
    EXPECT_FALSE(KeyExpression::parse(std::string(600, '1'), layout).ok());
}

TEST(KeyExpression, SoughtTextIsFoldedLikeTheKey)
{
    const auto folded = [](const char *expression, std::string text) {
        const auto parsed = KeyExpression::parse(expression, layout);
        EXPECT_TRUE(parsed.ok());
        parsed->foldSought(text);
        return text;
    };
    EXPECT_EQ(folded("NAME", "M\xFCl"), "M\xFCl");
    EXPECT_EQ(folded("UPPER(NAME)", "m\xFCl"), "M\xDCL");
    EXPECT_EQ(folded("LEFT(LOWER(NAME),4)", "M\xDCL"), "m\xFCl");
    EXPECT_EQ(folded("UPPER(CITY)+NAME", "ulm   Abc"), "ULM   Abc");
    EXPECT_EQ(folded("TRIM(UPPER(NAME+CITY))", "a"), "A");
}
