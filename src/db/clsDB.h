// The open database: folder, engine session, logged-in user, and every operation between a screen
// and a data file. One instance, gDB, serves the program; tests make more to play other stations.
//
// Sections follow the source files: clsDBLifecycle.cpp, clsDBFiles.cpp, clsDBAttachments.cpp,
// clsDBTables.cpp, clsDBReadOnly.cpp, clsDBRecords.cpp, clsDBRows.cpp, clsDBIds.cpp,
// clsDBLogin.cpp, clsDBEditMarks.cpp, clsDBLookups.cpp, clsDBCustomers.cpp, clsDBReports.cpp,
// clsDBBulk.cpp.
#pragma once

#include "db/clsDBFile.h"
#include "db/engine/engine.h"
#include "db/EngineFailures.h"
#include "db/ListSink.h"
#include "db/RecColl.h"
#include "db/Schema.h"
#include "db/StationWatch.h"

#include <QString>
#include <QStringList>

#include <vector>

class AttachmentFolder;

class clsDB
{
public:
    using Handle = norvane::engine::Handle;

    clsDB() = default;
    ~clsDB();
    clsDB(const clsDB &) = delete;
    clsDB &operator=(const clsDB &) = delete;

    // ---- lifecycle (clsDBLifecycle.cpp)
    bool IsOpen() const { return m_bIsOpen; }
    const QString &DBPath() const { return m_sDBPath; }
    Handle CBEngine() const { return m_hSession; }
    bool OpenDB(const QString &dir);
    // Closes all other windows, then the session; false (and still open) when a window stays.
    bool CloseDB();
    bool NewDB(const QString &dir);
    void OpenLastDB();
    void OpenDBOnCommandLine(const QString &dir);
    void CantOpenLastDB(const QString &dir);
    bool DirContainsValidData(const QString &dir);
    bool DirIsClean(const QString &dir);
    void SetLastDBDir(const QString &dir);
    QString GetLastDBDir() const;
    void ClearLastDBDir();
    QString DBDefaultPath() const;
    // Without the login box, for programs without a screen: session and login state only.
    bool OpenUnattended(const QString &dir, const QString &login, const QString &password);
    // The same with no user at all, for reading.
    bool OpenForReading(const QString &dir);
    // For putting a folder right that may be damaged or lack files: a session without any check
    // and, until the second call, without a user.
    bool OpenForMaintenance(const QString &dir);
    bool LogInForMaintenance(const QString &login, const QString &password);
    // Somebody could log in: the table of users can be read and has an active one.
    bool UsersReadable();
    // Tests: the next session works on these files (not owned); null: the system's own.
    void useFiles(norvane::engine::FileSystem *files) { m_files = files; }

    // ---- file set (clsDBFiles.cpp)
    QString TablePath(schema::Table table) const;
    QString CategoryTable() const { return TablePath(schema::Table::Category); }
    QString CustomerTable() const { return TablePath(schema::Table::Customer); }
    QString Customers2PSTable() const { return TablePath(schema::Table::Customer2PS); }
    QString LastIDTable() const { return TablePath(schema::Table::LastID); }
    QString IssuesTable() const { return TablePath(schema::Table::Issues); }
    QString IssuesActionsTable() const { return TablePath(schema::Table::IssuesActions); }
    QString IssuesTemplatesTable() const { return TablePath(schema::Table::IssuesTemplates); }
    QString UserTable() const { return TablePath(schema::Table::User); }
    QString ReportTable() const { return TablePath(schema::Table::Report); }
    QString ParamTable() const { return TablePath(schema::Table::Param); }
    QString ReportColumnsTable() const; // in the program's folder
    QString MailMergeTable() const;     // in the program's folder
    static QString MakePath(const QString &dir, const QString &file);
    QString DBMSFiles() const;
    // A new file from a template: writable, whole on the medium, with the rights of the folder's
    // other tables.
    static bool copyTemplate(const QString &templateName, const QString &dir, const QString &name);
    // Puts the names of new files there on the medium too.
    static bool keepNames(const QString &dir);
    QList<clsDBFile> DataFilePaths() const; // of all tables, in their order in the schema

