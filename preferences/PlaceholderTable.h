#pragma once

#include <vector>

#include <QString>

namespace quindle {

/// One placeholder of the title template, as users read of it.
struct Placeholder
{
    QString text;    ///< "%p"
    QString meaning; ///< what it stands for, with its unit
};

/// All of them, in the order in which they are replaced.
const std::vector<Placeholder>& placeholderTable();

} // namespace quindle
