#include "reports/ReportNames.h"

#include "common/base/clsSystem.h"

#include <QCoreApplication>

namespace
{

constexpr qsizetype kCaptionLength = 30;

} // namespace

namespace reports
{

QString typeName(const QString &type)
{
    if (type == u"C")
        return QCoreApplication::translate("reports", "Customers");
    if (type == u"I")
        return QCoreApplication::translate("reports", "Issues");
    return QCoreApplication::translate("reports", "Unknown");
}

QString shortTitle(const QString &title)
{
    const QString trimmed = clsSystem::Trim(title);
    return trimmed.size() > kCaptionLength ? trimmed.left(kCaptionLength) + u"..." : trimmed;
}

} // namespace reports
