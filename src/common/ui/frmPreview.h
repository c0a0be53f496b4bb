// What a print command will put on paper, page by page, with the commands to print it or to save
// it as a PDF file.
#pragma once

#include "common/ui/PrintDoor.h"

#include <QDialog>

#include <memory>

class QPrinter;
class QPrintPreviewWidget;
namespace Ui
{
class frmPreview;
}

class frmPreview : public QDialog
{
    Q_OBJECT
public:
    explicit frmPreview(printing::Document document, QWidget *parent = nullptr);
    ~frmPreview() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void connectCommands();
    void layOut(QPrinter &printer);
    void turn(int pages);
    void showPageNumber();
    void savePdf();

    printing::Document m_document;
    std::unique_ptr<Ui::frmPreview> ui;
    std::unique_ptr<QPrinter> m_printer; // gives the size of a page, prints nothing
    QPrintPreviewWidget *m_pages;
    bool m_canBeSeen = false;
};
