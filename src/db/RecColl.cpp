#include "db/RecColl.h"

#include "common/base/AppInfo.h"
#include "common/base/Failure.h"
#include "common/base/Numbers.h"

#include <QDate>
#include <QDateTime>
#include <QTime>

#include <algorithm>

namespace
{

constexpr int MissingKey = 5;
constexpr int TypeMismatch = 13;
constexpr int DuplicateKey = 457;

} // namespace

RecColl::RecColl(const QString &tablePath, const QString &tableName, qint32 rowid,
                 const QString &recType)
{
    add(QStringLiteral("_tablepath"), tablePath);
    add(QStringLiteral("_tablename"), tableName);
    add(QStringLiteral("_rowid"), rowid);
    add(QStringLiteral("_rectype"), recType);
}

const RecColl::Item *RecColl::find(const QString &key) const
{
    const auto at = std::find_if(m_items.begin(), m_items.end(), [&](const Item &item) {
        return item.key.size() == key.size() && item.key.compare(key, Qt::CaseInsensitive) == 0;
    });
    return at == m_items.end() ? nullptr : &*at;
}

void RecColl::add(const QString &key, const QVariant &value)
{
    if (find(key) != nullptr) {
        throw Failure(DuplicateKey, app::title(),
                      QStringLiteral("The record already holds the field '%1'.").arg(key));
    }
    m_items.push_back({key, value});
}

bool RecColl::setExisting(const QString &key, const QVariant &value)
{
    const Item *item = find(key);
    if (item == nullptr)
        return false;
    m_items.erase(m_items.begin() + (item - m_items.data()));
    m_items.push_back({key, value});
    return true;
}

bool RecColl::replace(const QString &key, const QVariant &value)
{
    const Item *item = find(key);
    if (item == nullptr)
        return false;
    m_items[static_cast<std::size_t>(item - m_items.data())].value = value;
    return true;
}

bool RecColl::contains(const QString &key) const
{
    return find(key) != nullptr;
}

const QVariant &RecColl::value(const QString &key) const
{
    const Item *item = find(key);
    if (item == nullptr) {
        throw Failure(MissingKey, app::title(),
                      QStringLiteral("The record does not hold the field '%1'.").arg(key));
    }
    return item->value;
}

QString RecColl::text(const QString &key) const
{
    const QVariant &found = value(key);
    switch (found.typeId()) {
    case QMetaType::QDate:
        return found.toDate().toString(u"yyyyMMdd");
    case QMetaType::QDateTime:
        return found.toDateTime().date().toString(u"yyyyMMdd");
    case QMetaType::QTime:
        return found.toTime().toString(u"hh:mm:ss");
    case QMetaType::Double:
    case QMetaType::Float:
        return QString::number(found.toDouble(), 'g', 15);
    default:
        return found.toString();
    }
}

qint32 RecColl::number(const QString &key) const
{
    const QVariant &found = value(key);
    const std::optional<double> number = found.typeId() == QMetaType::QString
                                             ? NumberInText(found.toString())
                                             : std::optional<double>(found.toDouble());
    const std::optional<qint32> rounded = number ? RoundToLong(*number) : std::nullopt;
    if (!rounded) {
        throw Failure(TypeMismatch, app::title(),
                      QStringLiteral("The field '%1' does not hold a number.").arg(key));
    }
    return *rounded;
}

QStringList RecColl::keys() const
{
    QStringList names;
    for (const Item &item : m_items)
        names.append(item.key);
    return names;
}

qsizetype RecColl::count() const
{
    return static_cast<qsizetype>(m_items.size());
}

void RecColl::clear()
{
    m_items.clear();
}
