#include "common/ui/HelpPage.h"

#include "common/base/clsSystem.h"
#include "common/ui/HelpText.h"

#include <QScrollBar>

HelpPage::HelpPage(QWidget *parent) : QTextBrowser(parent)
{
    setOpenLinks(false);
    connect(this, &QTextBrowser::anchorClicked, this, &HelpPage::follow);
}

bool HelpPage::read(const QString &file)
{
    setSource(QUrl::fromLocalFile(file), QTextDocument::HtmlResource);
    document()->setDocumentMargin(fontMetrics().averageCharWidth() * 2);
    return !document()->isEmpty();
}

void HelpPage::goTo(const QString &anchor)
{
    if (findAnchor(*document(), anchor) < 0) {
        moveCursor(QTextCursor::Start);
        verticalScrollBar()->setValue(0);
        return;
    }
    QUrl place = source();
    place.setFragment(anchor);
    setSource(place, QTextDocument::HtmlResource); // its history serves Back and Forward
}

void HelpPage::follow(const QUrl &link)
{
    const bool inside = link.isRelative() && link.path().isEmpty();
    if (inside)
        goTo(link.fragment());
    else
        gSys.GotoWebsite(link.toString(QUrl::FullyEncoded));
}

QString helpAnchor(int topic)
{
    return u't' + QString::number(topic);
}
