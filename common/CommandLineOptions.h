#pragma once

#include <optional>
#include <span>
#include <variant>

#include <QString>
#include <QStringList>

namespace quindle {

/// A row of a program's table of options, with where to note that it was given. A flag has no value; any
/// other option has one, as "name value" or "name=value". The last of several counts.
struct CommandLineOption
{
    const char* name; ///< in ASCII, with its dashes
    std::variant<bool*, std::optional<QString>*> place;
};

/// What a program accepts as the value of an option.
enum class OptionValues {
    Any,     ///< whatever follows, even an option; an empty text at the end of the line
    NotEmpty ///< what begins with a dash is the next option, unless it is given as "name=-value"
};

/// Notes what the arguments (without the program's name) say, up to the first that is wrong.
/// @return why that one is wrong, one line; empty when none is
QString readCommandLine(const QStringList& arguments, std::span<const CommandLineOption> options,
                        OptionValues values);

} // namespace quindle
