#include "common/ui/WordConversion.h"

#include "common/base/clsSystem.h"
#include "common/base/Host.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUrl>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(WordConversion)
};

constexpr int kPatience = 120'000; // milliseconds; a first start sets up a profile

// On Windows its installer leaves the search path alone.
QString wordProcessor()
{
    const QString name = QStringLiteral("soffice");
    const QString found = QStandardPaths::findExecutable(name);
    if (!found.isEmpty())
        return found;
    const QString programs = qEnvironmentVariable("ProgramFiles");
    return programs.isEmpty() ? QString()
                              : QStandardPaths::findExecutable(
                                    name, {programs + QLatin1String("/LibreOffice/program")});
}

QString failed(const QString &docFile, const QString &rtfFile)
{
    prompts::warn(
        Words::tr("Unable to convert to an MS Word document: %1\nThe text has been saved in %2")
            .arg(docFile, rtfFile));
    return {};
}

} // namespace

QString convertRtfToDoc(const QString &rtfFile, const QString &docFile)
{
    const QString program = wordProcessor();
    if (program.isEmpty()) {
        prompts::inform(Words::tr("MS Word must be installed to use this option!"));
        return {};
    }
    // A profile of its own, or a running window of the person's would take the work and give no
    // answer.
    const QTemporaryDir profile;
    const QTemporaryDir out;
    const QString source = QFileInfo(clsSystem::LocalPath(rtfFile)).absoluteFilePath();
    WaitDlg wait;
    clsSystem::WaitDlgShow(wait, QStringLiteral("MS Word"),
                           Words::tr("Converting to an MS Word document. Please wait..."), false,
                           false);
    const ProgramResult result =
        host().run(program,
                   {QLatin1String("-env:UserInstallation=") +
                        QString::fromLatin1(QUrl::fromLocalFile(profile.path()).toEncoded()),
                    QStringLiteral("--headless"), QStringLiteral("--norestore"),
                    QStringLiteral("--convert-to"), QStringLiteral("doc"),
                    QStringLiteral("--outdir"), out.path(), source},
                   kPatience);
    clsSystem::WaitDlgRemove(wait);
    const QString converted =
        out.filePath(QFileInfo(source).completeBaseName() + QLatin1String(".doc"));
    const bool done = result.ended && result.exitCode == 0 && QFileInfo(converted).size() > 0 &&
                      clsSystem::FileCopyFn(converted, docFile);
    return done ? docFile : failed(docFile, rtfFile);
}
