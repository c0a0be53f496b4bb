// The life of a record screen: load, edit mode, save, leave. RecordFormControls.cpp has its
// controls, keys and buttons.
#include "common/form/RecordForm.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Hourglass.h"
#include "common/form/SetLabels.h"
#include "common/ui/Controls.h"
#include "common/ui/frmRichEdit.h"
#include "common/ui/Switchboard.h"

#include <QCloseEvent>

#include <algorithm>

RecordForm::RecordForm(RecordSpec spec, QWidget *parent)
    : FormWindow(parent), m_spec(std::move(spec))
{
    setHelpTopic(m_spec.helpTopic);
    setWindowTitle(m_spec.newCaption);
}

QString RecordForm::tablePath() const
{
    return gDB.TablePath(m_spec.table);
}

QString RecordForm::tableFile() const
{
    return schema::table(m_spec.table).dataFile();
}

// The procedure's name as failures are reported under it, such as "frmCustomer_LoadData".
QByteArray RecordForm::context(const char *procedure) const
{
    return formName().toLatin1() + '_' + procedure;
}

RecColl RecordForm::newRecord() const
{
    return RecColl(tablePath(), tableFile(), m_rowid, m_spec.recordType);
}

bool RecordForm::recordExists()
{
    return gDB.CheckIfRecExists(tablePath(), tableFile(), m_rowid);
}

void RecordForm::SetTagVariant()
{
    if (!m_spec.tagPrefix.isEmpty())
        setTagText(m_spec.tagPrefix + QString::number(m_rowid));
}

void RecordForm::SetWindowCaption()
{
    if (!m_spec.captionPrefix.isEmpty())
        setWindowTitle(m_spec.captionPrefix + description() + u" @" + clsSystem::CurrTimeAMPM());
}

QString RecordForm::deleteQuestion() const
{
    return tr("Are you sure you want to *DELETE*  '%1'?").arg(windowTitle());
}

void RecordForm::Init(qint32 rowid, bool bEdit)
{
    guarded(context("Init").constData(), [&] {
        m_rowid = rowid;
        SetTagVariant();
        if (bEdit)
            m_controls.EM->EditMode();
        else
            m_controls.EM->ViewMode();
        LoadData();
        SetUI();
        const auto field =
            std::find_if(m_bindings.begin(), m_bindings.end(), [](const FieldBinding &bound) {
                return bound.control->focusPolicy() != Qt::NoFocus;
            });
        if (bEdit && field != m_bindings.end())
            field->control->setFocus();
        else
            m_controls.tabs->setFocus();
    });
}

void RecordForm::InitControls()
{
    guarded(context("InitControls").constData(), [this] {
        m_allShown = true;
        for (const FieldBinding &binding : m_bindings)
            if (binding.refill && !binding.refill())
                m_allShown = false;
        SetLabels(this, schema::table(m_spec.labelTable.value_or(m_spec.table)).dataFile());
        m_controls.LE->Clear();
    });
}

void RecordForm::LoadData()
{
    guarded(context("LoadData").constData(), [this] {
        const Hourglass hourglass;
        const clsDB::TellOnce tellOnce(gDB);
        InitControls();
        if (!loadOwner()) {
            m_allShown = false;
            return;
        }
        if (m_rowid > 0) {
            SetTagVariant();
            showRecord();
        } else {
            startNew();
        }
        if (m_rowid > 0 || m_spec.newCaption.isEmpty())
            SetWindowCaption();
    });
}

// A record that has gone leaves the fields as they are; that was told.
void RecordForm::showRecord()
{
    RecColl record = newRecord();
    if (!recordExists() || !gDB.ReadRecord(record)) {
        m_allShown = false;
        return;
    }
    for (const FieldBinding &binding : m_bindings)
        binding.show(record.value(binding.field));
    afterRead(record);
    UpdateLastEditCtl();
    afterLoad();
}

