#include "tests/platform/macos/FakeCoreFoundation.h"

using quindle::FakeObject;

// Opaque to who uses them.
struct CFArrayCallBacks
{
};
struct CFDictionaryKeyCallBacks
{
};
struct CFDictionaryValueCallBacks
{
};

namespace quindle {

int FakeObject::alive = 0;

FakeObject::FakeObject(Type objectType)
    : type(objectType)
{
    ++alive;
}

FakeObject::~FakeObject()
{
    --alive;
    for (const CFTypeRef member : members)
        CFRelease(member);
    for (const auto& [key, value] : entries) {
        CFRelease(key);
        CFRelease(value);
    }
}

} // namespace quindle

namespace {

const FakeObject& object(CFTypeRef reference)
{
    return *static_cast<const FakeObject*>(reference);
}

FakeObject& changeable(CFTypeRef reference)
{
    return *const_cast<FakeObject*>(static_cast<const FakeObject*>(reference));
}

CFBooleanRef makeBoolean(bool isTrue)
{
    auto* made = new FakeObject(FakeObject::Boolean);
    made->boolean = isTrue;
    --FakeObject::alive;
    return reinterpret_cast<CFBooleanRef>(made);
}

} // namespace

extern "C" {
const CFAllocatorRef kCFAllocatorDefault = nullptr;
const CFBooleanRef kCFBooleanTrue = makeBoolean(true);
const CFBooleanRef kCFBooleanFalse = makeBoolean(false);
const CFArrayCallBacks kCFTypeArrayCallBacks{};
const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks{};
const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks{};

CFTypeRef CFRetain(CFTypeRef value)
{
    ++changeable(value).references;
    return value;
}

void CFRelease(CFTypeRef value)
{
    if (--changeable(value).references == 0)
        delete &object(value);
}

CFTypeID CFGetTypeID(CFTypeRef value)
{
    return object(value).type;
}

CFTypeID CFStringGetTypeID()
{
    return FakeObject::String;
}

CFIndex CFStringGetLength(CFStringRef text)
{
    return static_cast<CFIndex>(object(text).text.size());
}

void CFStringGetCharacters(CFStringRef text, CFRange range, UniChar* buffer)
{
    for (CFIndex index = 0; index < range.length; ++index)
        buffer[index] = object(text).text.at(static_cast<std::size_t>(range.location + index));
}

CFStringRef CFStringCreateWithCharacters(CFAllocatorRef, const UniChar* characters, CFIndex count)
{
    auto* made = new FakeObject(FakeObject::String);
    made->text.assign(characters, characters + count);
    return reinterpret_cast<CFStringRef>(made);
}

CFTypeID CFNumberGetTypeID()
{
    return FakeObject::Number;
}

Boolean CFNumberIsFloatType(CFNumberRef number)
{
    return std::holds_alternative<double>(object(number).number);
}

Boolean CFNumberGetValue(CFNumberRef number, CFNumberType type, void* value)
{
    if (type == kCFNumberDoubleType)
        *static_cast<double*>(value) = std::get<double>(object(number).number);
    else
        *static_cast<std::int64_t*>(value) = std::get<std::int64_t>(object(number).number);
    return 1;
}

CFNumberRef CFNumberCreate(CFAllocatorRef, CFNumberType type, const void* value)
{
    auto* made = new FakeObject(FakeObject::Number);
    if (type == kCFNumberDoubleType)
        made->number = *static_cast<const double*>(value);
    else
        made->number = *static_cast<const std::int64_t*>(value);
    return reinterpret_cast<CFNumberRef>(made);
}

CFTypeID CFBooleanGetTypeID()
{
    return FakeObject::Boolean;
}

Boolean CFBooleanGetValue(CFBooleanRef boolean)
{
    return object(boolean).boolean;
}

CFTypeID CFDataGetTypeID()
{
    return FakeObject::Data;
}

CFIndex CFDataGetLength(CFDataRef data)
{
    return static_cast<CFIndex>(object(data).bytes.size());
}

const UInt8* CFDataGetBytePtr(CFDataRef data)
{
    return reinterpret_cast<const UInt8*>(object(data).bytes.data());
}

CFDataRef CFDataCreate(CFAllocatorRef, const UInt8* bytes, CFIndex length)
{
    auto* made = new FakeObject(FakeObject::Data);
    made->bytes.assign(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(length));
    return reinterpret_cast<CFDataRef>(made);
}

CFTypeID CFDateGetTypeID()
{
    return FakeObject::Date;
}

CFAbsoluteTime CFDateGetAbsoluteTime(CFDateRef date)
{
    return object(date).time;
}

CFDateRef CFDateCreate(CFAllocatorRef, CFAbsoluteTime time)
{
    auto* made = new FakeObject(FakeObject::Date);
    made->time = time;
    return reinterpret_cast<CFDateRef>(made);
}

CFTypeID CFArrayGetTypeID()
{
    return FakeObject::Array;
}

CFIndex CFArrayGetCount(CFArrayRef array)
{
    return static_cast<CFIndex>(object(array).members.size());
}

const void* CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index)
{
    return object(array).members.at(static_cast<std::size_t>(index));
}

CFMutableArrayRef CFArrayCreateMutable(CFAllocatorRef, CFIndex, const CFArrayCallBacks*)
{
    return reinterpret_cast<CFMutableArrayRef>(new FakeObject(FakeObject::Array));
}

void CFArrayAppendValue(CFMutableArrayRef array, const void* value)
{
    changeable(array).members.push_back(CFRetain(value));
}

CFTypeID CFSetGetTypeID()
{
    return FakeObject::Set;
}

CFIndex CFSetGetCount(CFSetRef set)
{
    return static_cast<CFIndex>(object(set).members.size());
}

void CFSetGetValues(CFSetRef set, const void** values)
{
    for (const CFTypeRef member : object(set).members)
        *values++ = member;
}

CFTypeID CFDictionaryGetTypeID()
{
    return FakeObject::Dictionary;
}

CFIndex CFDictionaryGetCount(CFDictionaryRef dictionary)
{
    return static_cast<CFIndex>(object(dictionary).entries.size());
}

void CFDictionaryGetKeysAndValues(CFDictionaryRef dictionary, const void** keys, const void** values)
{
    for (const auto& [key, value] : object(dictionary).entries) {
        *keys++ = key;
        *values++ = value;
    }
}

CFMutableDictionaryRef CFDictionaryCreateMutable(CFAllocatorRef, CFIndex, const CFDictionaryKeyCallBacks*,
                                                 const CFDictionaryValueCallBacks*)
{
    return reinterpret_cast<CFMutableDictionaryRef>(new FakeObject(FakeObject::Dictionary));
}

void CFDictionarySetValue(CFMutableDictionaryRef dictionary, const void* key, const void* value)
{
    changeable(dictionary).entries.emplace_back(CFRetain(key), CFRetain(value));
}
}
