// The Help Center: who is logged in where, the clock, and a link to each kind of help.
#pragma once

#include "common/ui/FormWindow.h"

#include <QTimer>

#include <functional>
#include <memory>

namespace Ui
{
class frmWelcome;
}

// What the links do; given by the main window.
struct WelcomeLink {
    QString icon;
    QString text;
    bool needsDatabase = false;
    std::function<void()> open;
};

class frmWelcome : public FormWindow
{
    Q_OBJECT
public:
    explicit frmWelcome(const QList<WelcomeLink> &links, QWidget *parent = nullptr);
    ~frmWelcome() override;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void addLinks(const QList<WelcomeLink> &links);
    void fillTexts();

    std::unique_ptr<Ui::frmWelcome> ui;
    QTimer m_timer;
};

// Whether the person wants the Help Center at each start.
bool welcomeWantedAtStartup();
