#pragma once

#include <vector>

#include <QString>

namespace quindle {

struct TitleValues;

/// One placeholder of the title template, explained to users.
struct Placeholder
{
    QString text;        ///< "%p"
    const char* meaning; ///< what it stands for, with its unit; marked for translators in "Placeholders"
    bool (*isKnown)(const TitleValues&);
};

/// All of them, in the order in which they are replaced.
const std::vector<Placeholder>& placeholderTable();

/// What a placeholder gives at the moment; an en dash for what is not known, where a title has what the
/// battery's figures give ("0.0", "nan").
QString presentValue(const Placeholder& placeholder, const TitleValues& values);

} // namespace quindle
