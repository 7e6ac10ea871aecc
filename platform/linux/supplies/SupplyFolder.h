#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <dirent.h>

#include "platform/linux/supplies/FileReader.h"
#include "platform/linux/supplies/FolderWatch.h"
#include "platform/linux/supplies/Supply.h"
#include "platform/posix/FileDescriptor.h"

namespace quindle {

/// The class directory ("/sys/class/power_supply") as one thread reads it.
class SupplyFolder
{
public:
    /// The supplies that a reading is about.
    enum class Scope {
        Computer,    ///< batteries, uninterruptible and external supplies
        Peripherals, ///< reading them may send something to the device
    };

    /// The previous kinds of supplies, by name.
    using KnownKinds = std::map<std::string, SupplyKind>;

    SupplyFolder(std::string path, Scope scope, KnownKinds kinds, ReadFunction read, ReadSteps& steps);
    ~SupplyFolder();

    SupplyFolder(const SupplyFolder&) = delete;
    SupplyFolder& operator=(const SupplyFolder&) = delete;

    /// All supplies as they are now, sorted by name; none when there is no such folder, and nothing when the
    /// folder cannot be listed. `looksAgain` asks for files that have come inside the supplies' folders, and
    /// reads anew what cannot be in a uevent.
    std::optional<SupplyReadings> read(bool looksAgain);

private:
    struct Entry
    {
        std::string name;
        ino_t inode = 0; ///< a different one under the same name is another supply

        auto operator<=>(const Entry&) const = default;
    };
    struct Member
    {
        Entry entry;
        std::unique_ptr<Supply> supply;
    };

    bool list();
    int readEntries(std::vector<Entry>& entries);
    void open();
    void take(std::vector<Entry> entries);
    Member member(Entry entry) const;
    Supply::Uevent ueventOf(const Supply& supply);
    bool belongs(SupplyKind kind) const;

    std::string m_path;
    Scope m_scope;
    KnownKinds m_kinds;
    ReadSteps& m_steps;
    FileReader m_reader;
    std::unique_ptr<DIR, CloseFolder> m_folder;
    std::optional<FolderWatch> m_watch; ///< of files that are not the kernel's
    std::vector<Member> m_members;      ///< by name
};

} // namespace quindle
