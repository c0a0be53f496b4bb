// The only ways field contents enter or leave the program: engine bytes of code page 1252 to text
// and back. A character without an 8-bit form is stored as "?".
#pragma once

#include "db/engine/engine.h"

#include <QByteArray>
#include <QString>

QByteArray toStored(const QString &text);
QString fromStored(const char *bytes, qsizetype length);

// The field's bytes with its trailing blanks; callers trim. Empty for handle 0.
QString FieldText(norvane::engine::Handle field);
void AssignText(norvane::engine::Handle field, const QString &text);
// A memo's text. One of 32,768 bytes or more is not read: a message, and empty text.
QString MemoText(norvane::engine::Handle field);
QString FieldNameText(norvane::engine::Handle field);
