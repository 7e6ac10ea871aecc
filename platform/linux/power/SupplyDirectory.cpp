#include "platform/linux/power/SupplyDirectory.h"

#include <algorithm>
#include <cerrno>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace quindle {

namespace {

constexpr std::chrono::milliseconds scanInterval(1000);

/// With more supplies than a computer has, their open files could use up the process's descriptors.
constexpr std::size_t mostSuppliesKeptOpen = 16;

/// A driver that answers every read with ENODEV must not have the directory read each time.
constexpr std::chrono::milliseconds scanIntervalAfterLoss(100);

std::vector<std::string> namesIn(DIR* folder)
{
    std::vector<std::string> names;
    while (const dirent* entry = readdir(folder)) {
        if (entry->d_name[0] != '.')
            names.emplace_back(entry->d_name);
    }
    std::sort(names.begin(), names.end());
    return names;
}

Supply::Identity identityOf(const struct stat& status)
{
    return {status.st_dev, status.st_ino, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

} // namespace

SupplyKind supplyKind(std::string_view type, std::string_view scope)
{
    if (scope == "Device")
        return SupplyKind::Other;
    if (type == "Battery")
        return SupplyKind::Battery;
    if (type == "UPS")
        return SupplyKind::UninterruptibleSupply;
    // Older kernels write the port's mode into the type: USB_PD, USB_DCP, USB_C.
    if (type == "Mains" || type == "USB" || type.starts_with("USB_"))
        return SupplyKind::External;
    return SupplyKind::Other;
}

Supply::Supply(std::string name, FileDescriptor folder, Identity identity)
    : m_name(std::move(name))
    , m_folder(std::move(folder))
    , m_identity(identity)
{
}

ssize_t Supply::read(Attribute attribute, AttributeReader& reader, char* buffer, std::size_t size)
{
    AttributeFile& file = m_files[static_cast<std::size_t>(attribute)];
    const ssize_t result = file.read(m_folder.get(), attributeName(attribute), reader, buffer, size);
    if (!m_keepsFilesOpen)
        file.close();
    return result;
}

void Supply::update(AttributeReader& reader)
{
    updateKind(reader);
    updatePresence(reader);
}

void Supply::updatePresence(AttributeReader& reader)
{
    std::array<char, 64> buffer{};
    const ssize_t size = read(Attribute::Present, reader, buffer.data(), buffer.size());
    m_isPresent =
        size < 0 ? size != -ENODEV : numberFromText({buffer.data(), static_cast<std::size_t>(size)}) != 0.0;
}

void Supply::updateKind(AttributeReader& reader)
{
    std::array<char, 64> type{};
    std::array<char, 64> scope{};
    const ssize_t typeSize = read(Attribute::Type, reader, type.data(), type.size());
    if (typeSize < 0)
        return;
    const ssize_t scopeSize =
        std::max<ssize_t>(read(Attribute::Scope, reader, scope.data(), scope.size()), 0);
    m_kind = supplyKind(trimmed({type.data(), static_cast<std::size_t>(typeSize)}),
                        trimmed({scope.data(), static_cast<std::size_t>(scopeSize)}));
}

SupplyDirectory::SupplyDirectory(std::string folder, ReadFunction read, MonotonicClock now)
    : m_folder(std::move(folder))
    , m_reader(std::move(read), std::move(now))
{
}

const std::vector<std::unique_ptr<Supply>>& SupplyDirectory::supplies()
{
    if (scanIsDue())
        scan();
    return m_supplies;
}

ssize_t SupplyDirectory::read(Supply& supply, Attribute attribute, char* buffer, std::size_t size)
{
    const ssize_t result = supply.read(attribute, m_reader, buffer, size);
    if (result == -ENODEV)
        m_supplyHasGone = true;
    return result;
}

bool SupplyDirectory::scanIsDue() const
{
    if (!m_lastScan)
        return true;
    return m_reader.now() - *m_lastScan >= (m_supplyHasGone ? scanIntervalAfterLoss : scanInterval);
}

void SupplyDirectory::scan()
{
    m_lastScan = m_reader.now();
    m_supplyHasGone = false;
    std::vector<std::unique_ptr<Supply>> found;
    if (DIR* const folder = opendir(m_folder.c_str())) {
        for (const std::string& name : namesIn(folder)) {
            if (auto supply = takeOrOpen(dirfd(folder), name)) {
                supply->setKeepsFilesOpen(found.size() < mostSuppliesKeptOpen);
                supply->update(m_reader);
                found.push_back(std::move(supply));
            }
        }
        closedir(folder);
    }
    m_supplies = std::move(found);
}

std::unique_ptr<Supply> SupplyDirectory::takeOrOpen(int folder, const std::string& name)
{
    struct stat status
    {
    };
    if (fstatat(folder, name.c_str(), &status, 0) != 0 || !S_ISDIR(status.st_mode))
        return nullptr;
    const Supply::Identity identity = identityOf(status);
    for (std::unique_ptr<Supply>& known : m_supplies) {
        if (known && known->name() == name && known->identity() == identity)
            return std::move(known);
    }
    FileDescriptor supplyFolder(openat(folder, name.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!supplyFolder.isOpen())
        return nullptr;
    return std::make_unique<Supply>(name, std::move(supplyFolder), identity);
}

} // namespace quindle
