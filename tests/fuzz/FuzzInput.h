#pragma once

#include <cstddef>
#include <cstdint>

#include <QByteArray>

namespace quindle {

/// The fuzzer's bytes, not copied.
inline QByteArray fuzzBytes(const std::uint8_t* data, std::size_t size)
{
    return QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
}

/// Ends the program when a promise does not hold, so that the fuzzer keeps the input.
inline void expect(bool holds)
{
    if (!holds)
        __builtin_trap();
}

} // namespace quindle
