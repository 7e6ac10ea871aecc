#include "platform/macos/system/CfValues.h"

#include <cmath>
#include <vector>

#include <QDateTime>

namespace quindle {

namespace {

constexpr int mostLevels = 512;

// Core Foundation counts from the beginning of 2001.
constexpr double secondsTo2001 = 978307200.0;

// Within QDateTime's years, and exact in milliseconds.
constexpr double farthestSeconds = 1e12;

QVariant anyValue(CFTypeRef object, int levels);

template <typename Reference>
Reference as(CFTypeRef object)
{
    return static_cast<Reference>(object);
}

QVariant text(CFTypeRef object, int /*levels*/)
{
    const auto string = as<CFStringRef>(object);
    const CFIndex length = CFStringGetLength(string);
    std::vector<UniChar> characters(static_cast<std::size_t>(length));
    CFStringGetCharacters(string, {0, length}, characters.data());
    return QString(reinterpret_cast<const QChar*>(characters.data()), length);
}

QVariant number(CFTypeRef object, int /*levels*/)
{
    const auto cfNumber = as<CFNumberRef>(object);
    double real = 0;
    qint64 integer = 0;
    // Whether anything was lost does not matter: there is no better value.
    if (CFNumberIsFloatType(cfNumber)) {
        CFNumberGetValue(cfNumber, kCFNumberDoubleType, &real);
        return real;
    }
    CFNumberGetValue(cfNumber, kCFNumberSInt64Type, &integer);
    return integer;
}

QVariant boolean(CFTypeRef object, int /*levels*/)
{
    return CFBooleanGetValue(as<CFBooleanRef>(object)) != 0;
}

QVariant data(CFTypeRef object, int /*levels*/)
{
    const auto cfData = as<CFDataRef>(object);
    return QByteArray(reinterpret_cast<const char*>(CFDataGetBytePtr(cfData)), CFDataGetLength(cfData));
}

QVariant date(CFTypeRef object, int /*levels*/)
{
    const double seconds = CFDateGetAbsoluteTime(as<CFDateRef>(object)) + secondsTo2001;
    // NaN too.
    if (!(std::fabs(seconds) < farthestSeconds))
        return {};
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(std::llround(seconds * 1000.0)));
}

QVariantList list(const std::vector<CFTypeRef>& objects, int levels)
{
    QVariantList values;
    for (const CFTypeRef object : objects)
        if (QVariant value = anyValue(object, levels); value.isValid())
            values.append(std::move(value));
    return values;
}

QVariant array(CFTypeRef object, int levels)
{
    const auto cfArray = as<CFArrayRef>(object);
    std::vector<CFTypeRef> objects;
    for (CFIndex index = 0; index < CFArrayGetCount(cfArray); ++index)
        objects.push_back(CFArrayGetValueAtIndex(cfArray, index));
    return list(objects, levels);
}

QVariant set(CFTypeRef object, int levels)
{
    const auto cfSet = as<CFSetRef>(object);
    std::vector<CFTypeRef> objects(static_cast<std::size_t>(CFSetGetCount(cfSet)));
    CFSetGetValues(cfSet, objects.data());
    return list(objects, levels);
}

bool isText(CFTypeRef object)
{
    return object && CFGetTypeID(object) == CFStringGetTypeID();
}

QVariant dictionary(CFTypeRef object, int levels)
{
    const auto cfDictionary = as<CFDictionaryRef>(object);
    const auto count = static_cast<std::size_t>(CFDictionaryGetCount(cfDictionary));
    std::vector<CFTypeRef> keys(count);
    std::vector<CFTypeRef> objects(count);
    CFDictionaryGetKeysAndValues(cfDictionary, keys.data(), objects.data());
    QVariantMap values;
    for (std::size_t index = 0; index < count; ++index) {
        const QVariant value = anyValue(objects[index], levels);
        if (isText(keys[index]) && value.isValid())
            values.insert(textFromCf(keys[index]), value);
    }
    return values;
}

struct Conversion
{
    CFTypeID (*type)();
    QVariant (*convert)(CFTypeRef object, int levels);
};

constexpr Conversion conversions[] = {
    {&CFStringGetTypeID, &text},     {&CFNumberGetTypeID, &number},
    {&CFBooleanGetTypeID, &boolean}, {&CFDataGetTypeID, &data},
    {&CFDateGetTypeID, &date},       {&CFArrayGetTypeID, &array},
    {&CFSetGetTypeID, &set},         {&CFDictionaryGetTypeID, &dictionary},
};

QVariant anyValue(CFTypeRef object, int levels)
{
    if (!object || levels == 0)
        return {};
    const CFTypeID type = CFGetTypeID(object);
    for (const Conversion& conversion : conversions)
        if (conversion.type() == type)
            return conversion.convert(object, levels - 1);
    return {};
}

CfOwned<CFTypeRef> cfInteger(qint64 integer)
{
    return CfOwned<CFTypeRef>(CFNumberCreate(kCFAllocatorDefault, kCFNumberSInt64Type, &integer));
}

CfOwned<CFTypeRef> cfReal(double real)
{
    return CfOwned<CFTypeRef>(CFNumberCreate(kCFAllocatorDefault, kCFNumberDoubleType, &real));
}

CfOwned<CFTypeRef> cfBoolean(bool isTrue)
{
    return CfOwned<CFTypeRef>(CFRetain(isTrue ? kCFBooleanTrue : kCFBooleanFalse));
}

CfOwned<CFTypeRef> cfData(const QByteArray& bytes)
{
    return CfOwned<CFTypeRef>(
        CFDataCreate(kCFAllocatorDefault, reinterpret_cast<const UInt8*>(bytes.constData()), bytes.size()));
}

CfOwned<CFTypeRef> cfDate(const QDateTime& moment)
{
    if (!moment.isValid())
        return {};
    const double seconds = static_cast<double>(moment.toMSecsSinceEpoch()) / 1000.0 - secondsTo2001;
    return CfOwned<CFTypeRef>(CFDateCreate(kCFAllocatorDefault, seconds));
}

CfOwned<CFTypeRef> cfArray(const QVariantList& values)
{
    CfOwned<CFMutableArrayRef> objects(CFArrayCreateMutable(kCFAllocatorDefault, 0, &kCFTypeArrayCallBacks));
    for (const QVariant& value : values)
        if (const auto object = cfFromValue(value))
            CFArrayAppendValue(objects.get(), object.get());
    return CfOwned<CFTypeRef>(objects.release());
}

CfOwned<CFTypeRef> cfDictionary(const QVariantMap& values)
{
    CfOwned<CFMutableDictionaryRef> objects(CFDictionaryCreateMutable(
        kCFAllocatorDefault, 0, &kCFTypeDictionaryKeyCallBacks, &kCFTypeDictionaryValueCallBacks));
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        if (const auto object = cfFromValue(value.value()))
            CFDictionarySetValue(objects.get(), cfFromText(value.key()).get(), object.get());
    return CfOwned<CFTypeRef>(objects.release());
}

} // namespace

