// What a system keeps about a file beside its contents.
#pragma once

#include <QString>

// Read-only, and neither hidden nor anything else out of the ordinary.
bool isPlainReadOnly(const QString &path);
