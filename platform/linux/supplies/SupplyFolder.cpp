#include "platform/linux/supplies/SupplyFolder.h"

#include <algorithm>
#include <cerrno>

namespace quindle {

SupplyFolder::SupplyFolder(std::string path, Scope scope, KnownKinds kinds, ReadFunction read,
                           ReadSteps& steps)
    : m_path(std::move(path))
    , m_scope(scope)
    , m_kinds(std::move(kinds))
    , m_steps(steps)
    , m_reader(std::move(read), steps)
{
}

SupplyFolder::~SupplyFolder() = default;

std::optional<SupplyReadings> SupplyFolder::read(bool looksAgain)
{
    // Before the files are read: what changes later is seen the next time.
    const bool hasChanged = m_watch && m_watch->hasChanged();
    // Where changes are announced the folder need not be listed each time.
    if ((!m_watch || !m_folder || hasChanged || looksAgain) && !list())
        return std::nullopt;
    SupplyReadings readings;
    for (const Member& each : m_members) {
        Supply& supply = *each.supply;
        if (hasChanged || !supply.wasLookedAt())
            supply.look(m_reader, ueventOf(supply));
        else if (looksAgain && !m_watch)
            supply.lookAgain(m_reader);
        if (!supply.kind())
            // With everything marked as failed, so that the last values stand in.
            readings.push_back({supply.name(), SupplyKind::Other, {}, AttributeSet().set()});
        else if (belongs(*supply.kind()))
            readings.push_back(supply.read(m_reader));
    }
    return readings;
}

bool SupplyFolder::belongs(SupplyKind kind) const
{
    if (kind == SupplyKind::Other)
        return false;
    return (kind == SupplyKind::Peripheral) == (m_scope == Scope::Peripherals);
}

Supply::Uevent SupplyFolder::ueventOf(const Supply& supply)
{
    if (!m_watch)
        return Supply::Uevent::Kernel;
    return m_watch->add(dirfd(m_folder.get()), supply.name().c_str()) ? Supply::Uevent::File
                                                                      : Supply::Uevent::FileUnseen;
}

bool SupplyFolder::list()
{
    std::vector<Entry> entries;
    // Listing the folder may hang as reading a file may.
    if (m_steps.insteadOf(m_path, nullptr, 0))
        return false;
    m_steps.begin(m_path);
    const int error = readEntries(entries);
    m_steps.end(nullptr, -error);
    if (isAccident(-error))
        return false;
    take(std::move(entries));
    if (m_members.empty())
        m_folder.reset(); // the class may be unloaded and come back as another folder
    return true;
}

/// 0 or the error number.
int SupplyFolder::readEntries(std::vector<Entry>& entries)
{
    if (m_folder)
        rewinddir(m_folder.get());
    else
        open();
    if (!m_folder)
        return errno;
    // Only errno says whether readdir failed or has come to the end.
    errno = 0;
    while (const dirent* const entry = readdir(m_folder.get()))
        if (entry->d_name[0] != '.')
            entries.push_back({entry->d_name, entry->d_ino});
    return errno;
}

void SupplyFolder::open()
{
    m_watch.reset();
    m_folder.reset(opendir(m_path.c_str()));
    if (!m_folder)
        return;
    m_reader.setFolder(dirfd(m_folder.get()));
    if (!isOfKernel(dirfd(m_folder.get()))) {
        m_watch.emplace();
        // The folder itself too: supplies come and go in it.
        m_watch->add(dirfd(m_folder.get()), ".");
    }
}

/// Keeps the supplies that are still there.
void SupplyFolder::take(std::vector<Entry> entries)
{
    // Both lists sorted, one pass compares them: there may be thousands of supplies.
    std::sort(entries.begin(), entries.end());
    std::vector<Member> members;
    members.reserve(entries.size());
    auto known = m_members.begin();
    for (Entry& entry : entries) {
        for (; known != m_members.end() && known->entry < entry; ++known)
            known->supply->close(m_reader);
        if (known != m_members.end() && known->entry == entry)
            members.push_back(std::move(*known++));
        else
            members.push_back(member(std::move(entry)));
    }
    std::for_each(known, m_members.end(), [this](Member& gone) { gone.supply->close(m_reader); });
    m_members = std::move(members);
}

SupplyFolder::Member SupplyFolder::member(Entry entry) const
{
    const auto kind = m_kinds.find(entry.name);
    // The kind found by an earlier thread: its files may hang by now.
    auto supply = std::make_unique<Supply>(entry.name, kind == m_kinds.end() ? std::nullopt
                                                                             : std::optional(kind->second));
    return {std::move(entry), std::move(supply)};
}

} // namespace quindle
