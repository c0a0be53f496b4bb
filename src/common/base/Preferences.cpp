#include "common/base/Preferences.h"

#include "common/base/AppInfo.h"
#include "common/base/clsSystem.h"

#include <QFileInfo>
#include <QSaveFile>
#include <QSettings>

#include <memory>
#include <utility>

namespace
{

// A longer value was not written by us.
constexpr qsizetype maxLength = 1024;

QString &preferencesFile()
{
    static QString path;
    return path;
}

std::unique_ptr<QSettings> openStore()
{
    std::unique_ptr<QSettings> store;
    if (preferencesFile().isEmpty())
        store = std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope,
                                            app::company(), app::title());
    else
        store = std::make_unique<QSettings>(preferencesFile(), QSettings::IniFormat);
    store->setFallbacksEnabled(false);
    store->beginGroup(QStringLiteral("Pref"));
    return store;
}

// Names are free text (a report's title is one), but the store takes slashes for levels.
QString storedName(const QString &name)
{
    if (name.isEmpty())
        return QStringLiteral(".");
    QString stored = name;
    stored.replace(u'%', QLatin1String("%25"));
    stored.replace(u'/', QLatin1String("%2F"));
    stored.replace(u'\\', QLatin1String("%5C"));
    return stored;
}

// The store learns of a full disk when its old file is gone already, so it is tried beforehand
// whether a file with that many more characters can be written.
bool hasRoom(const QSettings &store, qsizetype more)
{
#ifdef Q_OS_WIN
    if (store.format() == QSettings::NativeFormat)
        return true; // in the registry
#endif
    constexpr qsizetype mostBytes = 8; // of a character as it is stored
    QSaveFile trial(store.fileName());
    if (!trial.open(QIODevice::WriteOnly))
        return true; // why it cannot be written, the store itself finds out
    const QByteArray bytes(QFileInfo(store.fileName()).size() + (more + 64) * mostBytes, ' ');
    const bool fits = trial.write(bytes) == bytes.size() && trial.flush();
    trial.cancelWriting();
    return fits;
}

} // namespace

bool SetPrefStr(const QString &name, const QString &value)
{
    const auto store = openStore();
    if (!hasRoom(*store, name.size() + value.size()))
        return false;
    store->setValue(storedName(name), value);
    store->sync();
    return store->status() == QSettings::NoError;
}

bool SetPrefLong(const QString &name, qint32 value)
{
    return SetPrefStr(name, QString::number(value));
}

QString GetPrefStr(const QString &name)
{
    const QVariant value = openStore()->value(storedName(name));
    // An unquoted comma in a file edited by hand reads as a list.
    const QString text = value.typeId() == QMetaType::QStringList
                             ? value.toStringList().join(QLatin1String(", "))
                             : value.toString();
    return clsSystem::StrTrimNull(text.left(maxLength));
}

qint32 GetPrefLong(const QString &name)
{
    const auto number = NumberInText(GetPrefStr(name));
    return number ? RoundToLong(*number).value_or(0) : 0;
}

QString usePreferencesFile(const QString &path)
{
    return std::exchange(preferencesFile(), path);
}
