#include "db/FieldText.h"

#include "common/base/Ansi.h"
#include "common/base/Prompts.h"

#include <QCoreApplication>

#include <string_view>

using namespace norvane::engine;

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(FieldText)
};

// Longer memos can be written but are not read.
constexpr std::uint32_t MemoReadLimit = 32768;

std::string_view view(const QByteArray &bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

} // namespace

QByteArray toStored(const QString &text)
{
    return toAnsi(text);
}

QString fromStored(const char *bytes, qsizetype length)
{
    return bytes == nullptr ? QString() : fromAnsi(QByteArrayView(bytes, length));
}

QString FieldText(Handle field)
{
    return field > 0 ? fromStored(f4ptr(field), static_cast<qsizetype>(f4len_v(field))) : QString();
}

void AssignText(Handle field, const QString &text)
{
    const QByteArray stored = toStored(text);
    f4assignNVB(field, view(stored), static_cast<std::uint32_t>(stored.size()));
}

QString MemoText(Handle field)
{
    if (field < 1)
        return {};
    const std::uint32_t length = f4memoLenVB(field);
    if (length < MemoReadLimit)
        return fromStored(f4memoPtr(field), static_cast<qsizetype>(length));

    const QString text = Words::tr("Error #: -910\nUnexpected Information\n"
                                   "Memo entry too long to return in String function. Try calling "
                                   "'f4memoStrB'.\nField Name:\n%1")
                             .arg(FieldNameText(field));
    prompts::critical(text, Words::tr("CodeBasic Error"));
    return {};
}

QString FieldNameText(Handle field)
{
    const char *name = f4name(field);
    return name == nullptr ? QString() : fromStored(name, static_cast<qsizetype>(qstrlen(name)));
}
