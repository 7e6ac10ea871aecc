#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <dirent.h>

#include "platform/linux/supplies/FolderWatch.h"
#include "platform/linux/supplies/SupplyFiles.h"
#include "platform/posix/FileDescriptor.h"

namespace quindle {

/// Whether the supplies of a class directory are unchanged, byte by byte. It does not interpret what it
/// compares, so it costs a small part of a reading. For one thread, which may hang in any call.
class StillSupplies
{
public:
    explicit StillSupplies(std::string folder, ReadFunction read = readDescriptor);

    /// Records what the supplies say now. False where changes cannot be seen this way: a file that is missing
    /// or fails, or too many supplies.
    bool begin();

    /// Whether nothing has changed since `begin`. After a change it stays false until the next `begin`. What
    /// is not measured, such as a charge limit, is checked only every third time.
    bool isStill();

private:
    struct Entry
    {
        std::string name;
        ino_t inode = 0;

        auto operator<=>(const Entry&) const = default;
    };
    struct File
    {
        const char* name;
        FileDescriptor descriptor;
        std::string text;
        bool isSeldom;
    };

    bool open();
    std::vector<Entry> entries();
    bool keep(const std::string& supply);
    bool keepFile(const std::string& supply, const char* name, bool isSeldom);
    std::string textOnce(const std::string& supply, const char* name);
    ssize_t readInto(const File& file);
    bool isSame(const File& file);

    std::string m_path;
    ReadFunction m_read;
    std::unique_ptr<DIR, CloseFolder> m_folder;
    std::optional<FolderWatch> m_watch; ///< of files that are not the kernel's
    std::vector<Entry> m_entries;
    std::vector<File> m_files;
    int m_looks = 0;
    std::array<char, 4096> m_buffer{};
};

} // namespace quindle
