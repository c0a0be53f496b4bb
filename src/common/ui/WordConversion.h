// Rich text to a word-processor document, by LibreOffice where it is installed.
#pragma once

#include <QString>

// The document's path; empty when there is none, which is told. The conversion works in a folder
// of its own: what stood at the document's place before stays until the new one is complete.
QString convertRtfToDoc(const QString &rtfFile, const QString &docFile);
