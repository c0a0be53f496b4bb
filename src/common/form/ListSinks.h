// The controls that the database core fills with lookup lists.
#pragma once

#include "db/ListSink.h"

class ListView;
class QComboBox;
class QListWidget;

// Items carry their id. Filling never selects by itself; only selectId does.
class ComboSink : public ListSink
{
public:
    explicit ComboSink(QComboBox *combo) : m_combo(combo) {}
    void clear() override;
    void addItem(const QString &text, qint32 id) override;
    qint32 currentId() const override;
    void selectId(qint32 id) override;
    void beginLoad() override;
    void endLoad() override;

private:
    QComboBox *m_combo;
};

// Items carry the key "N" + id.
class ListViewSink : public ListSink
{
public:
    explicit ListViewSink(ListView *list) : m_list(list) {}
    void clear() override;
    void addItem(const QString &text, qint32 id) override;
    qint32 currentId() const override;
    void selectId(qint32 id) override;
    void beginLoad() override;
    void endLoad() override;

private:
    ListView *m_list;
};

class ListBoxSink : public ListSink
{
public:
    explicit ListBoxSink(QListWidget *list) : m_list(list) {}
    void clear() override;
    void addItem(const QString &text, qint32 id) override;
    qint32 currentId() const override;
    void selectId(qint32 id) override;

private:
    QListWidget *m_list;
};
