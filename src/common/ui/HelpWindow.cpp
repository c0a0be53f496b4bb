#include "common/ui/HelpWindow.h"

#include "common/base/AppInfo.h"
#include "common/ui/HelpPage.h"
#include "common/ui/HelpText.h"
#include "common/ui/Icons.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace
{

constexpr int anchorRole = Qt::UserRole;
constexpr int positionRole = Qt::UserRole + 1;

} // namespace

HelpWindow::HelpWindow(const QString &file, QWidget *parent)
    : QDialog(parent),
      m_page(new HelpPage(this)),
      m_contents(new QTreeWidget(this)),
      m_find(new QLineEdit(this))
{
    setWindowFlags(Qt::Window);
    setWindowTitle(tr("%1 Help").arg(app::title()));
    setWindowIcon(icon(QStringLiteral("help")));
    m_page->read(file);
    fillContents();
    buildLayout();
    const QSize letters(fontMetrics().averageCharWidth(), fontMetrics().height());
    // The pictures of the manual are 600 pixels wide.
    const int page = qMax(letters.width() * 80, 680);
    resize(QSize(letters.width() * 50 + page, letters.height() * 44)
               .boundedTo(screen()->availableSize() * 9 / 10));
}

void HelpWindow::buildLayout()
{
    m_page->setAccessibleName(tr("Manual"));
    m_contents->setAccessibleName(tr("Contents"));
    m_contents->setHeaderHidden(true);
    m_contents->setRootIsDecorated(true);

    auto *back = new QPushButton(tr("&Back"), this);
    auto *forward = new QPushButton(tr("Fo&rward"), this);
    auto *close = new QPushButton(tr("&Close"), this);
    auto *next = new QPushButton(tr("Find &Next"), this);
    auto *findLabel = new QLabel(tr("F&ind:"), this);
    findLabel->setBuddy(m_find);
    m_find->setClearButtonEnabled(true);
    for (QPushButton *button : {back, forward, close, next})
        button->setAutoDefault(false);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(back, &QPushButton::clicked, m_page, &QTextBrowser::backward);
    connect(forward, &QPushButton::clicked, m_page, &QTextBrowser::forward);
    connect(m_page, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(m_page, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    connect(next, &QPushButton::clicked, this, [this] { find(false); });
    connect(m_find, &QLineEdit::returnPressed, this, [this] { find(false); });
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, m_find, [this] {
        m_find->setFocus();
        m_find->selectAll();
    });
    connect(new QShortcut(QKeySequence::FindNext, this), &QShortcut::activated, this,
            [this] { find(false); });
    connect(new QShortcut(QKeySequence::FindPrevious, this), &QShortcut::activated, this,
            [this] { find(true); });

    auto *bar = new QHBoxLayout;
    for (QWidget *part : std::initializer_list<QWidget *>{back, forward, findLabel, m_find, next})
        bar->addWidget(part);
    bar->insertStretch(2, 1);
    bar->setStretchFactor(m_find, 1);
    bar->addSpacing(fontMetrics().averageCharWidth() * 2);
    bar->addWidget(close);
    auto *split = new QSplitter(this);
    split->addWidget(m_contents);
    split->addWidget(m_page);
    split->setStretchFactor(1, 1);
    split->setChildrenCollapsible(false);
    const int letter = fontMetrics().averageCharWidth();
    m_contents->header()->setStretchLastSection(false);
    m_contents->resizeColumnToContents(0);
    const int titles = m_contents->columnWidth(0) + 5 * letter; // and a scroll bar
    m_contents->header()->setStretchLastSection(true);
    split->setSizes({qMin(titles, 50 * letter), 96 * letter});
    auto *all = new QVBoxLayout(this);
    all->addLayout(bar);
    all->addWidget(split, 1);
    QWidget *previous = m_contents;
    for (QWidget *part :
         std::initializer_list<QWidget *>{m_page, back, forward, m_find, next, close}) {
        setTabOrder(previous, part);
        previous = part;
    }
}

void HelpWindow::fillContents()
{
    QTreeWidgetItem *parent = nullptr;
    for (const HelpHeading &heading : helpHeadings(*m_page->document())) {
        if (heading.level == 1 || heading.anchor.isEmpty())
            continue; // the title of the whole
        const bool chapter = heading.level == 2 || parent == nullptr;
        auto *item = chapter ? new QTreeWidgetItem(m_contents) : new QTreeWidgetItem(parent);
        item->setText(0, heading.text);
        item->setData(0, anchorRole, heading.anchor);
        item->setData(0, positionRole, heading.position);
        if (chapter)
            parent = item;
        m_chapters.append(item);
    }
    connect(m_contents, &QTreeWidget::currentItemChanged, this,
            [this](const QTreeWidgetItem *item) {
                if (item != nullptr)
                    m_page->goTo(item->data(0, anchorRole).toString());
            });
    connect(m_page->verticalScrollBar(), &QScrollBar::valueChanged, this,
            &HelpWindow::markChapterInView);
}

void HelpWindow::showTopic(int topic)
{
    m_page->goTo(helpAnchor(topic));
    markChapterInView();
    m_page->setFocus();
}

void HelpWindow::find(bool backwards)
{
    const QString text = m_find->text();
    if (text.isEmpty())
        return;
    const auto direction = backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (m_page->find(text, direction))
        return;
    // once more from the other end
    const QTextCursor here = m_page->textCursor();
    m_page->moveCursor(backwards ? QTextCursor::End : QTextCursor::Start);
    if (!m_page->find(text, direction))
        m_page->setTextCursor(here);
}

// The contents follow the text as it is scrolled.
void HelpWindow::markChapterInView()
{
    const int position =
        m_page->cursorForPosition(QPoint(2, m_page->fontMetrics().height() * 2)).position();
    const auto behind = std::upper_bound(m_chapters.begin(), m_chapters.end(), position,
                                         [](int at, const QTreeWidgetItem *item) {
                                             return at < item->data(0, positionRole).toInt();
                                         });
    const QSignalBlocker blocker(m_contents);
    if (behind == m_chapters.begin())
        m_contents->setCurrentItem(nullptr);
    else
        m_contents->setCurrentItem(*std::prev(behind));
}
