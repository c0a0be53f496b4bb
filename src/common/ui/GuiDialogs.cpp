#include "common/ui/GuiDialogs.h"

#include "common/base/AppInfo.h"
#include "common/base/Host.h"
#include "common/ui/frmMessage.h"
#include "common/ui/frmProgress.h"
#include "common/ui/GuiDoors.h"
#include "common/ui/Icons.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPointer>
#include <QRegularExpression>
#include <QScreen>
#include <QStyle>

using guidialogs::CursorPause;
using guidialogs::windowInUse;
using prompts::Answer;
using prompts::Kind;

namespace
{

QPointer<QWidget> &mainWindow()
{
    static QPointer<QWidget> window;
    return window;
}

QMessageBox::StandardButton buttonOf(Answer answer)
{
    switch (answer) {
    case Answer::Yes:
        return QMessageBox::Yes;
    case Answer::No:
        return QMessageBox::No;
    case Answer::Cancel:
        return QMessageBox::Cancel;
    case Answer::Ok:
        break;
    }
    return QMessageBox::Ok;
}

// Our own pictures: what the toolkit brings along for desktops without an icon theme is not for
// dark palettes, and has none for a lock.
QString pictureOf(Kind kind)
{
    switch (kind) {
    case Kind::Warning:
        return QStringLiteral("warning");
    case Kind::Critical:
        return QStringLiteral("critical");
    case Kind::Question:
        return QStringLiteral("question");
    case Kind::Locked:
        return QStringLiteral("locked");
    case Kind::Information:
        break;
    }
    return QStringLiteral("info");
}

void setPicture(QMessageBox &box, Kind kind)
{
    const int size = box.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &box);
    box.setIconPixmap(icon(pictureOf(kind)).pixmap(QSize(size, size), box.devicePixelRatioF()));
}

// What Esc and the close button of the frame mean: the button that does nothing.
Answer escapeOf(const QList<Answer> &buttons)
{
    for (const Answer harmless : {Answer::Cancel, Answer::No})
        if (buttons.contains(harmless))
            return harmless;
    return buttons.value(0, Answer::Ok);
}

// A name typed without an extension gets that of the chosen kind of file; the kind chosen first is
// that of the extension asked for.
void followFilter(QFileDialog &dialog, const QString &extension)
{
    static const QRegularExpression single(QStringLiteral("\\(\\*\\.(\\w+)\\)$"));
    dialog.setDefaultSuffix(extension);
    for (const QString &filter : dialog.nameFilters())
        if (!extension.isEmpty() && single.match(filter).captured(1) == extension)
            dialog.selectNameFilter(filter);
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     [&dialog, extension](const QString &filter) {
                         const QString own = single.match(filter).captured(1);
                         dialog.setDefaultSuffix(own.isEmpty() ? extension : own);
                     });
}

QString runFileDialog(QFileDialog &dialog, const prompts::FileRequest &request)
{
    const CursorPause pause;
    dialog.setNameFilters(guidoors::nameFilters(request.filter));
    followFilter(dialog, request.defaultExtension);
    const QFileInfo initial(QDir::fromNativeSeparators(request.initialName));
    if (request.initialName.contains(u'/') || request.initialName.contains(u'\\'))
        dialog.setDirectory(initial.absolutePath());
    if (!initial.fileName().isEmpty())
        dialog.selectFile(initial.fileName());
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return QDir::toNativeSeparators(dialog.selectedFiles().value(0));
}

class ProgressWindow : public prompts::Progress
{
public:
    ProgressWindow(const QString &title, const QString &message, bool bar, bool cancel)
        : m_form(new frmProgress(windowInUse()))
    {
        host().setBusy(true);
        m_form->Init(title, message, bar, cancel);
        m_form->Display();
    }
    // The form may be gone with the window it stood over.
    ~ProgressWindow() override
    {
        delete m_form.data();
        host().setBusy(false);
    }
    Q_DISABLE_COPY_MOVE(ProgressWindow)
    void setPercent(int percent) override
    {
        if (m_form)
            m_form->setPercent(percent);
    }
    void setMessage(const QString &message) override
    {
        if (m_form)
            m_form->setMessage(message);
    }
    bool cancelled() const override
    {
        const frmProgress *form = m_form.data();
        return form == nullptr || form->m_bCancel;
    }

private:
    QPointer<frmProgress> m_form;
};

} // namespace

