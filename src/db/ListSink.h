// What clsDB fills lists and combo boxes through; the controls in common/ui implement it.
#pragma once

#include <QString>
#include <QtGlobal>

class ListSink
{
public:
    virtual ~ListSink() = default;
    virtual void clear() = 0;
    virtual void addItem(const QString &text, qint32 id) = 0;
    // The id of the current item, -1 when none.
    virtual qint32 currentId() const = 0;
    // Makes the item with that id current; nothing when there is none.
    virtual void selectId(qint32 id) = 0;
    // Between these two calls drawing is frozen.
    virtual void beginLoad() {}
    virtual void endLoad() {}
};