    // ---- attachments (clsDBAttachments.cpp). Each record's lie in a folder of its own; `kind` is
    // "_ps" for a subscription, "_i" for an issue.
    static QString AttachDir() { return QStringLiteral("nvnattach"); }
    QString AttachPath() const;
    QString GetAttachmentSubDir(qint32 rowid, const QString &kind) const;
    AttachmentFolder Attachments(qint32 rowid, const QString &kind) const;
    void CreateAttachDir(); // for all of them; told when it cannot be made
    // The record's folder with all that lies in it. False when something of it stayed.
    bool DeleteAttachments(qint32 rowid, const QString &kind);

    // ---- tables (clsDBTables.cpp)
    // A short-lived table handle, above 0; 0 after a message when it cannot be opened. The caller
    // closes it with CloseTable, which also tells what the engine could not do in between. A
    // folder that refuses writing gives a table for reading.
    Handle OpenTable(const QString &path);
    void CloseTable(Handle table);
    // While one lives, a table that cannot be opened is told of once, and so is each failure: a
    // screen reads the same table for each of its lists and labels, and saves to it twice.
    class TellOnce
    {
    public:
        explicit TellOnce(clsDB &db);
        ~TellOnce();
        TellOnce(const TellOnce &) = delete;
        TellOnce &operator=(const TellOnce &) = delete;

    private:
        clsDB &m_db;
    };

    // While one lives, damaged memos are not told of when the tables are closed: a search over many
    // counts them itself.
    class MemoDamageCounted
    {
    public:
        explicit MemoDamageCounted(clsDB &db) : m_db(db)
        {
            m_db.m_failures.beginPassingOverMemos();
        }
        ~MemoDamageCounted() { m_db.m_failures.endPassingOverMemos(); }
        MemoDamageCounted(const MemoDamageCounted &) = delete;
        MemoDamageCounted &operator=(const MemoDamageCounted &) = delete;

    private:
        clsDB &m_db;
    };

    // ---- reading only (clsDBReadOnly.cpp)
    // A table is damaged, its files may not be changed, or the locks of two stations do not reach
    // each other: nothing is saved any more until the database is opened again. That was or will
    // be told, once.
    bool IsReadOnly() const { return !m_readOnlyReason.isEmpty(); }
    // True when changes may be saved; otherwise says why not. Commands that change something ask
    // before they begin.
    bool MayWrite();
    // Looks after the other stations when it is time to; called by a timer and by the commands.
    void WatchStations();

    // ---- records (clsDBRecords.cpp)
    // Stores the record; a new one (_rowid below 1) gets its identifier, which replaces _rowid.
    bool SaveRecord(RecColl &record, bool NoMsg = false, Handle table = 0);
    bool ReadRecord(RecColl &record, bool NoMsg = false);
    RecColl NewCustomerRecColl() const;
    // Assigns a value to a field of the current row by kind; not numeric leaves a number alone.
    static void AssignValue(Handle field, const QString &value, schema::FieldKind kind);

    // ---- rows (clsDBRows.cpp)
    bool IsUniqueVal(qint32 rowid, const QString &value, const QString &tag, const QString &path);
    // The found row's value of `field`, -1 when there is no such row. Kind 2 seeks a number.
    qint32 RecordExists(int kind, const QString &value, const QString &path, const QString &tag,
                        const QString &field, Handle table = 0);
    bool RecordExistsNoTag(int kind, const QString &value, const QString &path,
                           const QString &field, Handle table = 0);
    bool DeleteRecord(qint32 rowid, const QString &path, Handle table = 0);
    // Every row with that key in the tag. False when some are left; that was or will be told.
    bool DeleteAllRecords(qint32 key, const QString &path, const QString &tag, Handle table = 0);
    qint32 GetRecCount(const QString &path, const QString &tag);     // rows the tag holds; -1
    qint32 GetRecCountFast(const QString &path, const QString &tag); // rows in the file; -1
    static bool TorF2Bool(const QString &value);
    static QString TorF2Str(const QString &value); // "Yes" or "No"

    // ---- identifiers and parameters (clsDBIds.cpp)
    qint32 GetNextID(const QString &tableName); // -1 when locked or not to be opened
    // For who adds many rows to a table: while one lives, its identifiers are taken from the
    // counter `size` at a time. What is left over goes back if nobody else took any since.
    class IdBlock
    {
    public:
        IdBlock(clsDB &db, QString tableName, qint32 size);
        ~IdBlock();
        Q_DISABLE_COPY_MOVE(IdBlock)
        bool isFor(const QString &tableName) const
        {
            return m_table.compare(tableName, Qt::CaseInsensitive) == 0;
        }
        qint32 next();

