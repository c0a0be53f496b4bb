// The one life of all record screens: loading, read-only and edit mode, the under-edit mark,
// saving and leaving. A form adds its RecordSpec, a line for each field, and the few hooks below.
#pragma once

#include "common/form/clsForm.h"
#include "common/form/EditModeCtl.h"
#include "common/form/FieldBinding.h"
#include "common/form/StatisticCtl.h"
#include "common/ui/FormWindow.h"
#include "db/clsDB.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTabWidget>

#include <optional>
#include <vector>

class QAbstractButton;

// What kind of record a form shows.
struct RecordSpec {
    QString tagPrefix; // the form's tag is this and the rowid: "C42"; empty: it has none
    schema::Table table;
    QString recordType;    // "_customer"
    QString captionPrefix; // "Customer: "; empty: the caption stays what newCaption says
    QString newCaption;    // kept by a new record until its first save; empty: captioned at once
    // The table whose field names the labels follow; nothing: the record's own.
    std::optional<schema::Table> labelTable = {};
    int helpTopic = 0;
    bool (clsDB::*permission)() = nullptr; // asked before edit mode; null asks nothing
};

class RecordForm : public FormWindow, public clsForm
{
    Q_OBJECT
public:
    qint32 rowid() const { return m_rowid; }
    bool inEditMode() const { return m_controls.EM->InEditMode(); }

    void Init(qint32 rowid, bool bEdit) override;
    void InitControls() override;
    void LoadData() override;
    void SetUI() override;
    void SetLock(bool bLock) override;
    void DoEditModeBtn() override;
    bool ValidateData() override;
    bool SaveData() override;
    bool DiscardChanges() override;
    void UpdateLastEditCtl() override;
    QString FormPrint() override;
    QString FormEmail() override;

protected:
    RecordForm(RecordSpec spec, QWidget *parent);

    // Takes over the controls that every record form has, by their names in the Designer file;
    // only cmdDelete may be missing. To be called once, right behind setupUi.
    template <class Ui>
    void takeControls(Ui *ui)
    {
        QPushButton *cmdDelete = nullptr;
        if constexpr (requires { ui->cmdDelete; })
            cmdDelete = ui->cmdDelete;
        m_controls = {ui->EM,    ui->LE,       ui->lblEdit,      ui->tabs,     ui->cmdRefresh,
                      cmdDelete, ui->OKButton, ui->CancelButton, ui->cmdApply, ui->buttonBox};
        connectControls();
    }
    void setNewRecordHint(QWidget *hint) { m_newRecordHint = hint; }

    // One line a field, in the order in which the fields are saved. Text boxes take no more than
    // the table does.
    void bind(const QString &field, QLineEdit *box);
    void bindTrimmed(const QString &field, QLineEdit *box);
    void bind(const QString &field, QPlainTextEdit *memo);
    void bindDate(const QString &field, QLineEdit *box);
    void bindLookup(const QString &field, QComboBox *combo, int listType);
    void bindText(const QString &field, QComboBox *combo, int listType = 0);
    // The button behind a combo box that opens the editor of its list; afterwards the combo has the
    // list as it then is, and what was chosen in it. The combo must be bound.
    void bindListEditor(QAbstractButton *button, QComboBox *combo, int listType);
    void bindUsers(const QString &field, QComboBox *combo);
    void bindCustom(const QString &field, QWidget *control,
                    std::function<void(const QVariant &)> show, std::function<QVariant()> value);

    // ---- what a form may say for itself
    virtual QString description() const = 0; // what the caption calls the record
    virtual QString emailAddress() const { return {}; }
    virtual QString firstProblem() { return {}; } // told by ValidateData; empty: none
    virtual bool ownerExists() { return true; }   // tells when the record's owner has gone
    virtual bool loadOwner() { return true; }     // shows it; false ends the loading
    virtual bool extraCheck() { return true; }    // the last question before saving
    virtual void startNew() {}                    // what a new record begins with
    virtual void afterRead(const RecColl &) {}    // for what no control is bound to
    virtual void afterLoad() {}                   // an existing record is on the screen
    virtual void afterStore() {}                  // whether or not the save worked
    virtual void afterApply() {}
    virtual void afterSetUI() {}
    virtual QString deleteRefusal() { return {}; } // empty: may be deleted
    virtual bool removeRecord(); // from the database, with what hangs on it; false: it stays
    virtual QString deleteQuestion() const;

    // Puts a value into the control of that field, as if it had been read.
    void showField(const QString &field, const QVariant &value);
    void SetTagVariant();
    void SetWindowCaption();
    QString tablePath() const;
    QString tableFile() const;

    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    struct Controls {
        EditModeCtl *EM;
        StatisticCtl *LE;
        QPushButton *lblEdit;
        QTabWidget *tabs;
        QPushButton *cmdRefresh;
        QPushButton *cmdDelete; // null: this kind of record is never deleted
        QPushButton *OKButton;
        QPushButton *CancelButton;
        QPushButton *cmdApply;
        QDialogButtonBox *buttonBox;
    };

    void connectControls();
    void bindField(FieldBinding binding);
    void editList(QComboBox *combo, int listType);
    int fieldLength(const QString &field) const;
    QByteArray context(const char *procedure) const;
    RecColl newRecord() const;
    bool recordExists();
    void showRecord();
    void enterEditMode();
    void leaveEditMode();
    bool storeRecord();
    void finishTyping();
    void saveAndClose();
    void saveAndStay();
    void cancel();
    void deleteRecord();
    bool handleKey(const QKeyEvent *event);

    const RecordSpec m_spec;
    Controls m_controls{};
    QWidget *m_newRecordHint = nullptr;
    std::vector<FieldBinding> m_bindings;
    qint32 m_rowid = -1;
    bool m_allShown = false; // lists and record are on the screen as they are stored
};
