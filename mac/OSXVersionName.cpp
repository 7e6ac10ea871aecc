#include "mac/OSXVersionName.h"

#include <array>

namespace quindle {

namespace {

struct VersionName
{
    QStringView fragment;
    QStringView name;
};

// The first fragment found anywhere in the version decides, so the order matters. The two newest have no name
// of their own on purpose.
constexpr std::array versionNames{
    // clang-format off
    VersionName{u"10.14", u"OS X"},
    VersionName{u"10.13", u"OS X"},
    VersionName{u"10.12", u"macOS Sierra"},
    VersionName{u"10.11", u"OS X El Capitan"},
    VersionName{u"10.10", u"OS X Yosemite"},
    VersionName{u"10.9", u"OS X Mavericks"},
    VersionName{u"10.8", u"Mac OS X Mountain Lion"},
    VersionName{u"10.7", u"Mac OS X Lion"},
    VersionName{u"10.6", u"Mac OS X Snow Leopard"},
    // clang-format on
};

} // namespace

QString osxVersionName(const QString& productVersion)
{
    for (const VersionName& row : versionNames)
        if (productVersion.contains(row.fragment))
            return row.name.toString();
    return QStringLiteral("OS X");
}

} // namespace quindle
