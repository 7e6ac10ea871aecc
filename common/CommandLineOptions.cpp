#include "common/CommandLineOptions.h"

namespace quindle {

namespace {

bool names(const QString& argument, const CommandLineOption& option)
{
    const QLatin1String name(option.name);
    const bool hasValue = std::holds_alternative<std::optional<QString>*>(option.place);
    return argument == name || (hasValue && argument.startsWith(name + QStringLiteral("=")));
}

const CommandLineOption* optionNamed(const QString& argument, std::span<const CommandLineOption> options)
{
    for (const CommandLineOption& option : options)
        if (names(argument, option))
            return &option;
    return nullptr;
}

/// The value of the option at `index`, which is left on its last argument; nothing when it ends without one.
std::optional<QString> valueAt(qsizetype& index, const QStringList& arguments, OptionValues values)
{
    const QString& argument = arguments[index];
    if (const qsizetype sign = argument.indexOf(u'='); sign >= 0)
        return argument.mid(sign + 1);
    const bool isLast = index + 1 == arguments.size();
    if (values == OptionValues::Any)
        return isLast ? QString() : arguments[++index];
    if (isLast || arguments[index + 1].startsWith(u'-'))
        return std::nullopt;
    return arguments[++index];
}

} // namespace

QString readCommandLine(const QStringList& arguments, std::span<const CommandLineOption> options,
                        OptionValues values)
{
    for (qsizetype index = 0; index < arguments.size(); ++index) {
        const CommandLineOption* option = optionNamed(arguments[index], options);
        if (!option)
            return QStringLiteral("unknown argument \"%1\"").arg(arguments[index]);
        if (bool* const* flag = std::get_if<bool*>(&option->place)) {
            **flag = true;
            continue;
        }
        std::optional<QString>& place = *std::get<std::optional<QString>*>(option->place);
        if (auto value = valueAt(index, arguments, values))
            place = std::move(value);
        // An empty value too: "--machine=" would silently look at this computer.
        if (values == OptionValues::NotEmpty && place.value_or(QString()).isEmpty())
            return QStringLiteral("%1 needs a value").arg(QLatin1String(option->name));
    }
    return {};
}

} // namespace quindle
