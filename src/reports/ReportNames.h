// How reports and their types are called on the screen.
#pragma once

#include <QString>

namespace reports
{

// "Customers", "Issues"; "Unknown" for any other letter.
QString typeName(const QString &type);
// For captions: a title of more than 30 characters is cut.
QString shortTitle(const QString &title);

} // namespace reports
