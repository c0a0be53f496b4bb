#include "common/ui/GridSaving.h"

#include "common/base/Ansi.h"
#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Hourglass.h"
#include "common/base/WholeFile.h"
#include "common/ui/Grid.h"

#include <QCoreApplication>
#include <QLocale>

#include <cmath>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(GridSaving)
};

constexpr qsizetype kExactDigits = 15; // of a number in a double

// In plain form, or empty for what is no number. One with more digits than a number can carry,
// such as that of an account, stays a text.
QString plainNumber(const QString &text)
{
    const QString bare = clsSystem::RemoveChar(text, u',');
    if (!IsNumeric(bare))
        return {};
    const std::optional<double> value = NumberInText(clsSystem::NumCleanStr(bare));
    if (!value || !std::isfinite(*value))
        return {};
    const QString plain = QString::number(*value, 'f', QLocale::FloatingPointShortest);
    return plain.size() > kExactDigits + 2 ? QString() : plain;
}

} // namespace

QString gridField(const QString &text)
{
    if (text.compare(QLatin1String("TRUE"), Qt::CaseInsensitive) == 0)
        return QStringLiteral("Yes");
    if (text.compare(QLatin1String("FALSE"), Qt::CaseInsensitive) == 0)
        return QStringLiteral("No");
    const QString number = plainNumber(text);
    if (!number.isEmpty())
        return number;
    return clsSystem::QuoteStr(QString(text).replace(u'"', QLatin1String("\"\"")));
}

bool SaveGridTexts(const std::function<QString(int row, int column)> &text, int firstRow,
                   int lastRow, int firstCol, int lastCol)
{
    return guarded("clsSystem_SaveGrid", false, [&] {
        const QString file = gSys.GetSaveFileName(
            Words::tr("Save As..."), Words::tr("MS Excel Comma Delimited File (*.csv)|*.csv"), {},
            QStringLiteral("csv"));
        if (file.isEmpty())
            return false;
        QByteArray bytes;
        {
            const Hourglass hourglass;
            for (int row = firstRow; row <= lastRow; ++row) {
                QStringList fields;
                for (int column = firstCol; column <= lastCol; ++column)
                    fields.append(gridField(text(row, column)));
                bytes += toAnsi(fields.join(u',')) + "\r\n";
            }
        }
        if (!writeWhole(file, bytes))
            return false;
        const QString question =
            Words::tr("%1 has been saved. Would you like to open this file now?").arg(file);
        if (prompts::ask(question) == prompts::Answer::Yes)
            clsSystem::LaunchFile(file);
        return true;
    });
}

bool SaveGrid(const Grid &grid, int firstRow, int lastRow, int firstCol, int lastCol)
{
    return SaveGridTexts([&grid](int row, int column) { return grid.text(row, column); },
                         std::max(firstRow, 0), std::min(lastRow, grid.rows()),
                         std::max(firstCol, 0), std::min(lastCol, grid.columns()));
}
