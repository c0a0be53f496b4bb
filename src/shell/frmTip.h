// The tip of the day: one tip at random out of a text file with a tip in each line.
#pragma once

#include "common/ui/FormWindow.h"

#include <QRandomGenerator>
#include <QStringList>

#include <memory>

namespace Ui
{
class frmTip;
}

class frmTip : public FormWindow
{
    Q_OBJECT
public:
    explicit frmTip(QWidget *parent = nullptr);
    ~frmTip() override;

    // Reads the file, one tip a line, and shows one of them; false (and a text that tells how to
    // make the file) when it is missing or empty.
    bool LoadTips(const QString &file);

private:
    void showNextTip();
    void DisplayCurrentTip();

    std::unique_ptr<Ui::frmTip> ui;
    QRandomGenerator m_random;
    QStringList m_tips;
    qsizetype m_current = 0;
};

// Whether the person wants a tip at each start.
bool tipWantedAtStartup();
