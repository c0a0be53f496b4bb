// "Contains" on stored field contents.
#include "common/base/Ansi.h"
#include "search/CustomerMatcher.h"

#include <gtest/gtest.h>

namespace
{

bool contains(const QString &field, const QString &wanted)
{
    const QByteArray stored = toAnsi(field);
    return CustomerMatcher(wanted).fieldContains(
        {stored.constData(), static_cast<std::size_t>(stored.size())});
}

} // namespace

TEST(CustomerMatcher, IgnoresCaseOfPlainAndAccentedLetters)
{
    EXPECT_TRUE(contains("12 Main Street", "mAIN s"));
    EXPECT_TRUE(contains(QStringLiteral("Zürich"), QStringLiteral("ZÜR")));
    EXPECT_TRUE(contains(QStringLiteral("MÜNCHEN"), QStringLiteral("münch")));
    EXPECT_TRUE(contains(QStringLiteral("Žilina"), QStringLiteral("žil")));
    EXPECT_TRUE(contains(QStringLiteral("Hauptstraße"), QStringLiteral("straße")));
    EXPECT_FALSE(contains("Main Street", "Maine"));
}

TEST(CustomerMatcher, BlanksInsideTheTextCountBlanksAroundTheFieldDoNot)
{
    EXPECT_TRUE(contains("4 Elm Street   ", "elm street"));
    EXPECT_FALSE(contains("4 ElmStreet", "elm street"));
    EXPECT_FALSE(contains("Elm   ", "elm "));
    EXPECT_FALSE(contains("   Elm", " elm"));
}

TEST(CustomerMatcher, AnEmptyFieldContainsNothing)
{
    EXPECT_FALSE(contains("        ", " "));
    EXPECT_FALSE(contains("", ""));
    EXPECT_FALSE(contains("", "a"));
}

TEST(CustomerMatcher, WhatCannotBeStoredIsNotAQuestionMark)
{
    EXPECT_FALSE(contains("Why?", QStringLiteral("\u0416")));
    EXPECT_TRUE(contains("Why?", "?"));
}