void RecordForm::SetUI()
{
    guarded(context("SetUI").constData(), [this] {
        const bool edit = inEditMode();
        const bool isNew = m_rowid < 0;
        m_controls.lblEdit->setText(edit ? tr("Cancel Edi&t") : tr("Edi&t Data"));
        LockControls(this, !edit, QStringLiteral("E"));
        m_controls.cmdRefresh->setEnabled(!isNew && !edit);
        if (m_controls.cmdDelete != nullptr)
            m_controls.cmdDelete->setEnabled(!isNew && edit);
        m_controls.lblEdit->setVisible(!isNew);
        if (m_newRecordHint != nullptr)
            m_newRecordHint->setVisible(isNew);
        afterSetUI();
    });
}

void RecordForm::SetLock(bool bLock)
{
    gDB.SetEditInfo(tablePath(), tableFile(), m_rowid, !bLock);
}

void RecordForm::DoEditModeBtn()
{
    guarded(context("DoEditModeBtn").constData(), [this] {
        if (m_spec.permission != nullptr && !(gDB.*m_spec.permission)())
            return;
        if (inEditMode())
            leaveEditMode();
        else if (ownerExists() && gDB.MayWrite())
            enterEditMode();
        else
            return;
        CtlSetFocus(m_controls.tabs);
    });
}

void RecordForm::leaveEditMode()
{
    if (!DiscardChanges())
        return;
    m_controls.EM->ViewMode();
    LoadData();
    SetUI();
}

// The record is read anew, so that an edit starts from what is stored now. When it or one of its
// lists cannot be read there is no edit: saving would store the gaps.
void RecordForm::enterEditMode()
{
    if (!recordExists() || !gDB.CheckIfRecNotUnderEdit(tablePath(), tableFile(), m_rowid))
        return;
    SetLock(true);
    LoadData();
    if (!m_allShown) {
        SetLock(false);
        return;
    }
    m_controls.EM->EditMode();
    SetUI();
}

bool RecordForm::ValidateData()
{
    return guarded(context("ValidateData").constData(), false, [this] {
        const QString problem = firstProblem();
        if (problem.isEmpty())
            return true;
        clsSystem::ShowMsg(problem, prompts::Kind::Critical);
        return false;
    });
}

bool RecordForm::SaveData()
{
    return guarded(context("SaveData").constData(), false, [this] {
        const Hourglass hourglass;
        if (!ValidateData() || !ownerExists())
            return false;
        if (m_rowid > 0 && !recordExists())
            return false;
        return extraCheck() && storeRecord();
    });
}

// The mark goes whether or not the save worked: a record that could not be written must not stay
// marked by a window that may be closed next. The typed texts stay in the controls.
bool RecordForm::storeRecord()
{
    const clsDB::TellOnce tellOnce(gDB);
    RecColl record = newRecord();
    for (const FieldBinding &binding : m_bindings)
        record.add(binding.field, binding.value());
    const bool saved = gDB.SaveRecord(record);
    if (saved) {
        m_rowid = record.number(QStringLiteral("_rowid"));
        SetTagVariant();
    }
    SetLock(false);
    SetWindowCaption();
    afterStore();
    return saved;
}

bool RecordForm::DiscardChanges()
{
    if (prompts::ask(tr("Do you wish to discard your changes (if any)?")) != prompts::Answer::Yes)
        return false;
    SetLock(false);
    return true;
}

void RecordForm::UpdateLastEditCtl()
{
    m_controls.LE->Init(tablePath(), tableFile(), m_rowid);
}

QString RecordForm::FormPrint()
{
    guarded(context("FormPrint").constData(), [this] {
        auto *preview = new frmRichEdit;
        preview->Init(windowTitle(), FormContent());
        switchboard().showChild(preview);
    });
    return {};
}

// The address is unusable on purpose, so that nothing goes out before the user has looked at it.
QString RecordForm::FormEmail()
{
    guarded(context("FormEmail").constData(), [this] {
        switchboard().SendMail(emailAddress() + u"-removethis",
                               tr("<<Verify Email Address and Enter Subject>>"), FormContent());
    });
    return {};
}

void RecordForm::closeEvent(QCloseEvent *event)
{
    event->setAccepted(!inEditMode() || DiscardChanges());
}
