#include "common/form/AttachmentsCtl.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Host.h"
#include "common/base/Hourglass.h"
#include "common/ui/BusyWindow.h"
#include "db/clsDB.h"
#include "ui_AttachmentsCtl.h"

#include <QFileInfo>

namespace
{

constexpr qint64 kLargeFile = 8 << 20; // takes long enough that a progress window is shown

QString allFiles()
{
    return AttachmentsCtl::tr("All Files (*.*)|*.*");
}

void paintList(ListView *list, bool editable)
{
    QPalette colours;
    colours.setColor(QPalette::Base, editable ? editableColour(list) : readOnlyColour(list));
    list->setPalette(colours);
}

} // namespace

AttachmentsCtl::AttachmentsCtl(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::AttachmentsCtl>())
{
    m_ui->setupUi(this);
    m_ui->lv->setAlternatingRowColors(false); // its colour says whether it can be edited
    m_ui->lv->setColumns({{tr("Name"), {}, 200},
                          {tr("Size"), {}, 80, false, true},
                          {tr("Type"), {}, 130},
                          {tr("Modified"), {}, 140}});
    m_ui->lv->setShares({0, 11, 24, 21}); // names may be long
    connectControls();
    SetUI();
}

AttachmentsCtl::~AttachmentsCtl() = default;

void AttachmentsCtl::connectControls()
{
    const auto onClick = [this](QPushButton *button, void (AttachmentsCtl::*body)()) {
        connect(button, &QPushButton::clicked, this, [this, button, body] {
            m_ui->lv->finishEditing();
            const QByteArray context =
                "AttachmentsCtl_" + button->objectName().toLatin1() + "_Click";
            guarded(context.constData(), [this, body] { (this->*body)(); });
        });
    };
    onClick(m_ui->cmdAttach, &AttachmentsCtl::chooseAndAttach);
    onClick(m_ui->cmdView, &AttachmentsCtl::view);
    onClick(m_ui->cmdRemove, &AttachmentsCtl::removeSelected);
    onClick(m_ui->cmdSaveAs, &AttachmentsCtl::saveCopy);
    connect(m_ui->lv, &ListView::itemSelectionChanged, this, &AttachmentsCtl::SetUI);
    connect(m_ui->lv, &ListView::itemActivated, m_ui->cmdView, &QPushButton::click);
    connect(m_ui->lv, &AttachmentList::filesDropped, this, &AttachmentsCtl::attachAll);
    shortcutFor(m_ui->lv, QKeySequence::Delete, m_ui->cmdRemove);
}

void AttachmentsCtl::Init(const AttachmentFolder &folder)
{
    m_folder = folder;
    m_ui->lv->setFolder(clsSystem::LocalPath(folder.path()));
    LoadLV();
    SetUI();
}

void AttachmentsCtl::SetEnabled(bool enabled)
{
    if (m_enabled && !enabled)
        m_ui->lv->finishEditing();
    m_enabled = enabled;
    if (enabled)
        m_ui->lv->setLabelEditing([this](const QString &name, const QString &text) {
            return guarded("AttachmentsCtl_lv_AfterLabelEdit", std::optional<QString>(),
                           [&] { return renameTo(name, text); });
        });
    else
        m_ui->lv->setLabelEditing(nullptr);
    SetUI();
}

void AttachmentsCtl::SetUI()
{
    const bool selected = LvIsItemSelected(m_ui->lv);
    m_ui->cmdAttach->setEnabled(m_enabled);
    m_ui->cmdRemove->setEnabled(m_enabled && selected);
    m_ui->cmdView->setEnabled(selected);
    m_ui->cmdSaveAs->setEnabled(selected);
    m_ui->lv->setAcceptsFiles(m_enabled);
    paintList(m_ui->lv, m_enabled);
    m_ui->lv->setEmptyText(m_enabled
                               ? tr("No file is attached. Press Attach File, or drop files here.")
                               : tr("No file is attached."));
    m_ui->lblCount->setText(tr("%1 attachment(s)").arg(m_ui->lv->itemCount()));
}

void AttachmentsCtl::LoadLV()
{
    const QString selected = LvGetSelectedItemText(m_ui->lv);
    LvGetFileList(m_ui->lv, m_folder.exists() ? m_folder.path() : QString());
    if (!LvSelectItemByText(m_ui->lv, selected))
        LvSelectFirstItem(m_ui->lv);
    SetUI();
}

bool AttachmentsCtl::CheckCreateDir()
{
    return m_folder.create();
}

bool AttachmentsCtl::AttachmentExists(const QString &fileName) const
{
    return m_folder.contains(fileName);
}

QString AttachmentsCtl::selectedPath() const
{
    return m_folder.filePath(LvGetSelectedItemText(m_ui->lv));
}

void AttachmentsCtl::chooseAndAttach()
{
    QString path;
    if (gDB.MayWrite() &&
        clsSystem::GetFilenameOpen(path, AttachmentsCtl::tr("Open file to attach"), allFiles()))
        attach(path);
}

// The record may have gone back to reading before files that were dropped come here.
void AttachmentsCtl::attachAll(const QStringList &paths)
{
    guarded("AttachmentsCtl_lv_OLEDragDrop", [&] {
        if (!m_enabled || !gDB.MayWrite())
            return;
        for (const QString &path : paths) {
            if (!attach(path))
                return;
        }
    });
}

