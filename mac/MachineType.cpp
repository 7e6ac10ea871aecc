#include "mac/MachineType.h"

#include <array>

#include "mac/FragmentName.h"

namespace quindle {

namespace {

// The first fragment found anywhere in the identifier decides; "MacBook" is last because it is part of
// others.
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

} // namespace quindle
