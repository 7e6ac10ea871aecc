#include "mac/MachineType.h"

#include <array>

namespace quindle {

namespace {

struct MachineTypeName
{
    QStringView fragment;
    QStringView type;
};

// The first fragment found anywhere in the identifier decides; "MacBook" is last because it is part of
// others.
constexpr std::array machineTypes{
    // clang-format off
    MachineTypeName{u"MacBookPro", u"MacBook Pro"},
    MachineTypeName{u"MacBookAir", u"MacBook Air"},
    MachineTypeName{u"iMac", u"iMac"},
    MachineTypeName{u"Macmini", u"Mac mini"},
    MachineTypeName{u"MacPro", u"Mac Pro"},
    MachineTypeName{u"PowerMac", u"Power Mac"},
    MachineTypeName{u"MacBook", u"MacBook"},
    // clang-format on
};

} // namespace

QString machineType(const QString& model)
{
    for (const MachineTypeName& row : machineTypes)
        if (model.contains(row.fragment))
            return row.type.toString();
    return QStringLiteral("");
}

} // namespace quindle
