#pragma once

#include <utility>

#include <CoreFoundation/CoreFoundation.h>

namespace quindle {

/// Owns one reference to an object of Core Foundation, or none: what a function with "Create" or "Copy" in
/// its name gave.
template <typename Reference>
class CfOwned
{
public:
    CfOwned() = default;
    explicit CfOwned(Reference reference)
        : m_reference(reference)
    {
    }
    CfOwned(CfOwned&& other) noexcept
        : m_reference(std::exchange(other.m_reference, nullptr))
    {
    }
    CfOwned& operator=(CfOwned&& other) noexcept
    {
        std::swap(m_reference, other.m_reference);
        return *this;
    }
    ~CfOwned()
    {
        if (m_reference)
            CFRelease(m_reference);
    }

    Reference get() const { return m_reference; }
    explicit operator bool() const { return m_reference != nullptr; }

    /// Leaves the reference to somebody else to release.
    Reference release() { return std::exchange(m_reference, nullptr); }

private:
    Reference m_reference = nullptr;
};

} // namespace quindle
