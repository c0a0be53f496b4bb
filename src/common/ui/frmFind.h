// A find box beside the text or list that it searches; not modal.
#pragma once

#include <QDialog>

#include <functional>
#include <memory>

class QPlainTextEdit;
namespace Ui
{
class frmFind;
}

class frmFind : public QDialog
{
    Q_OBJECT
public:
    struct Request {
        QString text;
        bool wholeWordOnly = false;
        bool matchCase = false;
        bool directionUp = false;
    };

    explicit frmFind(QWidget *parent);
    ~frmFind() override;

    // Who searches; it tells the person what it did not find.
    void setOwner(std::function<void(const Request &)> find);
    // A text box: selects what it finds, goes on from the other end when asked to.
    void setOwner(QPlainTextEdit *box);
    void setTitle(const QString &title);
    // Shows the form, in front, with its text ready to be typed over.
    void start();

private:
    void findNext();

    std::unique_ptr<Ui::frmFind> ui;
    std::function<void(const Request &)> m_find;
};

// Ctrl+F in the window opens a find box over the text; it lasts as long as the window.
void installFind(QWidget *window, QPlainTextEdit *box);
