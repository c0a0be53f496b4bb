#include "ctl/Command.h"

#include <algorithm>

namespace ctl
{

namespace
{

constexpr int OptionColumn = 16;
constexpr int PageWidth = 90;

bool needed(const QString &word)
{
    return !word.startsWith(u'[');
}

const Option *findOption(const Command &command, const QString &name)
{
    const auto found = std::find_if(command.options.begin(), command.options.end(),
                                    [&](const Option &option) { return option.name == name; });
    return found == command.options.end() ? nullptr : &*found;
}

// Takes the option at the front of `rest`, with its value.
bool takeOption(const Command &command, QStringList &rest, Arguments &arguments, QString &error)
{
    const QString word = rest.takeFirst();
    const QString name = word.section(u'=', 0, 0);
    const bool joined = word.contains(u'=');
    const Option *option = findOption(command, name);
    if (option == nullptr) {
        error = QStringLiteral("unknown option '%1'").arg(name);
        return false;
    }
    if (option->value.isEmpty()) {
        if (joined)
            error = QStringLiteral("option '%1' takes no value").arg(name);
        arguments.values.insert(name, QString());
        return !joined;
    }
    if (!joined && rest.isEmpty()) {
        error = QStringLiteral("option '%1' wants a value: %1 %2").arg(name, option->value);
        return false;
    }
    arguments.values.insert(name, joined ? word.section(u'=', 1) : rest.takeFirst());
    return true;
}

} // namespace

QString Command::usage() const
{
    QStringList parts{name};
    parts += words;
    for (const Option &option : options)
        parts << (option.value.isEmpty()
                      ? QStringLiteral("[%1]").arg(option.name)
                      : QStringLiteral("[%1 %2]").arg(option.name, option.value));
    return parts.join(u' ');
}

QString Command::helpPage() const
{
    QString page = QStringLiteral("Usage: norvanectl %1\n\n%2.\n").arg(usage(), summary);
    if (!details.isEmpty())
        page += QStringLiteral("\n%1\n").arg(details);
    if (!options.isEmpty())
        page += QStringLiteral("\nOptions:\n");
    for (const Option &option : options) {
        const QString head = QStringLiteral("%1 %2").arg(option.name, option.value).trimmed();
        page += QStringLiteral("  %1%2\n").arg(head.leftJustified(OptionColumn), option.help);
    }
    return page;
}

bool parseArguments(const Command &command, const QStringList &words, Arguments &arguments,
                    QString &error)
{
    QStringList rest = words;
    bool onlyWords = false; // after "--" nothing is an option
    while (!rest.isEmpty()) {
        if (!onlyWords && rest.first() == u"--") {
            onlyWords = true;
            rest.removeFirst();
        } else if (!onlyWords && rest.first().startsWith(u'-') && rest.first().size() > 1) {
            if (!takeOption(command, rest, arguments, error))
                return false;
        } else {
            arguments.words << rest.takeFirst();
        }
    }
    const auto least = std::count_if(command.words.begin(), command.words.end(), needed);
    if (arguments.words.size() < least) {
        error = QStringLiteral("%1 is missing").arg(command.words.at(arguments.words.size()));
        return false;
    }
    if (arguments.words.size() > command.words.size()) {
        error = QStringLiteral("'%1' is one word too many")
                    .arg(arguments.words.at(command.words.size()));
        return false;
    }
    if (std::any_of(arguments.words.begin(), arguments.words.end(),
                    [](const QString &word) { return word.isEmpty(); })) {
        error = QStringLiteral("an empty word was given");
        return false;
    }
    return true;
}

QString wrappedList(const QStringList &items)
{
    QString text;
    QString line = QStringLiteral(" ");
    for (const QString &item : items) {
        if (line.size() + item.size() + 2 > PageWidth) {
            text += line + u'\n';
            line = QStringLiteral(" ");
        }
        line += u' ' + item + (item == items.last() ? QString() : QStringLiteral(","));
    }
    return text + line;
}

} // namespace ctl
