#pragma once

#include <array>
#include <optional>
#include <string>

#include "platform/linux/supplies/FileReader.h"
#include "platform/linux/supplies/SupplyReading.h"

namespace quindle {

/// One supply's folder. A file "uevent" that holds the attributes takes one read; where it does not, or
/// fails, they are read one by one.
class Supply
{
public:
    /// Where the file "uevent" comes from.
    enum class Uevent {
        Kernel,     ///< made while it is read, from the same device as the other files
        File,       ///< written by somebody, perhaps at another moment than the others
        FileUnseen, ///< the same, and nothing announces its changes
    };

    /// `kind` is the previous one, if known: its files may not answer now.
    Supply(std::string name, std::optional<SupplyKind> kind);

    const std::string& name() const { return m_name; }

    /// Nothing while it is not known.
    std::optional<SupplyKind> kind() const { return m_kind; }

    bool wasLookedAt() const { return m_wasLookedAt; }

    /// Opens every file anew, and finds out what it is.
    void look(FileReader& reader, Uevent uevent);

    /// Asks for files that were not there, and reads anew what need not be in a uevent.
    void lookAgain(FileReader& reader);

    /// The attributes as they are now. Only while the kind is known.
    SupplyReading read(FileReader& reader);

    void close(FileReader& reader);

private:
    std::string pathOf(Attribute attribute) const;
    ssize_t readOnce(FileReader& reader, Attribute attribute) const;
    void lookAtKind(FileReader& reader);
    std::optional<SupplyAttributes> readUevent(FileReader& reader);
    bool agrees(FileReader& reader, const SupplyAttributes& uevent) const;
    void readSingly(FileReader& reader, SupplyReading& reading);

    std::string m_name;
    std::string m_ueventPath;
    std::optional<SupplyKind> m_kind;
    bool m_wasLookedAt = false;
    bool m_checksUevent = false;
    bool m_usesUevent = true;
    SupplyAttributes m_rest; ///< what need not be in a uevent
    FileDescriptor m_uevent;
    std::array<FileDescriptor, attributeCount> m_files;
    AttributeSet m_absent;
};

} // namespace quindle
