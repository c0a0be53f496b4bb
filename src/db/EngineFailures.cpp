#include "db/EngineFailures.h"

#include "common/base/Prompts.h"

#include <QCoreApplication>
#include <QFile>

#include <utility>

using norvane::engine::Error;
using norvane::engine::ErrorKind;

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(EngineFailures)
};

QString fileName(const Error &error)
{
    return QString::fromStdString(error.file);
}

QString notFoundText(const Error &error)
{
    const QString file = fileName(error);
    if (QFile::exists(file)) {
        return Words::tr("The file '%1' lacks a part that this program works with: %2.")
            .arg(file, QString::fromStdString(error.detail));
    }
    return Words::tr("The file '%1' is missing. All files of a database must be together in "
                     "its folder. Please restore the data folder from your latest backup.")
        .arg(file);
}

QString damageText(const Error &error)
{
    const QString file = fileName(error);
    QString text = Words::tr("The file '%1' is damaged").arg(file);
    if (error.place >= 0)
        text += Words::tr(" (at %1)").arg(error.place);
    text += Words::tr(".\n\nPlease make a copy of the whole data folder first. ");
    if (file.endsWith(u".cdx", Qt::CaseInsensitive)) {
        text += Words::tr("Then choose Database Maintenance to re-index this file. Your data is "
                          "not in it and is not lost.");
    } else {
        text += Words::tr("Then choose Database Maintenance to re-index the table, or restore the "
                          "data folder from your latest backup.");
    }
    return text;
}

// The text itself, or the row's pointer to it.
bool isMemoDamage(const Error &error)
{
    return error.kind == ErrorKind::Damaged &&
           (fileName(error).endsWith(u".fpt", Qt::CaseInsensitive) ||
            error.detail.starts_with("a memo pointer"));
}

} // namespace

void EngineFailures::note(const Error &error)
{
    if (m_passingOverMemos > 0 && isMemoDamage(error))
        return;
    if (!m_first && error.kind != ErrorKind::Locked)
        m_first = error;
}

void EngineFailures::show(QStringList *told)
{
    const Error error = std::exchange(m_first, {});
    if (!error)
        return;
    const QString text = engineFailureText(error);
    if (told != nullptr && told->contains(text))
        return;
    if (told != nullptr)
        told->append(text);
    prompts::critical(text);
}

QString engineFailureText(const Error &error)
{
    const QString file = fileName(error);
    switch (error.kind) {
    case ErrorKind::NotFound:
        return notFoundText(error);
    case ErrorKind::Locked:
        return Words::tr("The file '%1' is in use by another workstation. Please try again "
                         "in a moment.")
            .arg(file);
    case ErrorKind::ReadOnly:
        return Words::tr("The file '%1' cannot be changed: it or its folder is read-only for "
                         "you. Please ask your administrator for the right to change files "
                         "in the data folder.")
            .arg(file);
    case ErrorKind::Damaged:
        return damageText(error);
    case ErrorKind::Refused:
        return Words::tr("The file '%1' holds something this program does not work with: %2.")
            .arg(file, QString::fromStdString(error.detail));
    case ErrorKind::NoSpace:
        return Words::tr("The disk that holds '%1' is full. Nothing was saved. Please make "
                         "room and save again.")
            .arg(file);
    case ErrorKind::TooLarge:
        return Words::tr("The file '%1' has reached the largest size it can have. Nothing "
                         "was saved.")
            .arg(file);
    case ErrorKind::Gone:
        return Words::tr("The file '%1' cannot be reached any more. If the data folder is on "
                         "another computer, please verify that computer is up and running, "
                         "and then try again.")
            .arg(file);
    case ErrorKind::NoMemory:
        return Words::tr("There is not enough memory. Nothing was saved. Please close other "
                         "programs and try again.");
    case ErrorKind::None:
    case ErrorKind::Misuse:
    case ErrorKind::Io:
        break;
    }
    return Words::tr("The file '%1' could not be read or written: %2.")
        .arg(file, QString::fromStdString(error.detail));
}
