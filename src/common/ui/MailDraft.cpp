#include "common/ui/MailDraft.h"

#include <QUrl>

#include <algorithm>

namespace
{

constexpr qsizetype kLineLength = 76;
constexpr qsizetype kWordBytes = 45; // of UTF-8 in one encoded word, which then has 72 characters

// A header is one line: control characters would begin another one.
QString headerText(const QString &text)
{
    QString line = text;
    for (QChar &c : line)
        if (c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
            c == QChar::ParagraphSeparator)
            c = u' ';
    return line.trimmed();
}

bool isPlain(const QString &text)
{
    constexpr qsizetype roomInLine = 60;
    return text.size() <= roomInLine && !text.contains(QLatin1String("=?")) &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 127; });
}

// Encoded words, each with whole characters, on lines of their own.
QByteArray encodedWords(const QString &text)
{
    QByteArray result;
    QByteArray word;
    const auto close = [&] {
        if (!result.isEmpty())
            result += "\r\n ";
        result += "=?UTF-8?B?" + word.toBase64() + "?=";
        word.clear();
    };
    for (const char32_t character : text.toStdU32String()) {
        const QByteArray bytes = QString::fromUcs4(&character, 1).toUtf8();
        if (word.size() + bytes.size() > kWordBytes)
            close();
        word += bytes;
    }
    if (!word.isEmpty())
        close();
    return result;
}

// A domain that is not ASCII is written as the network writes it.
QByteArray addressBytes(const QString &address)
{
    const qsizetype at = address.lastIndexOf(u'@');
    const QByteArray domain = at < 0 ? QByteArray() : QUrl::toAce(address.mid(at + 1));
    return domain.isEmpty() ? address.toUtf8() : address.left(at + 1).toUtf8() + domain;
}

QByteArray bodyBytes(const QString &body)
{
    QString text = body;
    text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    return text.replace(u'\n', QLatin1String("\r\n")).toUtf8();
}

} // namespace

QStringList mailAddresses(const QString &recipients)
{
    QStringList addresses;
    for (const QString &part : recipients.split(u',')) {
        const QString address = headerText(part);
        if (!address.isEmpty())
            addresses.append(address);
    }
    return addresses;
}

QByteArray mailDraft(const QStringList &addresses, const QString &subject, const QString &body)
{
    QByteArray to;
    for (const QString &address : addresses)
        to += (to.isEmpty() ? "" : ",\r\n ") + addressBytes(address);
    const QString title = headerText(subject);
    QByteArray text = "To: " + to + "\r\nSubject: ";
    text += isPlain(title) ? title.toLatin1() : encodedWords(title);
    text += "\r\nX-Unsent: 1\r\nMIME-Version: 1.0\r\nContent-Type: text/plain; charset=utf-8\r\n"
            "Content-Transfer-Encoding: base64\r\n\r\n";
    const QByteArray coded = bodyBytes(body).toBase64();
    for (qsizetype at = 0; at < coded.size(); at += kLineLength)
        text += coded.mid(at, kLineLength) + "\r\n";
    return text;
}

QByteArray mailAddressLink(const QStringList &addresses, const QString &subject,
                           const QString &body)
{
    QByteArray link = "mailto:";
    for (const QString &address : addresses)
        link += (link.endsWith(':') ? "" : ",") + QUrl::toPercentEncoding(address, "@+");
    link += "?subject=" + QUrl::toPercentEncoding(headerText(subject));
    return link + "&body=" + bodyBytes(body).toPercentEncoding();
}