bool AttachmentsCtl::attach(const QString &path)
{
    const QString name = clsSystem::FileNameOnly(path);
    if (!mayAttach(path, name))
        return true;
    if (!CheckCreateDir()) {
        prompts::critical(tr("Unable to create directory: ") + m_folder.path());
        return false;
    }
    const FileCopyOutcome outcome =
        copyWithProgress(path, m_folder.filePath(name), [&](const FileCopyWatch &watch) {
            return m_folder.add(path, name, watch);
        });
    LoadLV();
    if (outcome.done())
        LvSelectItemByText(m_ui->lv, name);
    return outcome.end != FileCopyOutcome::End::Cancelled;
}

// What is dropped may be anything.
bool AttachmentsCtl::mayAttach(const QString &path, const QString &name)
{
    if (QFileInfo(clsSystem::LocalPath(path)).isDir()) {
        prompts::warn(tr("'%1' is a folder. Only files can be attached.").arg(path));
        return false;
    }
    if (!AttachmentFolder::isPlainName(name)) {
        prompts::warn(tr("'%1' cannot be the name of an attachment.").arg(name));
        return false;
    }
    if (m_folder.holds(path)) {
        prompts::critical(tr("Source and Destination files are identical!"));
        return false;
    }
    return !AttachmentExists(name) ||
           prompts::ask(name + tr(" is already attached to this document. Do you want to "
                                  "overwrite existing attachment?")) == prompts::Answer::Yes;
}

// Small files are there at once. Window events run between the blocks of a large one, so that
// Cancel works; the rest of the form waits.
FileCopyOutcome
AttachmentsCtl::copyWithProgress(const QString &source, const QString &target,
                                 const std::function<FileCopyOutcome(const FileCopyWatch &)> &copy)
{
    FileCopyOutcome outcome;
    {
        const BusyWindow oneAtATime(this);
        const Hourglass busy;
        WaitDlg wait;
        if (QFileInfo(clsSystem::LocalPath(source)).size() >= kLargeFile)
            clsSystem::WaitDlgShow(wait, tr("Attachments"),
                                   tr("Copying '%1'...").arg(clsSystem::FileNameOnly(source)), true,
                                   true);
        outcome = copy([&wait](qint64 done, qint64 all) {
            if (wait == nullptr)
                return true;
            clsSystem::WaitDlgUpdate(wait, static_cast<int>(all > 0 ? done * 100 / all : 0));
            host().pumpEvents();
            return !wait->cancelled();
        });
    }
    if (outcome.end == FileCopyOutcome::End::Failed)
        prompts::warn(tr("Unable to copy '%1' to '%2'! %3.").arg(source, target, outcome.cause));
    return outcome;
}

void AttachmentsCtl::view()
{
    clsSystem::LaunchFile(selectedPath());
}

void AttachmentsCtl::removeSelected()
{
    const QString path = selectedPath();
    if (!gDB.MayWrite() ||
        prompts::ask(
            tr("Are you sure you want to PERMANENTLY DELETE this attachment: '%1' ?").arg(path)) !=
            prompts::Answer::Yes)
        return;
    if (m_folder.remove(LvGetSelectedItemText(m_ui->lv)))
        LoadLV();
    else
        prompts::warn(tr("Unable to delete '%1'!").arg(path));
}

void AttachmentsCtl::saveCopy()
{
    const QString source = selectedPath();
    QString target;
    if (!clsSystem::GetFilenameSaveAs(target, AttachmentsCtl::tr("Save Attachment As..."),
                                      allFiles(), tr("Copy of ") + LvGetSelectedItemText(m_ui->lv)))
        return;
    if (clsSystem::LocalPath(target).compare(source, Qt::CaseInsensitive) == 0) {
        prompts::critical(tr("Source and Destination files are identical!"));
        return;
    }
    const QString folder = QFileInfo(clsSystem::LocalPath(target)).absolutePath();
    const FileCopyOutcome outcome =
        copyWithProgress(source, target, [&](const FileCopyWatch &watch) {
            return copyFile(source, target, folder, watch);
        });
    if (!outcome.done())
        return;
    prompts::inform(target + tr(" has been saved!"));
    if (m_folder.holds(target))
        LoadLV();
}

// The list is read again afterwards, when the label is no longer being typed.
std::optional<QString> AttachmentsCtl::renameTo(const QString &from, const QString &to)
{
    if (to == from || !gDB.MayWrite())
        return std::nullopt;
    if (!AttachmentFolder::isPlainName(to)) {
        prompts::warn(tr("'%1' cannot be the name of an attachment.").arg(to));
        return std::nullopt;
    }
    if (prompts::ask(tr("Are you sure you want to rename '%1' to '%2' ?").arg(from, to)) !=
        prompts::Answer::Yes)
        return std::nullopt;
    if (!m_folder.rename(from, to)) {
        prompts::warn(AttachmentExists(to)
                          ? tr("There is already an attachment named '%1'.").arg(to)
                          : tr("Unable to rename '%1' to '%2'!").arg(from, to));
        return std::nullopt;
    }
    QMetaObject::invokeMethod(this, &AttachmentsCtl::LoadLV, Qt::QueuedConnection);
    return to;
}
