// What holds for a customer's product or service wherever it is shown.
#pragma once

#include <QString>

// Whether a contract runs, by the date of its end as it is shown: one that ends today does, and so
// does one whose end is open or cannot be read.
bool isActiveUntil(const QString &dateTerminated);
