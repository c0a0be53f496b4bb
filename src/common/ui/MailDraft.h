// A message that has not been sent yet, as the bytes of an .eml file.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// The addresses between commas, trimmed and free of line ends; blank ones are left out.
QStringList mailAddresses(const QString &recipients);

// With X-Unsent, so that a mail program opens it for editing. Line ends in addresses and subject
// become blanks: they cannot add headers.
QByteArray mailDraft(const QStringList &addresses, const QString &subject, const QString &body);
// "mailto:..." with everything but letters, digits and a few signs percent-encoded.
QByteArray mailAddressLink(const QStringList &addresses, const QString &subject,
                           const QString &body);
