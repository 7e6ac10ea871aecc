#include "platform/linux/supplies/StillSupplies.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "platform/linux/supplies/SupplyAttributes.h"
#include "platform/linux/supplies/SupplyReading.h"

namespace quindle {

namespace {

/// Each has a file open, or three.
constexpr std::size_t mostSupplies = 16;

/// As rarely as a reading looks at them.
constexpr int looksBetween = 3;

// The thread sleeps after each look, and what its registers hold is in a core dump: so bytes are moved and
// compared by functions that then do the same with zeros. They are called through pointers that may change,
// since the result of the second call is known.

constexpr std::array<char, 4096> zeros{};

bool isEqual(const char* one, const char* other, std::size_t size)
{
    int (*volatile compare)(const void*, const void*, std::size_t) = std::memcmp;
    const bool result = compare(one, other, size) == 0;
    return compare(zeros.data(), zeros.data(), size) == 0 && result;
}

/// The beginning of `buffer`, which is lost there.
std::string taken(std::array<char, zeros.size()>& buffer, std::size_t size)
{
    void* (*volatile copy)(void*, const void*, std::size_t) = std::memcpy;
    std::string text(size, '\0');
    copy(text.data(), buffer.data(), size);
    copy(buffer.data(), zeros.data(), size);
    return text;
}

} // namespace

StillSupplies::StillSupplies(std::string folder, ReadFunction read)
    : m_path(std::move(folder))
    , m_read(std::move(read))
{
}

bool StillSupplies::begin()
{
    m_files.clear();
    m_looks = 0;
    if (!open())
        return false;
    m_entries = entries();
    return m_entries.size() <= mostSupplies &&
           std::all_of(m_entries.begin(), m_entries.end(),
                       [this](const Entry& entry) { return keep(entry.name); });
}

/// Anew each time: the class may have been unloaded and come back as another folder.
bool StillSupplies::open()
{
    m_watch.reset();
    m_folder.reset(opendir(m_path.c_str()));
    if (!m_folder)
        return false;
    if (isOfKernel(dirfd(m_folder.get())))
        return true;
    m_watch.emplace();
    return m_watch->add(dirfd(m_folder.get()), ".");
}

std::vector<StillSupplies::Entry> StillSupplies::entries()
{
    std::vector<Entry> entries;
    rewinddir(m_folder.get());
    while (const dirent* const entry = readdir(m_folder.get()))
        if (entry->d_name[0] != '.')
            entries.push_back({entry->d_name, entry->d_ino});
    std::sort(entries.begin(), entries.end());
    return entries;
}

bool StillSupplies::keep(const std::string& supply)
{
    // Before its files are read, so that no change is missed.
    if (m_watch && !m_watch->add(dirfd(m_folder.get()), supply.c_str()))
        return false;
    switch (supplyKind(trimmed(textOnce(supply, "type")), trimmed(textOnce(supply, "scope")))) {
    case SupplyKind::Battery:
        // Either may be missing.
        for (const Attribute attribute : {Attribute::ChargeControlEndThreshold, Attribute::ChargeTypes})
            keepFile(supply, attributeName(attribute), true);
        [[fallthrough]];
    case SupplyKind::UninterruptibleSupply:
    case SupplyKind::External:
        return keepFile(supply, "uevent", false);
    case SupplyKind::Other:
    case SupplyKind::Peripheral: // read only while somebody looks
        break;
    }
    return true;
}

bool StillSupplies::keepFile(const std::string& supply, const char* name, bool isSeldom)
{
    File file{name, openRegularFile(dirfd(m_folder.get()), (supply + '/' + name).c_str()), {}, isSeldom};
    const ssize_t size = file.descriptor.isOpen() ? readInto(file) : -1;
    if (size <= 0)
        return false;
    file.text = taken(m_buffer, static_cast<std::size_t>(size));
    m_files.push_back(std::move(file));
    return true;
}

std::string StillSupplies::textOnce(const std::string& supply, const char* name)
{
    const File file{name, openRegularFile(dirfd(m_folder.get()), (supply + '/' + name).c_str()), {}, false};
    const ssize_t size = file.descriptor.isOpen() ? readInto(file) : 0;
    return size > 0 ? std::string(m_buffer.data(), static_cast<std::size_t>(size)) : std::string();
}

ssize_t StillSupplies::readInto(const File& file)
{
    return m_read(file.descriptor.get(), file.name, m_buffer.data(), m_buffer.size());
}

bool StillSupplies::isStill()
{
    if (m_watch ? m_watch->hasChanged() : m_folder && entries() != m_entries)
        m_folder.reset();
    const bool looksAtAll = ++m_looks % looksBetween == 0;
    for (const File& file : m_files)
        if (m_folder && (looksAtAll || !file.isSeldom) && !isSame(file))
            m_folder.reset();
    return m_folder != nullptr;
}

bool StillSupplies::isSame(const File& file)
{
    const ssize_t size = readInto(file);
    return size >= 0 && static_cast<std::size_t>(size) == file.text.size() &&
           isEqual(m_buffer.data(), file.text.data(), file.text.size());
}

} // namespace quindle
