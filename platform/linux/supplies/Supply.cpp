#include "platform/linux/supplies/Supply.h"

#include <cerrno>
#include <set>
#include <utility>

namespace quindle {

namespace {

/// Kernels before 5.5 leave the type out of the uevent. Thresholds are often added to a battery by the
/// computer's driver, and so are not the battery's own properties. None of it is a measurement.
constexpr std::array notInUevents = {Attribute::Type, Attribute::ChargeControlEndThreshold,
                                     Attribute::ChargeTypes};

/// Whether a result says that there is no such file, or none for this user.
bool isAbsence(ssize_t result)
{
    return result == -ENOENT || result == -EACCES || result == -EPERM || result == -ENOTDIR;
}

/// What is read at each reading.
AttributeSet measuredOf(SupplyKind kind)
{
    AttributeSet wanted = attributesOf(kind);
    for (const Attribute attribute : notInUevents)
        wanted.reset(indexOf(attribute));
    return wanted;
}

/// For missing attributes, what is known from elsewhere.
void addMissing(SupplyAttributes& attributes, const SupplyAttributes& others)
{
    for (const Attribute attribute : notInUevents) {
        const std::optional<std::string_view> text = others.text(attribute);
        if (text && !attributes.text(attribute))
            attributes.set(attribute, *text);
    }
}

} // namespace

Supply::Supply(std::string name, std::optional<SupplyKind> kind)
    : m_name(std::move(name))
    , m_ueventPath(m_name + "/uevent")
    , m_kind(kind)
{
}

std::string Supply::pathOf(Attribute attribute) const
{
    return m_name + '/' + attributeName(attribute);
}

ssize_t Supply::readOnce(FileReader& reader, Attribute attribute) const
{
    return reader.readOnce(pathOf(attribute), attributeName(attribute));
}

void Supply::look(FileReader& reader, Uevent uevent)
{
    // Files kept open may be those of another supply that had the same name.
    close(reader);
    m_wasLookedAt = true;
    m_checksUevent = uevent == Uevent::File;
    m_usesUevent = uevent != Uevent::FileUnseen;
    lookAtKind(reader);
    lookAgain(reader);
}

/// The kind stays the same while its files do not answer.
void Supply::lookAtKind(FileReader& reader)
{
    const ssize_t typeSize = readOnce(reader, Attribute::Type);
    const std::string type(typeSize > 0 ? reader.text(typeSize) : std::string_view());
    const ssize_t scopeSize = typeSize > 0 ? readOnce(reader, Attribute::Scope) : typeSize;
    if (isAccident(typeSize) || isAccident(scopeSize)) {
        m_wasLookedAt = m_kind.has_value();
        return;
    }
    const std::string_view scope = scopeSize > 0 ? reader.text(scopeSize) : std::string_view();
    m_kind = supplyKind(trimmed(type), trimmed(scope));
    m_rest = {};
    m_rest.set(Attribute::Type, type);
}

void Supply::lookAgain(FileReader& reader)
{
    m_absent.reset();
    if (m_kind != SupplyKind::Battery)
        return;
    SupplyAttributes found;
    found.set(Attribute::Type, m_rest.text(Attribute::Type).value_or(""));
    for (const Attribute attribute : {Attribute::ChargeControlEndThreshold, Attribute::ChargeTypes})
        if (const ssize_t size = readOnce(reader, attribute); size > 0)
            found.set(attribute, reader.text(size));
    m_rest = std::move(found);
}

SupplyReading Supply::read(FileReader& reader)
{
    SupplyReading reading{m_name, *m_kind, {}, {}};
    std::optional<SupplyAttributes> uevent = m_usesUevent ? readUevent(reader) : std::nullopt;
    if (uevent && std::exchange(m_checksUevent, false))
        // Once for each look: the files of a collected folder change seldom, and it takes a read of each.
        m_usesUevent = agrees(reader, *uevent);
    if (uevent && m_usesUevent)
        reading.attributes = std::move(*uevent);
    else
        readSingly(reader, reading);
    addMissing(reading.attributes, m_rest);
    return reading;
}

std::optional<SupplyAttributes> Supply::readUevent(FileReader& reader)
{
    const ssize_t size = reader.read(m_ueventPath, "uevent", m_uevent);
    return size > 0 ? attributesFromUevent(reader.text(size)) : std::nullopt;
}

/// Whether a uevent agrees with the other files, of which there may be fewer. In a folder of files that
/// someone has collected they may be of another moment (thinkpad-procfs-lnv45n1), and the two must not be
/// mixed.
bool Supply::agrees(FileReader& reader, const SupplyAttributes& uevent) const
{
    // Listed once: with thousands of supplies it would cost more to try to open each file that may be there.
    const std::set<std::string> files = reader.namesIn(m_name);
    const AttributeSet measured = measuredOf(*m_kind);
    for (std::size_t index = 0; index < attributeCount; ++index) {
        const auto attribute = static_cast<Attribute>(index);
        const bool isThere = measured.test(index) && files.contains(attributeName(attribute));
        const ssize_t size = isThere ? readOnce(reader, attribute) : -ENOENT;
        const std::optional<std::string_view> stated = uevent.text(attribute);
        if (size >= 0 && (!stated || trimmed(reader.text(size)) != trimmed(*stated)))
            return false;
    }
    return true;
}

void Supply::readSingly(FileReader& reader, SupplyReading& reading)
{
    const AttributeSet wanted = measuredOf(*m_kind) & ~m_absent;
    for (std::size_t index = 0; index < attributeCount; ++index) {
        if (!wanted.test(index))
            continue;
        const auto attribute = static_cast<Attribute>(index);
        const ssize_t size = reader.read(pathOf(attribute), attributeName(attribute), m_files[index]);
        if (size >= 0)
            reading.attributes.set(attribute, reader.text(size));
        else if (attribute == Attribute::Present && size == -ENODEV)
            // A driver whose battery was removed answers like this: an empty bay, not a battery without
            // figures.
            reading.attributes.set(attribute, "0");
        reading.failed[index] = isAccident(size);
        // Not tried again before the next look: each missing file would cost a failed call at every refresh.
        m_absent[index] = isAbsence(size);
    }
}

void Supply::close(FileReader& reader)
{
    reader.close(m_uevent);
    for (FileDescriptor& file : m_files)
        reader.close(file);
}

} // namespace quindle
