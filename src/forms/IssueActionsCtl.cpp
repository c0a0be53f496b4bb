#include "forms/IssueActionsCtl.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Host.h"
#include "common/base/Hourglass.h"
#include "common/ui/ListView.h"
#include "common/ui/Printing.h"
#include "db/FieldText.h"
#include "db/TableUse.h"
#include "forms/frmIssueAction.h"
#include "ui_IssueActionsCtl.h"

#include <QEvent>
#include <QHash>

namespace
{

const QString IssueTag = QStringLiteral("issueid");

QString dateOf(const TableUse &actions)
{
    return clsSystem::DBDateToDislayDate(actions.text(QStringLiteral("date")));
}

} // namespace

IssueActionsCtl::IssueActionsCtl(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::IssueActionsCtl>())
{
    m_ui->setupUi(this);
    m_ui->lv->setColumns({{tr("Date"), {}, 90},
                          {tr("Action"), {}, 90},
                          {tr("By"), {}, 60},
                          {tr("Description"), {}, 130},
                          {tr("Duration"), {}, 60, false, true}});
    m_ui->lv->setShares({15, 21, 17, 0, 12}); // a date fits into its share of 80 characters
    m_ui->lv->setSelectionMode(QAbstractItemView::SingleSelection);
    m_ui->lv->setAlternatingRowColors(false); // its colour says whether it can be changed
    m_ui->lv->setEmptyText(tr("No action has been noted for this issue yet."));
    connectControls();
    SetUI();
}

IssueActionsCtl::~IssueActionsCtl() = default;

void IssueActionsCtl::connectControls()
{
    const auto onClick = [this](QPushButton *button, void (IssueActionsCtl::*body)()) {
        connect(button, &QPushButton::clicked, this, [this, button, body] {
            const QByteArray context =
                "IssueActionsCtl_" + button->objectName().toLatin1() + "_Click";
            guarded(context.constData(), [this, body] { (this->*body)(); });
        });
    };
    onClick(m_ui->cmdAdd, &IssueActionsCtl::add);
    onClick(m_ui->cmdEditView, &IssueActionsCtl::editOrView);
    onClick(m_ui->cmdDel, &IssueActionsCtl::deleteSelected);
    connect(m_ui->lv, &ListView::itemSelectionChanged, this, &IssueActionsCtl::SetUI);
    connect(m_ui->lv, &ListView::itemActivated, this,
            [this] { guarded("IssueActionsCtl_lv_DblClick", [this] { editOrView(); }); });
}

void IssueActionsCtl::Init(qint32 issueId)
{
    m_issueId = issueId;
    LoadLV();
    SetUI();
}

void IssueActionsCtl::SetEnabled(bool enabled)
{
    m_enabled = enabled;
    SetUI();
}

void IssueActionsCtl::LoadLV()
{
    guarded("IssueActionsCtl_LoadLV", [this] {
        const Hourglass busy;
        ListView *lv = m_ui->lv;
        const QString selected = LvGetSelectedItemKey(lv);
        double total = 0;
        lv->clearItems();
        {
            TableUse categories(gDB, gDB.CategoryTable());
            TableUse actions(gDB, gDB.IssuesActionsTable());
            if (!categories || !actions)
                return;
            QHash<qint32, QString> names; // of users, each read once
            actions.select(IssueTag);
            lv->beginLoad();
            for (bool found = actions.seek(m_issueId); found; found = actions.seekNext(m_issueId)) {
                const qint32 user = actions.number(QStringLiteral("perfby"));
                if (!names.contains(user))
                    names.insert(user, gDB.GetUsername(user));
                const double duration =
                    norvane::engine::f4double(actions.field(QStringLiteral("duration")));
                total += duration;
                lv->addItem(LvKey(actions.number(QStringLiteral("rowid"))),
                            {dateOf(actions),
                             gDB.GetCategoryDesc(actions.number(QStringLiteral("action")),
                                                 categories.handle()),
                             names.value(user), actions.text(QStringLiteral("desc")),
                             clsSystem::FormatTwoDecimals(duration)});
                host().repaint(); // without input, which could start the same again
            }
            lv->endLoad();
        }
        m_ui->lblTotalDuration->setText(tr("Total Duration = ") +
                                        clsSystem::FormatTwoDecimals(total));
        LvSelectFirstItem(lv);
        LvSelectItem(lv, selected);
    });
}

void IssueActionsCtl::SetUI()
{
    QPalette colours;
    colours.setColor(QPalette::Base,
                     m_enabled ? editableColour(m_ui->lv) : readOnlyColour(m_ui->lv));
    m_ui->lv->setPalette(colours);
    const bool selected = LvIsItemSelected(m_ui->lv);
    m_ui->cmdAdd->setEnabled(m_enabled);
    m_ui->cmdEditView->setText(m_enabled ? tr("Edit") : tr("View"));
    m_ui->cmdEditView->setEnabled(selected);
    m_ui->cmdDel->setEnabled(m_enabled && selected);
}

// The colour of the list is worked out from the palette, so it follows a change of it.
void IssueActionsCtl::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        SetUI();
}

qint32 IssueActionsCtl::selectedId() const
{
    return LvKeyId(LvGetSelectedItemKey(m_ui->lv));
}

void IssueActionsCtl::add()
{
    if (!gDB.MayWrite())
        return;
    frmIssueAction dialog(window());
    if (!dialog.show(-1, m_issueId, frmIssueAction::Add))
        return;
    LoadLV();
    LvSelectItem(m_ui->lv, LvKey(dialog.ActionID()));
}

void IssueActionsCtl::editOrView()
{
    const qint32 id = selectedId();
    if (id < 1 || (m_enabled && !gDB.MayWrite()))
        return;
    frmIssueAction dialog(window());
    if (dialog.show(id, m_issueId, m_enabled ? frmIssueAction::Edit : frmIssueAction::View))
        LoadLV();
    SetUI();
}

void IssueActionsCtl::deleteSelected()
{
    const qint32 id = selectedId();
    if (id < 1 || !gDB.MayWrite())
        return;
    frmIssueAction dialog(window());
    if (!dialog.show(id, m_issueId, frmIssueAction::Delete))
        return;
    LoadLV();
    SetUI();
    prompts::inform(tr("Issue Action has been deleted!"));
}

QString IssueActionsCtl::content() const
{
    return LVContent(*m_ui->lv) + u'\n' + NotesContent();
}

QString IssueActionsCtl::NotesContent() const
{
    return guarded("IssueActionsCtl_NotesContent", QString(), [this] {
        QString text;
        TableUse actions(gDB, gDB.IssuesActionsTable());
        if (!actions)
            return text;
        actions.select(IssueTag);
        for (bool found = actions.seek(m_issueId); found; found = actions.seekNext(m_issueId))
            text += u"\n\n=== " + dateOf(actions) + u" ===\n" +
                    clsSystem::Trim(MemoText(actions.field(QStringLiteral("notes"))));
        return QString(text + u'\n');
    });
}
