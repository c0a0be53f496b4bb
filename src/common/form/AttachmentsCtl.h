// The attachments of a record: what lies in its folder, by the names on the disk. Attaching,
// removing and renaming are for edit mode and take effect at once; looking at an attachment and
// saving a copy are possible always.
#pragma once

#include "common/ui/Controls.h"
#include "db/AttachmentFolder.h"

#include <QWidget>

#include <memory>
#include <optional>

namespace Ui
{
class AttachmentsCtl;
}

class AttachmentsCtl : public QWidget, public EnabledControl
{
    Q_OBJECT
public:
    explicit AttachmentsCtl(QWidget *parent = nullptr);
    ~AttachmentsCtl() override;

    // Shows that folder, which need not be there; clsDB::Attachments gives a record's.
    void Init(const AttachmentFolder &folder);
    bool Enabled() const override { return m_enabled; }
    void SetEnabled(bool enabled) override;
    void LoadLV();
    void SetUI();
    // The folder of this record, and the one of all, are there or were made.
    bool CheckCreateDir();
    bool AttachmentExists(const QString &fileName) const;

private:
    void connectControls();
    QString selectedPath() const;
    void chooseAndAttach();
    void attachAll(const QStringList &paths);
    bool attach(const QString &path); // false: the person wants no more
    bool mayAttach(const QString &path, const QString &name);
    void view();
    void removeSelected();
    void saveCopy();
    std::optional<QString> renameTo(const QString &from, const QString &to);
    // Tells a failure; what was there before stays then.
    FileCopyOutcome
    copyWithProgress(const QString &source, const QString &target,
                     const std::function<FileCopyOutcome(const FileCopyWatch &)> &copy);

    std::unique_ptr<Ui::AttachmentsCtl> m_ui;
    AttachmentFolder m_folder;
    bool m_enabled = false;
};
