#pragma once

#include <dirent.h>
#include <unistd.h>
#include <utility>

namespace quindle {

/// Owns one open file descriptor, or none.
class FileDescriptor
{
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor)
        : m_descriptor(descriptor)
    {
    }
    FileDescriptor(FileDescriptor&& other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1))
    {
    }
    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    ~FileDescriptor() { close(); }

    int get() const { return m_descriptor; }
    /// Leaves it to somebody else to close.
    int release() { return std::exchange(m_descriptor, -1); }

    bool isOpen() const { return m_descriptor >= 0; }

    void close()
    {
        if (isOpen())
            ::close(std::exchange(m_descriptor, -1));
    }

private:
    int m_descriptor = -1;
};

/// Closes what opendir() has opened, for a std::unique_ptr.
struct CloseFolder
{
    void operator()(DIR* folder) const { ::closedir(folder); }
};

} // namespace quindle