    private:
        clsDB &m_db;
        const QString m_table;
        const qint32 m_size;
        qint32 m_next = 0;
        qint32 m_end = 0; // behind the last one
    };
    QString GetParamValue(const QString &name);
    bool SetParamValue(const QString &name, const QString &value);
    static QString MakeCustomFieldParamName(const QString &table, const QString &field);

    // ---- login and rights (clsDBLogin.cpp)
    static constexpr char AdminCode = '1';
    static constexpr char UserCode = '0';
    // The administrator that every database comes with.
    static QString DefaultLogin() { return QStringLiteral("sysop"); }
    const QString &LoginName() const { return m_sLoginName; }
    qint32 LoginID() const { return m_nLoginID; }
    bool IsAdminUser() const { return m_bIsAdmin; }
    const QString &password() const { return m_sPassword; }
    void setPassword(const QString &password) { m_sPassword = password; }
    bool VerifyLogin(const QString &login, const QString &password, qint32 &id, bool &isAdmin,
                     QString &permissions);
    bool PromptLogin(const QString &dir);
    QString GetUserPassword(const QString &login);
    // An empty password goes back to the login name. False when it was not stored; that was told.
    bool SetPassword(qint32 id, const QString &password);
    qint32 GetLoginID(const QString &login);
    QString GetUsername(qint32 id);
    QString GetUsername2(qint32 id, Handle table = 0);
    static QString GetUserTypeStr(const QString &code);
    static QString GetDefaultPermissionsStr();
    bool CheckAdmin();
    bool CheckPerm(int position, bool NoMsg);
    void NoPermissionMsg();
    bool Perm_Customers() { return CheckPerm(1, false); }
    bool Perm_PS() { return CheckPerm(2, false); }
    bool Perm_Issues() { return CheckPerm(3, false); }
    bool Perm_Reports() { return CheckPerm(4, false); }
    bool Perm_ReportsNoMsg() { return CheckPerm(4, true); }
    bool Perm_ReportsMailEmail() { return CheckPerm(5, false); }
    bool Perm_ListMgmt() { return CheckPerm(6, false); }
    bool Perm_DBAdmin() { return CheckPerm(7, false); }

    // ---- edit marks (clsDBEditMarks.cpp)
    bool GetUnderEditInfo(const QString &path, const QString &tableName, qint32 rowid,
                          qint32 &userid, QString &station);
    bool CheckIfRecExists(const QString &path, const QString &tableName, qint32 rowid,
                          bool NoMsg = false);
    bool CheckIfRecNotUnderEdit(const QString &path, const QString &tableName, qint32 rowid);
    void SetEditInfo(const QString &path, const QString &tableName, qint32 rowid, bool Clear);

    // ---- lookup lists (clsDBLookups.cpp)
    void LoadLV(ListSink &list, const QString &path, const QString &keyField,
                const QString &textField, qint32 type, bool clear = false);
    // False when the list could not be read to its end; that was or will be told.
    bool LoadCbo(ListSink &combo, const QString &path, const QString &keyField,
                 const QString &textField, const QString &typeField, qint32 type,
                 bool clear = false, bool addBlank = false, qint32 selectId = 0);
    bool LoadCbo_Users(ListSink &combo, bool clear = false, bool activeOnly = false);
    // Opens the category table into `table` when it is below 1, and then closes it again.
    QString GetCategoryDesc(qint32 rowid, Handle table = 0);
    // The entry's rowid, -1 when there is none.
    qint32 CategoryExists(const QString &text, qint32 type, Handle table = 0);
    qint32 AddCategory(const QString &text, qint32 type, Handle table); // new rowid or -1
    qint32 LookupOrAddCategory(const QString &text, qint32 type, Handle table);
    // One entry of a list in the list's editor, type 0 when the table is the list; `file` is the
    // table's name for its counter. An id below 1 appends an entry, else that one is renamed. The
    // entry's rowid; 0 when the text is empty or nothing was stored, which was told.
    struct ListTable {
        QString file, path, keyField, textField;
        qint32 type = 0;
    };
    qint32 AddUpdateItem(const ListTable &list, qint32 id, const QString &text);
    // True when no row of the table has the rowid in that field. A table below 1 is opened here.
    bool CanDeleteItem(qint32 rowid, const QString &path, const QString &field, Handle table = 0);

