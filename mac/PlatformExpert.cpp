#include "mac/PlatformExpert.h"

#include <QStringDecoder>

#include "common/FatalError.h"
#include "common/NumberConversion.h"
#include "platform/IORegistry.h"

namespace quindle {

namespace {

QVariant expertProperty(IORegistry& registry, const QString& key)
{
    const RegistryObject expert = registry.serviceMatchingClass(QStringLiteral("IOPlatformExpertDevice"));
    if (expert == 0)
        return {};
    QVariant value = registry.property(expert, key);
    // Released at once: the entry never changes, so nothing is gained by holding it.
    registry.release(expert);
    return value;
}

std::optional<QString> strictUtf8(const QByteArray& bytes)
{
    QStringDecoder decode(QStringConverter::Utf8,
                          QStringConverter::Flag::Stateless | QStringConverter::Flag::ConvertInitialBom);
    QString text = decode(bytes);
    if (decode.hasError())
        return std::nullopt;
    // An empty identifier counts as read; without one the computer's identifier is made differently.
    return text.isNull() ? QStringLiteral("") : text;
}

} // namespace

std::optional<QString> readModelIdentifier(IORegistry& registry)
{
    const QVariant value = expertProperty(registry, QStringLiteral("model"));
    if (!value.isValid())
        return std::nullopt;
    // inherited: fatal; a registry holds the model as data, never as text.
    if (value.typeId() != QMetaType::QByteArray)
        fatalError(u"model has an unexpected type in the registry");
    QByteArray bytes = value.toByteArray();
    // The data is a C string with its NUL, which would spoil every comparison.
    const qsizetype end = bytes.indexOf('\0');
    if (end >= 0)
        bytes.truncate(end);
    return strictUtf8(bytes);
}

std::optional<QString> readSerialNumber(IORegistry& registry)
{
    const QVariant value = expertProperty(registry, QStringLiteral("IOPlatformSerialNumber"));
    if (!value.isValid())
        return std::nullopt;
    auto serial = convertToText(value);
    if (!serial)
        fatalError(u"IOPlatformSerialNumber has an unexpected type in the registry");
    return serial;
}

} // namespace quindle
