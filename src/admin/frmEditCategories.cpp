#include "admin/frmEditCategories.h"

#include "common/base/clsSystem.h"
#include "common/base/HelpTopics.h"
#include "common/base/Hourglass.h"
#include "common/form/ListSinks.h"
#include "common/ui/BusyWindow.h"
#include "common/ui/Controls.h"
#include "db/RowDeletion.h"
#include "db/TableUse.h"
#include "ui_frmEditCategories.h"

#include <algorithm>

namespace
{

constexpr int kManyItems = 100;     // take long enough to delete that a progress window is shown
constexpr int kItemsTogether = 100; // in one save, for which others wait no longer than for a few
constexpr int kTextLength = 40;     // of the table's field, in characters of one byte

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
    : ItemListDialog(parent), m_ui(std::make_unique<Ui::frmEditCategories>())
{
    m_ui->setupUi(this);
    setProperty("helpTopic", help::LookupLists);
    connectControls();
}

frmEditCategories::~frmEditCategories() = default;

void frmEditCategories::connectControls()
{
    static int counter = 0; // runs on over all lists
    takeControls(m_ui.get(), kTextLength);
    onClick(m_ui->cmdNew, [this] { addUntitled(++counter); });
    onClick(m_ui->cmdDelete, [this] { deleteSelected(); });
    onClick(m_ui->cmdDeleteAll, [this] { deleteAll(); });
    m_ui->lv->setEmptyText(tr("This list has no items yet. Press New to add one."));
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

// The next item takes the place of the deleted one, so that several can go one after the other.
void frmEditCategories::deleteSelected()
{
    const QString key = LvGetSelectedItemKey(m_ui->lv);
    const int row = m_ui->lv->rowOfKey(key);
    if (row < 0 || !DeleteItem(LvKeyId(key), LvGetSelectedItemText(m_ui->lv)))
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
        for (int row = 0; rows && failures < 3 && row < count; row += kItemsTogether) {
            if (wait != nullptr && !WaitDlgGoesOn(wait, row * 100 / count))
                break;
            QList<qint32> unused;
            for (int i = row; i < std::min(row + kItemsTogether, count); ++i) {
                const qint32 rowid = LvKeyId(m_ui->lv->itemKey(i));
                if (references.none(rowid))
                    unused.append(rowid);
            }
            deleteTogether(gDB, rows.handle(), m_list.table.keyField, unused);
            // What could not go with the others waits for its lock, and tells.
            for (const qint32 rowid : unused) {
                if (failures < 3 && !gDB.DeleteRecord(rowid, m_list.table.path, rows.handle()))
                    ++failures;
            }
        }
    }
    LoadData();
}
