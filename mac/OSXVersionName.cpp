#include "mac/OSXVersionName.h"

#include <array>

#include "common/ValueDescription.h"
#include "mac/MachineType.h"
#include "platform/Bundle.h"

namespace quindle {

namespace {

// inherited: the first fragment found anywhere in the version decides, so the order matters; the two newest
// have no name of their own.
constexpr std::array versionNames{
    // clang-format off
    FragmentName{u"10.14", u"OS X"},
    FragmentName{u"10.13", u"OS X"},
    FragmentName{u"10.12", u"macOS Sierra"},
    FragmentName{u"10.11", u"OS X El Capitan"},
    FragmentName{u"10.10", u"OS X Yosemite"},
    FragmentName{u"10.9", u"OS X Mavericks"},
    FragmentName{u"10.8", u"Mac OS X Mountain Lion"},
    FragmentName{u"10.7", u"Mac OS X Lion"},
    FragmentName{u"10.6", u"Mac OS X Snow Leopard"},
    // clang-format on
};

} // namespace

QString osxVersionName(const QString& productVersion)
{
    return nameByFragment(versionNames, productVersion, QStringLiteral("OS X"));
}

std::optional<QString> shortVersion(const Bundle& bundle)
{
    const auto info = bundle.infoDictionary();
    if (!info)
        return std::nullopt;
    const QVariant version = info->value(QStringLiteral("CFBundleShortVersionString"));
    if (!version.isValid())
        return std::nullopt;
    // Whatever its type: records hold its textual form.
    return valueDescription(version);
}

} // namespace quindle
