#include "common/ui/TextSaving.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/WholeFile.h"
#include "common/ui/RtfWriter.h"
#include "common/ui/WordConversion.h"

#include <QCoreApplication>
#include <QOperatingSystemVersion>
#include <QPlainTextEdit>

#include <algorithm>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(TextSaving)
};

constexpr qsizetype kExtension = 3;

// With the line ends of this system. Programs on Windows tell UTF-8 by the mark in front; a text
// of plain letters needs none.
QByteArray plainText(const QString &text)
{
    QString lines = text;
    if constexpr (QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows)
        lines.replace(u'\n', QLatin1String("\r\n"));
    const bool plain =
        std::all_of(lines.begin(), lines.end(), [](QChar c) { return c.unicode() < 0x80; });
    return (plain ? QByteArray() : QByteArray("\xEF\xBB\xBF")) + lines.toUtf8();
}

// The rich text file that goes with a document is not the one the person was asked about.
bool mayReplace(const QString &fileName)
{
    return !clsSystem::FileExists(fileName) ||
           prompts::ask(Words::tr("%1 already exists. Do you want to replace it?").arg(fileName)) ==
               prompts::Answer::Yes;
}

bool saveDocument(const QPlainTextEdit &box, const QString &fileName)
{
    const QString rtf = fileName.chopped(kExtension) + QLatin1String("RTF");
    if (!mayReplace(rtf))
        return false;
    if (!writeWhole(rtf, rtfOf(box.toPlainText(), box.font())))
        return false;
    const QString document = convertRtfToDoc(rtf, fileName);
    if (document.isEmpty())
        return false;
    prompts::inform(Words::tr("%1 has been saved as MS Word document.").arg(document));
    return true;
}

} // namespace

void SaveRTB_GetFileName(const QPlainTextEdit &box)
{
    const QString name = gSys.GetSaveFileName(
        Words::tr("Save As"),
        Words::tr("MS Word (*.doc)|*.doc|Rich Text Format (*.rtf)|*.rtf|"
                  "Text Document (*.txt)|*.txt|All Files (*.*)|*.*"),
        Words::tr("Untitled ") + QString::number(gSys.NextDocNum()), QStringLiteral("rtf"));
    if (!name.isEmpty())
        SaveRTB(box, name);
}

bool SaveRTB(const QPlainTextEdit &box, const QString &fileName)
{
    return guarded("clsSystem_SaveRTB", false, [&] {
        const QString ending = fileName.right(kExtension).toUpper();
        if (ending == QLatin1String("DOC"))
            return saveDocument(box, fileName);
        const bool rich = ending == QLatin1String("RTF");
        return writeWhole(fileName, rich ? rtfOf(box.toPlainText(), box.font())
                                         : plainText(box.toPlainText()));
    });
}
