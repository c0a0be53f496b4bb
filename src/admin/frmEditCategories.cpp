#include "admin/frmEditCategories.h"

#include "common/base/Ansi.h"
#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/HelpTopics.h"
#include "common/base/Hourglass.h"
#include "common/form/ListSinks.h"
#include "common/ui/BusyWindow.h"
#include "common/ui/Controls.h"
#include "common/ui/Printing.h"
#include "db/TableUse.h"
#include "ui_frmEditCategories.h"

#include <QKeyEvent>

#include <algorithm>

namespace
{

constexpr int kManyItems = 100; // take long enough to delete that a progress window is shown
constexpr int kItemsAStep = 20;
constexpr int kTextLength = 40; // of the table's field, in characters of one byte

qint32 rowidOf(const QString &key)
{
    return key.mid(1).toInt();
}

QString keyOf(qint32 rowid)
{
    return u'N' + QString::number(rowid);
}

// An entry's text as the table will hold it, on one line.
QString entryText(QString text)
{
    for (QChar &character : text)
        if (character.category() == QChar::Other_Control)
            character = u' ';
    return clsSystem::Trim(fromAnsi(toAnsi(clsSystem::Trim(text)).left(kTextLength)));
}

// The tables that refer to a list, open for as long as entries are deleted.
class References
{
public:
    explicit References(const QList<LookupList::UsedBy> &usedBy)
    {
        for (const LookupList::UsedBy &use : usedBy)
            m_tables.push_back({use, std::make_unique<TableUse>(gDB, use.path)});
    }
    // True when no row refers to the entry. Nothing is known of a table that cannot be opened.
    bool none(qint32 rowid) const
    {
        return std::all_of(m_tables.begin(), m_tables.end(), [rowid](const auto &table) {
            const auto &[use, rows] = table;
            return *rows && gDB.CanDeleteItem(rowid, use.path, use.field, rows->handle());
        });
    }

private:
    std::vector<std::pair<LookupList::UsedBy, std::unique_ptr<TableUse>>> m_tables;
};

} // namespace

frmEditCategories::frmEditCategories(QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmEditCategories>())
{
    m_ui->setupUi(this);
    setProperty("helpTopic", help::LookupLists);
    connectControls();
}

frmEditCategories::~frmEditCategories() = default;

void frmEditCategories::connectControls()
{
    const auto onClick = [this](QPushButton *button, void (frmEditCategories::*body)()) {
        connect(button, &QPushButton::clicked, this, [this, button, body] {
            m_ui->lv->finishEditing();
            const QByteArray context =
                "frmEditCategories_" + button->objectName().toLatin1() + "_Click";
            guarded(context.constData(), [this, body] { (this->*body)(); });
        });
    };
    onClick(m_ui->cmdNew, &frmEditCategories::newItem);
    onClick(m_ui->cmdDelete, &frmEditCategories::deleteSelected);
    onClick(m_ui->cmdDeleteAll, &frmEditCategories::deleteAll);
    onClick(m_ui->cmdPrint, &frmEditCategories::print);
    onClick(m_ui->cmdRefresh, &frmEditCategories::LoadData);
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &QDialog::accept);

    m_ui->lv->setSelectionMode(QAbstractItemView::SingleSelection);
    m_ui->lv->setEmptyText(tr("This list has no items yet. Press New to add one."));
    m_ui->lv->setLabelEditing(
        [this](const QString &key, const QString &text) {
            return guarded("frmEditCategories_lv_AfterLabelEdit", std::optional<QString>(),
                           [&] { return storeLabel(key, text); });
        },
        kTextLength);
    connect(m_ui->lv, &ListView::itemSelectionChanged, this, &frmEditCategories::SetUI);
    connect(m_ui->lv, &ListView::itemActivated, m_ui->lv, &ListView::editLabel);
    shortcutFor(m_ui->lv, QKeySequence::Delete, m_ui->cmdDelete);
}

void frmEditCategories::Init(const LookupList &list)
{
    m_list = list;
    setProperty("tag", list.helpKey);
    m_ui->lv->setColumns({{list.name}});
    m_ui->lv->setAccessibleName(list.name);
    LoadData();
}

