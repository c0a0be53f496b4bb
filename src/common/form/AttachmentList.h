// The list of a record's attachments as a place for files: they can be dropped on it, and dragged
// out of it into other programs.
#pragma once

#include "common/ui/ListView.h"

#include <QPoint>

#include <memory>

class QMimeData;

class AttachmentList : public ListView
{
    Q_OBJECT
public:
    explicit AttachmentList(QWidget *parent = nullptr);

    void setAcceptsFiles(bool accepts) { m_acceptsFiles = accepts; }
    // Where the files lie that are listed.
    void setFolder(const QString &path) { m_folder = path; }
    // The selected file as other programs take it; null when none is selected.
    std::unique_ptr<QMimeData> selectedFile() const;

Q_SIGNALS:
    // After the drop is over, so that questions do not hold the other program up.
    void filesDropped(const QStringList &paths);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    void takeDrag(QDropEvent *event) const;
    QStringList filesIn(const QDropEvent *event) const;
    void dragOut();

    QString m_folder;
    QPoint m_pressed;
    bool m_pressedOnFile = false;
    bool m_acceptsFiles = false;
};
