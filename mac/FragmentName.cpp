#include "mac/FragmentName.h"

#include <algorithm>

namespace quindle {

QString nameByFragment(std::span<const FragmentName> rows, const QString& text, const QString& fallback)
{
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [&](const FragmentName& each) { return text.contains(each.fragment); });
    return row == rows.end() ? fallback : row->name.toString();
}

} // namespace quindle