void frmEditCategories::LoadData()
{
    ListViewSink sink(m_ui->lv);
    const clsDB::ListTable &table = m_list.table;
    gDB.LoadLV(sink, table.path, table.keyField, table.textField, table.type, true);
    setWindowTitle(m_list.caption + u" - " + clsSystem::CurrDateTimeShort());
    SetUI();
}

void frmEditCategories::SetUI()
{
    m_ui->cmdDelete->setEnabled(LvIsItemSelected(m_ui->lv));
    m_ui->cmdDeleteAll->setEnabled(m_ui->lv->itemCount() > 0);
}

void frmEditCategories::newItem()
{
    static int counter = 0; // runs on over all lists
    const QString text = entryText(u"Untitled " % QString::number(++counter));
    const qint32 rowid = gDB.AddUpdateItem(m_list.table, -1, text);
    if (rowid < 1)
        return;
    m_ui->lv->addItem(keyOf(rowid), {text});
    LvSelectItem(m_ui->lv, keyOf(rowid));
    SetUI();
    if (m_ui->lv->isVisible()) {
        m_ui->lv->setFocus();
        m_ui->lv->editLabel(keyOf(rowid));
    }
}

std::optional<QString> frmEditCategories::storeLabel(const QString &key, const QString &text)
{
    const QString stored = entryText(text);
    if (stored.isEmpty() || gDB.AddUpdateItem(m_list.table, rowidOf(key), stored) < 1)
        return std::nullopt;
    return stored;
}

// The next item takes the place of the deleted one, so that several can go one after the other.
void frmEditCategories::deleteSelected()
{
    const QString key = LvGetSelectedItemKey(m_ui->lv);
    const int row = m_ui->lv->rowOfKey(key);
    if (row < 0 || !DeleteItem(rowidOf(key), LvGetSelectedItemText(m_ui->lv)))
        return;
    m_ui->lv->removeItem(key);
    LvSelectItem(m_ui->lv, m_ui->lv->itemKey(std::min(row, m_ui->lv->itemCount() - 1)));
    SetUI();
}

bool frmEditCategories::DeleteItem(qint32 rowid, const QString &text)
{
    if (!References(m_list.usedBy).none(rowid)) {
        prompts::warn(tr("'%1' is under use and cannot be deleted!").arg(text));
        return false;
    }
    return prompts::ask(tr("Are you sure you want to delete '%1'?").arg(text), prompts::Answer::No,
                        tr("Delete Confirmation")) == prompts::Answer::Yes &&
           gDB.DeleteRecord(rowid, m_list.table.path);
}

// Entries in use stay, without a word.
void frmEditCategories::deleteAll()
{
    if (prompts::ask(tr("Are you sure you want to delete ALL items in this list?"),
                     prompts::Answer::No, tr("Delete ALL Confirmation")) != prompts::Answer::Yes)
        return;
    {
        const Hourglass busy;
        const References references(m_list.usedBy);
        const TableUse rows(gDB, m_list.table.path);
        const int count = m_ui->lv->itemCount();
        const BusyWindow oneAtATime(this);
        WaitDlg wait;
        if (count > kManyItems)
            clsSystem::WaitDlgShow(wait, m_list.caption, tr("Deleting items. Please wait..."), true,
                                   true);
        int failures = 0; // each was told; after a few the others would fail alike
        for (int row = 0; rows && failures < 3 && row < count; ++row) {
            if (row % kItemsAStep == 0 && wait != nullptr &&
                !WaitDlgGoesOn(wait, row * 100 / count))
                break;
            const qint32 rowid = rowidOf(m_ui->lv->itemKey(row));
            if (references.none(rowid) &&
                !gDB.DeleteRecord(rowid, m_list.table.path, rows.handle()))
                ++failures;
        }
    }
    LoadData();
}

void frmEditCategories::print()
{
    ListViewPrint_GetPrinter(*m_ui->lv, windowTitle());
}

void frmEditCategories::done(int result)
{
    m_ui->lv->finishEditing();
    QDialog::done(result);
}

void frmEditCategories::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F5)
        m_ui->cmdRefresh->click();
    else
        QDialog::keyPressEvent(event);
}
