#include "common/form/AttachmentList.h"

#include <QApplication>
#include <QDir>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>

AttachmentList::AttachmentList(QWidget *parent) : ListView(parent)
{
    setSelectionMode(SingleSelection);
    setAcceptDrops(true);
    setDropIndicatorShown(false);
}

std::unique_ptr<QMimeData> AttachmentList::selectedFile() const
{
    const QString name = LvGetSelectedItemText(this);
    if (name.isEmpty())
        return nullptr;
    auto file = std::make_unique<QMimeData>();
    const QString path = QFileInfo(QDir(m_folder).filePath(name)).absoluteFilePath();
    file->setUrls({QUrl::fromLocalFile(path)});
    return file;
}

// Nothing that is no file, and nothing that comes from this list itself.
QStringList AttachmentList::filesIn(const QDropEvent *event) const
{
    QStringList paths;
    if (m_acceptsFiles && event->source() != this) {
        for (const QUrl &url : event->mimeData()->urls()) {
            if (url.isLocalFile())
                paths.append(url.toLocalFile());
        }
    }
    return paths;
}

void AttachmentList::takeDrag(QDropEvent *event) const
{
    if (filesIn(event).isEmpty()) {
        event->ignore();
        return;
    }
    event->setDropAction(Qt::CopyAction); // the original stays where it is
    event->accept();
}

void AttachmentList::dragEnterEvent(QDragEnterEvent *event)
{
    takeDrag(event);
}

void AttachmentList::dragMoveEvent(QDragMoveEvent *event)
{
    takeDrag(event);
}

void AttachmentList::dropEvent(QDropEvent *event)
{
    takeDrag(event);
    if (event->isAccepted())
        QMetaObject::invokeMethod(
            this, [this, paths = filesIn(event)] { Q_EMIT filesDropped(paths); },
            Qt::QueuedConnection);
}

void AttachmentList::mousePressEvent(QMouseEvent *event)
{
    m_pressed = event->position().toPoint();
    m_pressedOnFile = event->button() == Qt::LeftButton && indexAt(m_pressed).isValid();
    ListView::mousePressEvent(event);
}

// Moving the mouse would select one row after the other; here it takes the file along.
void AttachmentList::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_pressedOnFile || !event->buttons().testFlag(Qt::LeftButton)) {
        ListView::mouseMoveEvent(event);
        return;
    }
    const QPoint way = event->position().toPoint() - m_pressed;
    if (way.manhattanLength() < QApplication::startDragDistance())
        return;
    m_pressedOnFile = false;
    dragOut();
}

void AttachmentList::dragOut()
{
    std::unique_ptr<QMimeData> file = selectedFile();
    if (file == nullptr)
        return;
    auto *drag = new QDrag(this);
    drag->setMimeData(file.release());
    drag->exec(Qt::CopyAction);
}
