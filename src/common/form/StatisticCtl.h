// Who last saved a record, and when: three read-only fields under "Last Modified".
#pragma once

#include <QWidget>

#include <memory>

namespace Ui
{
class StatisticCtl;
}

class StatisticCtl : public QWidget
{
    Q_OBJECT
public:
    explicit StatisticCtl(QWidget *parent = nullptr);
    ~StatisticCtl() override;

    // Reads the record's last edit; when it cannot be read the fields keep what they held.
    void Init(const QString &tablepath, const QString &tablename, qint32 rowid);
    void SetValue(const QString &by, const QString &on, const QString &at);
    void Clear();
    QString ModifiedBy() const;
    QString ModifiedOn() const;
    QString ModifiedAt() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    std::unique_ptr<Ui::StatisticCtl> m_ui;
};
