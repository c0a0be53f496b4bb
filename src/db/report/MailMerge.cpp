#include "db/report/MailMerge.h"

#include "common/base/AppInfo.h"
#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/WholeFile.h"
#include "db/CustomerLists.h"
#include "db/FieldText.h"
#include "db/TableUse.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

using namespace norvane::engine;

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(MailMerge)
};

constexpr int NotWritten = 75;
const QString ProductsField = QStringLiteral("prodserv");

[[noreturn]] void fail(const QString &what)
{
    throw Failure(NotWritten, app::title(), what);
}

// The new table while it is filled: in a folder of its own, where nobody else uses it.
class Merged
{
public:
    Merged() : m_session(d4init_v())
    {
        const QString path = m_folder.filePath(QStringLiteral("merge.dbf"));
        if (!m_folder.isValid() || !clsSystem::FileCopyFn(gDB.MailMergeTable(), path))
            fail(Words::tr("The template of the mail merge file, '%1', could not be copied.")
                     .arg(gDB.MailMergeTable()));
        QFile(path).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        code4accessMode(m_session, 1); // which is quicker
        code4lockEnforce(m_session, 0);
        m_table = d4open(m_session, path.toStdString());
        if (m_table < 1)
            fail(problem());
    }
    ~Merged() { d4initUndo(m_session); }
    Merged(const Merged &) = delete;
    Merged &operator=(const Merged &) = delete;

    Handle table() const { return m_table; }
    QString problem() const { return QString::fromStdString(lastError(m_session).detail); }
    void begin() const
    {
        d4appendStartVB(m_table, 0);
        d4blank(m_table);
    }
    void store() const
    {
        if (!storeNewRow(m_table))
            fail(problem());
    }
    // Nothing can be added afterwards.
    QByteArray bytes()
    {
        if (d4close(m_table) != r4success)
            fail(problem());
        QFile file(m_folder.filePath(QStringLiteral("merge.dbf")));
        if (!file.open(QIODevice::ReadOnly))
            fail(file.errorString());
        return file.readAll();
    }

private:
    QTemporaryDir m_folder;
    Handle m_session;
    Handle m_table = 0;
};

// What stands in a customer's row under the same name, lookup entries by their texts.
class Copier
{
public:
    Copier(const TableUse &customers, const TableUse &subscriptions, const TableUse &categories,
           Handle target)
        : m_subscriptions(subscriptions.handle()),
          m_categories(categories.handle()),
          m_names(gDB, categories.handle())
    {
        for (int at = 1; at <= d4numFields(target); ++at) {
            const Handle to = d4fieldAt(target, at);
            const QString name = FieldNameText(to);
            const bool products = name.compare(ProductsField, Qt::CaseInsensitive) == 0;
            m_columns.push_back({to, products ? 0 : customers.field(name)});
        }
    }

    void copy(qint32 custid)
    {
        for (const Column &column : m_columns) {
            const QString text =
                column.from < 1
                    ? gDB.CustomerPS(custid, m_subscriptions, m_categories)
                    : (f4type(column.from) == 'N' ? m_names.of(f4long(column.from))
                                                  : clsSystem::Trim(FieldText(column.from)));
            AssignText(column.to, text.left(f4len_v(column.to)));
        }
    }

private:
    struct Column {
        Handle to;
        Handle from; // 0: the products and services
    };
    std::vector<Column> m_columns;
    Handle m_subscriptions, m_categories;
    CategoryNames m_names;
};

} // namespace

std::optional<qint32> writeMailMerge(const QString &path, const std::vector<qint32> &custids,
                                     const std::function<bool(qint32 done)> &goOn,
                                     const char *context)
{
    using Written = std::optional<qint32>;
    return guarded(context, Written(), [&]() -> Written {
        Merged merged;
        TableUse customers(gDB, gDB.CustomerTable());
        const TableUse categories(gDB, gDB.CategoryTable());
        const TableUse subscriptions(gDB, gDB.Customers2PSTable());
        if (!customers || !categories || !subscriptions)
            return {};
        Copier copier(customers, subscriptions, categories, merged.table());
        customers.select(QStringLiteral("rowid"));
        qint32 done = 0;
        qint32 written = 0;
        for (const qint32 custid : custids) {
            clsSystem::IncL(done);
            if (customers.seek(custid)) {
                merged.begin();
                copier.copy(custid);
                merged.store();
                ++written;
            }
            if (!goOn(done))
                return {};
        }
        if (!writeWhole(path, merged.bytes()))
            return {};
        return written;
    });
}
