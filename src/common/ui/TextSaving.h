// Saving the text of a box where the person wants it.
#pragma once

#include <QString>

class QPlainTextEdit;

// Asks for the name, "Untitled N" at first. Nothing happens when that is cancelled.
void SaveRTB_GetFileName(const QPlainTextEdit &box);
// By the last three letters of the name: "rtf" rich text, "doc" a word-processor document with the
// rich text beside it, anything else plain text in UTF-8. A file is written whole or not at all.
// False when it was not saved, which is told.
bool SaveRTB(const QPlainTextEdit &box, const QString &fileName);
