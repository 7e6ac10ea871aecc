#pragma once

#include <map>
#include <string>
#include <variant>
#include <vector>

#include <CoreFoundation/CoreFoundation.h>

namespace quindle {

/// An object of the tests' own Core Foundation: what the functions of that name, in FakeCoreFoundation.cpp,
/// take and give. Counted as the real ones are.
struct FakeObject
{
    enum Type : CFTypeID { String = 1, Number, Boolean, Data, Date, Array, Set, Dictionary, Other };

    /// Objects that are there at the moment, the two booleans not counted.
    static int alive;

    explicit FakeObject(Type type);
    ~FakeObject();
    FakeObject(const FakeObject&) = delete;
    FakeObject& operator=(const FakeObject&) = delete;

    Type type;
    int references = 1;
    std::u16string text;
    std::variant<std::int64_t, double> number = std::int64_t{0};
    bool boolean = false;
    std::string bytes;
    double time = 0;
    std::vector<CFTypeRef> members;                       ///< of an array or a set, kept
    std::vector<std::pair<CFTypeRef, CFTypeRef>> entries; ///< of a dictionary, kept
};

} // namespace quindle
