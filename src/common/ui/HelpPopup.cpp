#include "common/ui/HelpPopup.h"

#include "common/ui/HelpPage.h"
#include "common/ui/HelpText.h"

#include <QRegularExpression>
#include <QScreen>
#include <QVBoxLayout>

#include <memory>

HelpPopup::HelpPopup(const QString &file, int topic, QWidget *parent) : QFrame(parent, Qt::Popup)
{
    setFrameStyle(QFrame::Panel | QFrame::Plain);
    auto *page = new HelpPage(this);
    page->setFrameShape(QFrame::NoFrame);
    page->setAccessibleName(tr("Help"));
    page->read(file);
    QString chapter = chapterHtml(*page->document(), helpAnchor(topic));
    // Its pictures are wider than this.
    chapter.remove(QRegularExpression(QStringLiteral("<img [^>]*>")));
    if (!chapter.isEmpty())
        page->setHtml(chapter);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(page);
    setFocusProxy(page);
    const QSize letters(fontMetrics().averageCharWidth(), fontMetrics().height());
    // A copy is measured: the page lays its own text out for the width it has now.
    const std::unique_ptr<QTextDocument> text(page->document()->clone());
    text->setTextWidth(letters.width() * 66);
    const int height = static_cast<int>(text->size().height()) + letters.height();
    resize(letters.width() * 68, qMin(height, letters.height() * 20));
}

void HelpPopup::showOverParent()
{
    const QRect space = screen()->availableGeometry();
    QRect place = rect();
    const QRect over = parentWidget() != nullptr ? parentWidget()->frameGeometry() : space;
    place.moveCenter(over.center());
    place.moveRight(qMin(place.right(), space.right()));
    place.moveBottom(qMin(place.bottom(), space.bottom()));
    place.moveLeft(qMax(place.left(), space.left()));
    place.moveTop(qMax(place.top(), space.top()));
    move(place.topLeft());
    show();
    setFocus();
}
