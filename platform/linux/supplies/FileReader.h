#pragma once

#include <array>
#include <set>
#include <string>
#include <string_view>

#include "platform/linux/supplies/SupplyFiles.h"

namespace quindle {

/// Reads small files below one folder. Files stay open from one reading to the next, since opening costs
/// several times as much as reading, up to a quarter of what the process may have open.
class FileReader
{
public:
    FileReader(ReadFunction read, ReadSteps& steps);

    /// The folder's descriptor, which somebody else closes.
    void setFolder(int folder) { m_folder = folder; }

    /// Reads a file that `kept` holds open, or will hold open if it may: the number of bytes, or the negated
    /// error number. `name` is the path's last part. After a transport error it is tried again a few times.
    ssize_t read(const std::string& path, const char* name, FileDescriptor& kept);

    /// Reads a file that is closed again.
    ssize_t readOnce(const std::string& path, const char* name);

    /// The names in a folder; none when it cannot be listed.
    std::set<std::string> namesIn(const std::string& path);

    /// What the last read gave, of the length that it returned. Valid until the next one.
    std::string_view text(ssize_t size) const { return {m_buffer.data(), static_cast<std::size_t>(size)}; }

    void close(FileDescriptor& kept);

private:
    ssize_t tryToRead(const std::string& path, const char* name, FileDescriptor& kept);
    ssize_t readOpened(const std::string& path, const char* name, FileDescriptor& kept);

    ReadFunction m_read;
    ReadSteps& m_steps;
    int m_folder = -1;
    int m_keptOpen = 0;
    int m_mostKeptOpen;
    std::array<char, 4096> m_buffer{};
};

} // namespace quindle
