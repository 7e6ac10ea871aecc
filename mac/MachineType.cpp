#include "mac/MachineType.h"

#include <algorithm>
#include <array>

namespace quindle {

namespace {

// The first fragment found anywhere in the identifier decides, so "iMacPro1,1" is an iMac; "MacBook" is last
// because it is part of others.
constexpr std::array machineTypes{
    // clang-format off
    FragmentName{u"MacBookPro", u"MacBook Pro"},
    FragmentName{u"MacBookAir", u"MacBook Air"},
    FragmentName{u"iMac", u"iMac"},
    FragmentName{u"Macmini", u"Mac mini"},
    FragmentName{u"MacPro", u"Mac Pro"},
    FragmentName{u"PowerMac", u"Power Mac"},
    FragmentName{u"MacBook", u"MacBook"},
    // clang-format on
};

} // namespace

QString machineType(const QString& model)
{
    return nameByFragment(machineTypes, model, QStringLiteral(""));
}

QString nameByFragment(std::span<const FragmentName> rows, const QString& text, const QString& fallback)
{
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [&](const FragmentName& each) { return text.contains(each.fragment); });
    return row == rows.end() ? fallback : row->name.toString();
}

} // namespace quindle