    // ---- customers shown elsewhere (clsDBCustomers.cpp). A table below 1 is opened and closed
    // here; callers with many rows pass theirs.
    // Company and full name, in the order that the database asks for.
    QString GetCustomername(qint32 custid, Handle customers = 0);
    // Customers are named without their company.
    bool CustomerNameAlone();
    // One line: name, place and telephone.
    QString GetCustomerDetail(qint32 custid, Handle customers = 0, Handle categories = 0);
    QString GetCustomerEmail(qint32 custid, Handle customers = 0);
    bool CustomerHasPS(qint32 custid, qint32 psid, Handle subscriptions = 0);
    // Descriptions of the products and services, joined by ";".
    QString CustomerPS(qint32 custid, Handle subscriptions = 0, Handle categories = 0);

    // ---- reports (clsDBReports.cpp). Columns are rows of the catalogue in the program's folder;
    // a catalogue below 1 is opened and closed here.
    static constexpr int RptColText = 1; // how a catalogue's field is read
    static constexpr int RptColLong = 5;
    // The field as text; empty when there is no such column.
    QString GetRptColField(qint32 nColID, const QString &sFieldname, int udDataType,
                           Handle tbRepCols);
    QString RptColumnName(qint32 nColID); // the catalogue's own label
    // The columns of a report type ("C", "I") for a purpose ("D" display, "F" filter), by place.
    void LBLoadRptColumns(ListSink &lb, const QString &sRptType, const QString &sColPurpose);
    qint32 RptFilterGetCatType(qint32 nColID); // the lookup list of a filter column; 0
    // A new report like that one, called "Copy of" it; its rowid, below 1 when there is none.
    qint32 CopyReport(qint32 nRptID);

    // ---- volume trials (clsDBBulk.cpp)
    // Adds a million made-up issues, numbered from 1 whatever is there, in sole use of the table.
    // Shows how far it is; what was added before Cancel or a failure stays.
    void AddBulkIssues();

private:
    struct Write;

    bool startSession(const QString &dir);
    void endSession();
    void clearLogin();
    bool acceptLogin(const QString &login, const QString &password);
    bool startWatch(bool thorough);
    void noteDeafLocks();
    void noteDamage(const norvane::engine::Error &damage);
    void lookAtRight(const QString &path);
    void becomeReadOnly(const QString &reason, const QString &notice);
    void tellReadOnly();
    bool isTableOfOurs(const QString &path) const;
    void lookAtTables();
    qint32 takeIDs(const QString &tableName, qint32 count);
    void giveBackIDs(const QString &tableName, qint32 from, qint32 behind);
    qint32 highestIdInUse(const QString &tableName) const;
    QStringList missingFiles(const QString &dir, bool repair) const;
    QString openingHelp() const;
    bool restoreTable(const QString &dir, const schema::TableInfo &table) const;
    bool buildMissingIndex(const QString &dir, const schema::TableInfo &table) const;
    bool passLostMemos(const QString &dir, const schema::TableInfo &table) const;

    bool updateRow(const RecColl &record, Handle table, bool NoMsg);
    bool addRow(RecColl &record, Handle table);
    static void UpdateFields(const std::vector<Write> &writes);
    std::vector<Write> fieldWrites(const RecColl &record, Handle table, bool adding) const;
    void addLockInfo(std::vector<Write> &writes, const RecColl &record, Handle table) const;
    void addLastEdit(std::vector<Write> &writes, Handle table) const;
    void ReadFields(RecColl &record, Handle table);

    Handle m_hSession = 0;
    int m_openTables = 0;
    EngineFailures m_failures;
    IdBlock *m_idBlock = nullptr; // not owned
    int m_tellingOnce = 0;
    QStringList m_told; // paths and texts, while telling once
    norvane::engine::FileSystem *m_files = nullptr;
    StationWatch m_watch;
    qint64 m_lastBeat = 0;    // host().ticks()
    QString m_readOnlyReason; // empty: changes may be saved
    QString m_readOnlyNotice; // still to be told
    bool m_bIsOpen = false;
    QString m_sDBPath;
    QString m_sStation; // this computer's name, read when the session starts
    QString m_sLoginName;
    QString m_sPassword;
    QString m_sPermissions;
    qint32 m_nLoginID = 0;
    bool m_bIsAdmin = false;
};

extern clsDB gDB;
