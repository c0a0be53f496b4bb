#include "common/form/ItemListDialog.h"

#include "common/base/Ansi.h"
#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/ui/Printing.h"

#include <QKeyEvent>

void ItemListDialog::connectControls(QPushButton *cmdPrint, QPushButton *cmdClose)
{
    m_lv->setSelectionMode(QAbstractItemView::SingleSelection);
    m_lv->setLabelEditing(
        [this](const QString &key, const QString &text) {
            const QByteArray context = QByteArray(metaObject()->className()) + "_lv_AfterLabelEdit";
            return guarded(context.constData(), std::optional<QString>(),
                           [&] { return storeName(key, text); });
        },
        m_nameLength);
    connect(m_lv, &ListView::itemSelectionChanged, this, [this] { SetUI(); });
    onClick(cmdPrint, [this] { ListViewPrint_GetPrinter(*m_lv, windowTitle(), titleKey()); });
    onClick(m_refresh, [this] { LoadData(); });
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);
}

void ItemListDialog::onClick(QPushButton *button, std::function<void()> body)
{
    connect(button, &QPushButton::clicked, this, [this, button, body = std::move(body)] {
        m_lv->finishEditing();
        const QByteArray context = QByteArray(metaObject()->className()) + '_' +
                                   button->objectName().toLatin1() + "_Click";
        guarded(context.constData(), body);
    });
}

void ItemListDialog::addUntitled(int number)
{
    const QString name = nameAsStored(u"Untitled " + QString::number(number));
    const qint32 id = gDB.AddUpdateItem(table(), -1, name);
    if (id < 1)
        return;
    const QString key = LvKey(id);
    m_lv->addItem(key, {name});
    LvSelectItem(m_lv, key);
    SetUI();
    if (m_lv->isVisible()) {
        m_lv->setFocus();
        m_lv->editLabel(key);
    }
}

// As the table will hold it, on one line.
QString ItemListDialog::nameAsStored(QString text) const
{
    for (QChar &character : text)
        if (character.category() == QChar::Other_Control)
            character = u' ';
    return clsSystem::Trim(fromAnsi(toAnsi(clsSystem::Trim(text)).left(m_nameLength)));
}

std::optional<QString> ItemListDialog::storeName(const QString &key, const QString &text) const
{
    const QString name = nameAsStored(text);
    if (name.isEmpty() || gDB.AddUpdateItem(table(), LvKeyId(key), name) < 1)
        return std::nullopt;
    return name;
}

void ItemListDialog::done(int result)
{
    m_lv->finishEditing();
    QDialog::done(result);
}

void ItemListDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F5)
        m_refresh->click();
    else
        QDialog::keyPressEvent(event);
}
