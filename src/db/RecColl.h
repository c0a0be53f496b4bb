// One record on its way between a form and its table: tagged values (text, number or date) under
// field names, plus the reserved keys "_tablepath", "_tablename", "_rowid" and "_rectype".
// Keys ignore letter case and keep the order in which they were added.
#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

#include <vector>

class RecColl
{
public:
    RecColl() = default;
    RecColl(const QString &tablePath, const QString &tableName, qint32 rowid,
            const QString &recType);

    // Adds; a key that is there already is a Failure.
    void add(const QString &key, const QVariant &value);
    // Removes the key and adds it anew at the end; false when it is not there.
    bool setExisting(const QString &key, const QVariant &value);
    // Gives a key that is there another value and leaves it in its place; false when it is not.
    bool replace(const QString &key, const QVariant &value);
    bool contains(const QString &key) const;
    // A missing key is a Failure, which ends the procedure that asked.
    const QVariant &value(const QString &key) const;
    QString text(const QString &key) const;
    qint32 number(const QString &key) const;

    QStringList keys() const;
    qsizetype count() const;
    void clear();

private:
    struct Item {
        QString key;
        QVariant value;
    };
    const Item *find(const QString &key) const;
    std::vector<Item> m_items;
};
