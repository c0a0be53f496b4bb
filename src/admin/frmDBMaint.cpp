#include "admin/frmDBMaint.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/HelpTopics.h"
#include "common/base/Host.h"
#include "common/base/Hourglass.h"
#include "common/ui/Icons.h"
#include "common/ui/Switchboard.h"
#include "db/clsDB.h"
#include "db/maintenance/FolderCheck.h"
#include "db/maintenance/Reindex.h"
#include "ui_frmDBMaint.h"

#include <QDir>
#include <QScopedValueRollback>
#include <QStyle>

#include <algorithm>

using maintenance::Finding;
using maintenance::ReindexOutcome;

namespace
{

// The table that a data file belongs to.
const schema::TableInfo &tableOf(const clsDBFile &file)
{
    const auto &tables = schema::tables();
    return *std::find_if(tables.begin(), tables.end(), [&file](const schema::TableInfo &table) {
        return gDB.TablePath(table.table) == file.table;
    });
}

} // namespace

// The buttons are disabled and the progress text stands while one lives.
class frmDBMaint::Work
{
public:
    Work(frmDBMaint &form, const QString &text) : m_form(form), m_working(form.m_working, true)
    {
        setEnabled(false);
        m_form.ui->lblProgress->setText(text);
        host().pumpEvents();
    }
    ~Work()
    {
        setEnabled(true);
        m_form.ui->lblProgress->clear();
    }
    Q_DISABLE_COPY_MOVE(Work)

private:
    void setEnabled(bool enabled)
    {
        for (QWidget *part :
             std::initializer_list<QWidget *>{m_form.ui->CloseButton, m_form.ui->IndexButton,
                                              m_form.ui->CheckButton, m_form.ui->lstDataFiles})
            part->setEnabled(enabled);
    }

    frmDBMaint &m_form;
    QScopedValueRollback<bool> m_working;
    Hourglass m_hourglass;
};

frmDBMaint::frmDBMaint(QWidget *parent) : QDialog(parent), ui(std::make_unique<Ui::frmDBMaint>())
{
    ui->setupUi(this);
    setProperty("helpTopic", help::DatabaseMaintenance);
    const int size = style()->pixelMetric(QStyle::PM_LargeIconSize);
    ui->imgWarning->setPixmap(icon(QStringLiteral("warning")).pixmap(QSize(size, size)));
    ui->lblWarn->setText(tr("WARNING: ") + u'\n' +
                         tr("1. Backup your Database Files (See Help menu) before performing any "
                            "maintenance") +
                         u'\n' +
                         tr("2. Make sure no one is using the application before performing any "
                            "maintenance"));
    const auto onClick = [this](QPushButton *button, void (frmDBMaint::*body)()) {
        connect(button, &QPushButton::clicked, this, [this, button, body] {
            const QByteArray context = "frmDBMaint_" + button->objectName().toLatin1() + "_Click";
            guarded(context.constData(), [this, body] { (this->*body)(); });
        });
    };
    onClick(ui->IndexButton, &frmDBMaint::reindex);
    onClick(ui->CheckButton, &frmDBMaint::check);
    connect(ui->cmdHelp, &QPushButton::clicked, this,
            [] { switchboard().showHelp(help::DatabaseMaintenance); });
    connect(ui->CloseButton, &QPushButton::clicked, this, &QDialog::reject);
}

frmDBMaint::~frmDBMaint() = default;

void frmDBMaint::Filenames(const QList<clsDBFile> &files)
{
    m_files = files;
    ui->lstDataFiles->clear();
    for (const clsDBFile &file : m_files)
        ui->lstDataFiles->addItem(QDir::toNativeSeparators(file.table));
}

void frmDBMaint::done(int result)
{
    if (!m_working)
        QDialog::done(result);
}

const clsDBFile *frmDBMaint::selectedFile() const
{
    const QList<QListWidgetItem *> selected = ui->lstDataFiles->selectedItems();
    if (!selected.isEmpty())
        return &m_files.at(ui->lstDataFiles->row(selected.first()));
    prompts::Message box;
    box.kind = prompts::Kind::Critical;
    box.title = tr("No data file selected");
    box.text = tr("Select a data file!");
    box.buttons = {prompts::Answer::Ok, prompts::Answer::Cancel};
    prompts::message(box);
    return nullptr;
}

void frmDBMaint::reindex()
{
    const clsDBFile *file = selectedFile();
    if (file == nullptr)
        return;
    const QString shown = QDir::toNativeSeparators(file->table);
    if (prompts::ask(tr("You are about to Re-Index the following file:") + QLatin1String("\n\n") +
                         shown + QLatin1String("\n\n") +
                         tr("This operation may take several minutes and requires exclusive access "
                            "to data files. Do you want to continue?"),
                     prompts::Answer::No, tr("Re-Index Data File")) != prompts::Answer::Yes)
        return;
    maintenance::ReindexResult result;
    {
        const Work work(*this, tr("Indexing %1 ... Please wait...").arg(shown));
        result = maintenance::reindexTable(gDB, *file);
    }
    QString more;
    if (!result.reason.isEmpty())
        more += QLatin1String("\n\n") + tr("The reason: %1.").arg(result.reason);
    if (result.outcome == ReindexOutcome::InUse)
        more += u' ' + tr("Nothing was changed. Close the database at all other stations and try "
                          "again.");
    if (!result.kept.isEmpty())
        more +=
            QLatin1String("\n\n") +
            tr("The index as it was is kept in '%1'.").arg(QDir::toNativeSeparators(result.kept));
    if (result.outcome == ReindexOutcome::Done)
        prompts::inform(tr("%1 has been re-indexed.").arg(shown) + more, tr("File Indexed"));
    else
        prompts::warn(tr("Unable to index file: %1").arg(shown) + more, tr("File Indexing Failed"));
}

void frmDBMaint::check()
{
    const clsDBFile *file = selectedFile();
    if (file == nullptr)
        return;
    const QString shown = QDir::toNativeSeparators(file->table);
    QList<Finding> findings;
    {
        const Work work(*this, tr("Checking %1 ... Please wait...").arg(shown));
        maintenance::FolderCheck check(gDB.DBPath());
        findings = check.run(tableOf(*file));
    }
    if (findings.isEmpty())
        prompts::inform(tr("%1 and its index are sound. There is nothing to do.").arg(shown),
                        tr("Check Data File"));
    else
        clsSystem::ShowMsg(checked(findings, shown), prompts::Kind::Warning,
                           help::DatabaseMaintenance);
}

QString frmDBMaint::checked(const QList<Finding> &findings, const QString &file) const
{
    QStringList lines{tr("The check of %1 found this:").arg(file)};
    bool ofIndex = false;
    for (qsizetype i = 0; i < findings.size(); ++i) {
        const Finding &finding = findings.at(i);
        // What the same is to be done about stands together, with the advice once below it.
        const bool first = i == 0 || findings.at(i - 1).advice != finding.advice;
        const bool last = i + 1 == findings.size() || findings.at(i + 1).advice != finding.advice;
        if (first)
            lines += QString();
        lines += finding.file + u": " + finding.text + u'.';
        if (last)
            lines += finding.advice;
        ofIndex = ofIndex || finding.file.endsWith(QLatin1String(".cdx"), Qt::CaseInsensitive);
    }
    if (ofIndex)
        lines += {QString(), tr("The button Re-Index rebuilds the index here and now, if nobody "
                                "else has the database open.")};
    return lines.join(u'\n');
}