QStringList guidoors::nameFilters(const QString &filter)
{
    static const QRegularExpression patternInLabel(QStringLiteral("\\s*\\([^()]*\\)\\s*$"));
    const QStringList parts = filter.split(u'|', Qt::SkipEmptyParts);
    QStringList result;
    for (qsizetype at = 0; at + 1 < parts.size(); at += 2) {
        QString label = parts[at].trimmed();
        label.remove(patternInLabel);
        QStringList patterns = parts[at + 1].split(u';', Qt::SkipEmptyParts);
        // Elsewhere than on Windows "*.*" would leave out names without a point.
        patterns.replaceInStrings(QStringLiteral("*.*"), QStringLiteral("*"));
        result.append(label + QLatin1String(" (") + patterns.join(u' ') + u')');
    }
    return result;
}

void guidialogs::setMainWindow(QWidget *window)
{
    mainWindow() = window;
}

QWidget *guidialogs::windowInUse()
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    if (QWidget *active = QApplication::activeWindow())
        return active;
    return mainWindow();
}

guidialogs::CursorPause::CursorPause() : m_busy(QGuiApplication::overrideCursor() != nullptr)
{
    if (m_busy)
        host().setBusy(false);
}

guidialogs::CursorPause::~CursorPause()
{
    if (m_busy)
        host().setBusy(true);
}

Answer guidialogs::message(const prompts::Message &message)
{
    const CursorPause pause;
    QMessageBox box(windowInUse());
    box.setWindowTitle(message.title.isEmpty() ? app::title() : message.title);
    box.setTextFormat(Qt::PlainText);
    box.setText(message.text);
    setPicture(box, message.kind);
    const QList<Answer> buttons =
        message.buttons.isEmpty() ? QList<Answer>{Answer::Ok} : message.buttons;
    for (const Answer button : buttons)
        box.addButton(buttonOf(button));
    box.setDefaultButton(buttonOf(message.preset));
    const Answer escape = escapeOf(buttons);
    box.setEscapeButton(buttonOf(escape));
    if (message.helpContext > 0)
        box.setProperty("helpTopic", message.helpContext);

    const int pressed = box.exec();
    for (const Answer button : buttons)
        if (pressed == buttonOf(button))
            return button;
    return escape;
}

void guidialogs::longText(const prompts::Message &message)
{
    const CursorPause pause;
    frmMessage form(windowInUse());
    form.Init(message.text, message.kind, message.helpContext);
    if (!message.title.isEmpty())
        form.setWindowTitle(message.title);
    form.exec();
}

std::optional<QString> guidialogs::input(const QString &prompt, const QString &title,
                                         const QString &preset, int helpContext)
{
    const CursorPause pause;
    QInputDialog dialog(windowInUse());
    dialog.setInputMode(QInputDialog::TextInput);
    dialog.setWindowTitle(title.isEmpty() ? app::title() : title);
    dialog.setLabelText(prompt);
    dialog.setTextValue(preset);
    if (helpContext > 0)
        dialog.setProperty("helpTopic", helpContext);
    dialog.resize(dialog.sizeHint().expandedTo({dialog.fontMetrics().averageCharWidth() * 60, 0}));
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.textValue();
}

QString guidialogs::folder(const QString &prompt, const QString &start)
{
    const CursorPause pause;
    QFileDialog dialog(windowInUse(), prompt, QDir::fromNativeSeparators(start));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    // What to choose stands in the title alone, so all of it has to be seen.
    const int titleWidth = dialog.fontMetrics().horizontalAdvance(prompt) * 3 / 2;
    dialog.resize(dialog.size().expandedTo({titleWidth, 0}).boundedTo(dialog.screen()->size()));
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return QDir::toNativeSeparators(dialog.selectedFiles().value(0));
}

QString guidialogs::openFile(const prompts::FileRequest &request)
{
    QFileDialog dialog(windowInUse(), request.title);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return runFileDialog(dialog, request);
}

QString guidialogs::saveFile(const prompts::FileRequest &request)
{
    QFileDialog dialog(windowInUse(), request.title);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    return runFileDialog(dialog, request);
}

std::unique_ptr<prompts::Progress>
guidialogs::progress(const QString &title, const QString &message, bool bar, bool cancel)
{
    return std::make_unique<ProgressWindow>(title, message, bar, cancel);
}
