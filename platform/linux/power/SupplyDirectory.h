#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/linux/power/AttributeFile.h"
#include "platform/linux/power/SupplyAttributes.h"

namespace quindle {

/// What a power supply is to this computer. A supply of another device (a mouse, a headset, a phone) is
/// Other.
enum class SupplyKind {
    Other,
    Battery,
    UninterruptibleSupply,
    External,
};

/// The kind that the texts of "type" and "scope" mean.
SupplyKind supplyKind(std::string_view type, std::string_view scope);

/// One folder of the class directory with its attribute files.
class Supply
{
public:
    /// Tells one folder from another that later has the same name, and from itself once files were added,
    /// removed or replaced in it.
    struct Identity
    {
        unsigned long long device = 0;
        unsigned long long inode = 0;
        long long changeSeconds = 0;
        long long changeNanoseconds = 0;

        bool operator==(const Identity&) const = default;
    };

    Supply(std::string name, FileDescriptor folder, Identity identity);

    const std::string& name() const { return m_name; }
    const Identity& identity() const { return m_identity; }
    SupplyKind kind() const { return m_kind; }

    /// Whether there is a battery in the bay. A supply that does not say so is present, unless its device has
    /// gone.
    bool isPresent() const { return m_isPresent; }

    /// Reads one attribute anew into `buffer`: the number of bytes, or the negated error number.
    ssize_t read(Attribute attribute, AttributeReader& reader, char* buffer, std::size_t size);

    /// Whether its files stay open from one reading to the next, which is quicker.
    void setKeepsFilesOpen(bool keepsFilesOpen) { m_keepsFilesOpen = keepsFilesOpen; }

    /// Finds out anew which kind it is and whether it is present; the kind stays what it was while it cannot
    /// be read.
    void update(AttributeReader& reader);

private:
    void updateKind(AttributeReader& reader);
    void updatePresence(AttributeReader& reader);

    std::string m_name;
    FileDescriptor m_folder;
    Identity m_identity;
    SupplyKind m_kind = SupplyKind::Other;
    bool m_isPresent = false;
    bool m_keepsFilesOpen = true;
    std::array<AttributeFile, attributeCount> m_files;
};

/// The power supplies of a class directory ("/sys/class/power_supply"), sorted by name. The directory is read
/// again about once a second at most, and when a supply turns out to have gone; which supplies there are, of
/// which kind and whether they are present, is as old as that. Main thread only.
class SupplyDirectory
{
public:
    explicit SupplyDirectory(std::string folder, ReadFunction read = readDescriptor,
                             MonotonicClock now = timeSinceBoot);

    /// The supplies there are now; valid until the next call. Empty when there is no such directory.
    const std::vector<std::unique_ptr<Supply>>& supplies();

    /// Has the next call of supplies() read the directory whatever the time.
    void rescanNow() { m_lastScan.reset(); }

    /// Reads an attribute of one of the supplies (see Supply::read).
    ssize_t read(Supply& supply, Attribute attribute, char* buffer, std::size_t size);

private:
    bool scanIsDue() const;
    void scan();
    std::unique_ptr<Supply> takeOrOpen(int folder, const std::string& name);

    std::string m_folder;
    AttributeReader m_reader;
    std::vector<std::unique_ptr<Supply>> m_supplies;
    std::optional<std::chrono::milliseconds> m_lastScan;
    bool m_supplyHasGone = false;
};

} // namespace quindle
