// The splash screen of the start-up, and the same as the About box.
#pragma once

#include <QDialog>
#include <QTimer>

#include <memory>

namespace Ui
{
class frmSplash;
}

class frmSplash : public QDialog
{
    Q_OBJECT
public:
    static constexpr int minimumTime = 3000; // milliseconds

    explicit frmSplash(QWidget *parent = nullptr);
    ~frmSplash() override;

    // True during start-up: clicks do nothing and the minimum time runs from now on. False: a
    // click anywhere closes the form, and one on the web site's name opens the site.
    bool SmartUnload() const { return m_bSmartUnload; }
    void setSmartUnload(bool on);
    bool minimumTimePassed() const { return m_bTimePassed; }

    void reject() override;

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void fillLabels();

    std::unique_ptr<Ui::frmSplash> ui;
    QTimer m_timer;
    bool m_bSmartUnload = false;
    bool m_bTimePassed = false;
};
