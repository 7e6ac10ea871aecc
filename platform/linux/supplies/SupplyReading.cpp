#include "platform/linux/supplies/SupplyReading.h"

#include <initializer_list>

namespace quindle {

namespace {

AttributeSet setOf(std::initializer_list<Attribute> attributes)
{
    AttributeSet set;
    for (const Attribute attribute : attributes)
        set.set(indexOf(attribute));
    return set;
}

AttributeSet allBut(std::initializer_list<Attribute> attributes)
{
    return ~setOf(attributes);
}

} // namespace

SupplyKind supplyKind(std::string_view type, std::string_view scope)
{
    if (scope == "Device")
        // The battery of a keyboard must not count as the computer's (pinephone-with-keyboard has both).
        return type == "Battery" ? SupplyKind::Peripheral : SupplyKind::Other;
    if (type == "Battery")
        return SupplyKind::Battery;
    if (type == "UPS")
        return SupplyKind::UninterruptibleSupply;
    // Older kernels write the port's mode into the type: USB_PD, USB_DCP, USB_C.
    if (type == "Mains" || type == "USB" || type.starts_with("USB_"))
        return SupplyKind::External;
    return SupplyKind::Other;
}

const AttributeSet& attributesOf(SupplyKind kind)
{
    static const AttributeSet none;
    static const AttributeSet battery =
        allBut({Attribute::Online, Attribute::CapacityLevel, Attribute::VoltageMax, Attribute::CurrentMax,
                Attribute::UsbType});
    static const AttributeSet external = setOf({Attribute::Type, Attribute::Online, Attribute::VoltageMax,
                                                Attribute::CurrentMax, Attribute::UsbType});
    static const AttributeSet peripheral = setOf(
        {Attribute::Present, Attribute::Online, Attribute::Status, Attribute::Capacity,
         Attribute::CapacityLevel, Attribute::Manufacturer, Attribute::ModelName, Attribute::SerialNumber});
    switch (kind) {
    case SupplyKind::Other:
        return none;
    case SupplyKind::Battery:
    case SupplyKind::UninterruptibleSupply:
        return battery;
    case SupplyKind::External:
        return external;
    case SupplyKind::Peripheral:
        break;
    }
    return peripheral;
}

} // namespace quindle
