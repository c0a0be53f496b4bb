// The dialogs that installGuiDoors puts behind prompts::, one function a kind.
#pragma once

#include "common/base/Prompts.h"

class QWidget;

namespace guidialogs
{

void setMainWindow(QWidget *window);
QWidget *windowInUse(); // the modal one, else the active one, else the main window

// The hourglass rests while a person is asked.
class CursorPause
{
public:
    CursorPause();
    ~CursorPause();
    Q_DISABLE_COPY_MOVE(CursorPause)

private:
    bool m_busy;
};

prompts::Answer message(const prompts::Message &message);
void longText(const prompts::Message &message);
std::optional<QString> input(const QString &prompt, const QString &title, const QString &preset,
                             int helpContext);
QString folder(const QString &prompt, const QString &start);
QString openFile(const prompts::FileRequest &request);
QString saveFile(const prompts::FileRequest &request);
std::unique_ptr<prompts::Progress> progress(const QString &title, const QString &message, bool bar,
                                            bool cancel);

} // namespace guidialogs
