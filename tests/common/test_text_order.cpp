// The order of texts in lists, held against the collator of the platform.
#include "common/base/TextOrder.h"

#include <gtest/gtest.h>

#include <QCollator>
#include <QLocale>
#include <QScopeGuard>
#include <QStringList>

namespace
{

int sign(int number)
{
    return (number > 0) - (number < 0);
}

} // namespace

TEST(TextOrder, IsThatOfTheCollatorForEveryPairOfTexts)
{
    const auto back = qScopeGuard([before = QLocale()] { QLocale::setDefault(before); });
    const QStringList texts{"",
                            " ",
                            "  999",
                            " 1000",
                            "-",
                            "a",
                            "A",
                            "a b",
                            "ab",
                            "AB c",
                            QStringLiteral("Äb"),
                            QStringLiteral("äc"),
                            QStringLiteral("ab\u0001"),
                            "b",
                            "Zulu",
                            QStringLiteral("Ångström"),
                            QStringLiteral("angstrom 2"),
                            QStringLiteral("cote"),
                            QStringLiteral("coté"),
                            QStringLiteral("COTÉ"),
                            QStringLiteral("côte"),
                            QStringLiteral("€ 5"),
                            "$ 5",
                            "5",
                            "10",
                            "(10)",
                            QStringLiteral("œ"),
                            QStringLiteral("ÿ"),
                            QStringLiteral("Ÿ"),
                            QStringLiteral("Žilina"),
                            QStringLiteral("zilina x")};
    for (const QLocale &locale : {QLocale(QLocale::English, QLocale::UnitedStates),
                                  QLocale(QLocale::Swedish), QLocale(QLocale::German)}) {
        QLocale::setDefault(locale);
        QCollator collator;
        collator.setCaseSensitivity(Qt::CaseInsensitive);
        const TextOrder order;
        for (const QString &left : texts) {
            for (const QString &right : texts)
                EXPECT_EQ(sign(order.key(left).compare(order.key(right))),
                          sign(collator.compare(left, right)))
                    << qPrintable(locale.name() + ": " + left + " / " + right);
        }
    }
}

TEST(TextOrder, WhatCannotBeStoredComesBehindInOneOrder)
{
    const TextOrder order;
    const auto less = [&order](const QString &left, const QString &right) {
        return order.key(left) < order.key(right);
    };
    EXPECT_TRUE(less("zzz", QStringLiteral("Жук")));
    EXPECT_TRUE(less(QStringLiteral("Жук"), QStringLiteral("Жуки")));
    EXPECT_TRUE(less(QStringLiteral("Жук"), QStringLiteral("яма")));
    EXPECT_EQ(order.key(QStringLiteral("ЖУК")), order.key(QStringLiteral("жук")));
    EXPECT_TRUE(less(QStringLiteral("漢"), QStringLiteral("漢字")));
}
