#include "common/form/ListSinks.h"

#include "common/ui/Controls.h"
#include "common/ui/ListView.h"

#include <QComboBox>
#include <QListWidget>

void ComboSink::clear()
{
    m_combo->clear();
}

void ComboSink::addItem(const QString &text, qint32 id)
{
    const int current = m_combo->currentIndex();
    cboAddItem(m_combo, text, id);
    if (m_combo->currentIndex() != current)
        m_combo->setCurrentIndex(current); // a combo box selects its first item unasked
}

qint32 ComboSink::currentId() const
{
    return cboGetItemID(m_combo);
}

void ComboSink::selectId(qint32 id)
{
    cboSelectAtID(m_combo, id);
}

void ComboSink::beginLoad()
{
    m_combo->setUpdatesEnabled(false);
}

void ComboSink::endLoad()
{
    m_combo->setUpdatesEnabled(true);
}

void ListViewSink::clear()
{
    m_list->clearItems();
}

void ListViewSink::addItem(const QString &text, qint32 id)
{
    m_list->addItem(LvKey(id), {text});
}

qint32 ListViewSink::currentId() const
{
    const QString key = LvGetSelectedItemKey(m_list);
    return key.isEmpty() ? -1 : LvKeyId(key);
}

void ListViewSink::selectId(qint32 id)
{
    LvSelectItem(m_list, LvKey(id));
}

void ListViewSink::beginLoad()
{
    m_list->beginLoad();
}

void ListViewSink::endLoad()
{
    m_list->endLoad();
}

void ListBoxSink::clear()
{
    m_list->clear();
}

void ListBoxSink::addItem(const QString &text, qint32 id)
{
    lbAddItem(m_list, text, id);
}

qint32 ListBoxSink::currentId() const
{
    return lbItemID(m_list, m_list->currentRow());
}

void ListBoxSink::selectId(qint32 id)
{
    const int row = lbGetPosForID(m_list, id);
    if (row >= 0)
        m_list->setCurrentRow(row);
}
