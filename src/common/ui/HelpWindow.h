// The help window: contents at the left, the manual at the right, Back, Forward and a search.
#pragma once

#include <QDialog>

class HelpPage;
class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

class HelpWindow : public QDialog
{
    Q_OBJECT
public:
    explicit HelpWindow(const QString &file, QWidget *parent = nullptr);

    // Topic 0, or one the manual does not know: its beginning.
    void showTopic(int topic);

private:
    void buildLayout();
    void fillContents();
    void find(bool backwards);
    void markChapterInView();

    HelpPage *m_page;
    QTreeWidget *m_contents;
    QLineEdit *m_find;
    QList<QTreeWidgetItem *> m_chapters; // in the order of the text
};
