#include "common/ui/RtfWriter.h"

#include "common/base/Ansi.h"

#include <QFontInfo>

namespace
{

// "?" stands for every character without a code of its own.
QByteArray codeOf(QChar c)
{
    const QByteArray ansi = toAnsi(c);
    const bool unicode = ansi.size() != 1 || (ansi.at(0) == '?' && c != u'?');
    if (unicode)
        return "\\u" + QByteArray::number(static_cast<qint16>(c.unicode())) + '?';
    const auto code = static_cast<unsigned char>(ansi.at(0));
    if (code < 0x80)
        return {1, ansi.at(0)};
    return "\\'" + QByteArray::number(code, 16);
}

void appendCharacter(QByteArray &rtf, QChar c)
{
    switch (c.unicode()) {
    case u'\\':
    case u'{':
    case u'}':
        rtf += '\\';
        rtf += static_cast<char>(c.unicode());
        break;
    case u'\t':
        rtf += "\\tab ";
        break;
    case u'\f':
        rtf += "\\page ";
        break;
    default:
        // Other control characters mean nothing to a reader and stop some of them.
        if (c >= u' ')
            rtf += codeOf(c);
        break;
    }
}

} // namespace

QByteArray rtfOf(const QString &text, const QFont &font)
{
    const qreal points = font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
    QByteArray rtf = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1"
                     "{\\fonttbl{\\f0\\fmodern\\fprq1\\fcharset0 Courier New;}}\r\n"
                     "\\pard\\f0\\fs" +
                     QByteArray::number(qRound(points * 2)) + ' ';
    QString lines = text;
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    for (const QChar c : lines) {
        if (c == u'\n')
            rtf += "\\par\r\n";
        else
            appendCharacter(rtf, c);
    }
    return rtf + "\\par\r\n}\r\n";
}