QVariant valueFromCf(CFTypeRef object)
{
    return anyValue(object, mostLevels);
}

QVariantMap mapFromCf(CFTypeRef object)
{
    return valueFromCf(object).toMap();
}

QString textFromCf(CFTypeRef object)
{
    return isText(object) ? valueFromCf(object).toString() : QString();
}

CfOwned<CFTypeRef> cfFromValue(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return CfOwned<CFTypeRef>(cfFromText(value.toString()).release());
    case QMetaType::LongLong:
    case QMetaType::Int:
        return cfInteger(value.toLongLong());
    case QMetaType::Double:
        return cfReal(value.toDouble());
    case QMetaType::Bool:
        return cfBoolean(value.toBool());
    case QMetaType::QDateTime:
        return cfDate(value.toDateTime());
    case QMetaType::QByteArray:
        return cfData(value.toByteArray());
    case QMetaType::QVariantList:
        return cfArray(value.toList());
    case QMetaType::QVariantMap:
        return cfDictionary(value.toMap());
    default:
        return {};
    }
}

CfOwned<CFStringRef> cfFromText(const QString& text)
{
    return CfOwned<CFStringRef>(CFStringCreateWithCharacters(
        kCFAllocatorDefault, reinterpret_cast<const UniChar*>(text.utf16()), text.size()));
}

} // namespace quindle
