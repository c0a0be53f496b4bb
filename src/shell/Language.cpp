#include "shell/Language.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>

#include <algorithm>

namespace
{

bool isEnglish(const QString &code)
{
    const QLocale::Language language = QLocale(code).language();
    return language == QLocale::English || code == u"C";
}

// "de" of "de_AT", "de-AT".
QString fileOf(const QString &code)
{
    return QStringLiteral(":/i18n/norvane_%1.qm")
        .arg(QString(code).replace(u'-', u'_').section(u'_', 0, 0));
}

// An English system that also names German is an English one.
QString systemLanguage()
{
    const QStringList codes = QLocale::system().uiLanguages();
    const auto found = std::find_if(codes.begin(), codes.end(), Language::isThere);
    return found == codes.end() ? QStringLiteral("en") : *found;
}

} // namespace

bool Language::isThere(const QString &code)
{
    return isEnglish(code) || QFile::exists(fileOf(code));
}

Language::Language(const QString &code)
{
    const QString chosen = code.isEmpty() ? systemLanguage() : code;
    if (isEnglish(chosen) || !m_own.load(fileOf(chosen)))
        return;
    QCoreApplication::installTranslator(&m_own);
    if (m_toolkit.load(QLocale(chosen), QStringLiteral("qtbase"), QStringLiteral("_"),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_toolkit);
}

Language::~Language()
{
    QCoreApplication::removeTranslator(&m_toolkit);
    QCoreApplication::removeTranslator(&m_own);
}
