// Constants of the build: names, version and addresses of the program.
#pragma once

#include <QString>

namespace app
{

QString title();   // "Norvane"
QString company(); // "Dalvion"
QString website(); // the maker's web site, without a trailing slash
int versionMajor();
int versionMinor();
int versionRevision();

// The folder with what lies beside the program (templates, catalogue, sample files, help):
// share/norvane next to the folder of the executable. No trailing separator.
QString programFolder();

} // namespace app
