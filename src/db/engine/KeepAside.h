// A damaged file is kept beside itself before it is put right.
#pragma once

#include "db/engine/File.h"

namespace norvane::engine
{

// Copies the file to NAME.bad, .bad2 ... .bad5, the first that is free, and with `withSync` onto
// the medium. Nothing is copied when one of them holds the same bytes already, or when there are
// five: damage that comes again and again must not fill the disk.
Status keepAside(FileSystem &files, File &damaged, bool withSync);

} // namespace norvane::engine
