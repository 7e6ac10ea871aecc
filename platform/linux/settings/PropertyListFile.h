#pragma once

#include <ctime>
#include <sys/stat.h>

#include <QByteArray>
#include <QVariantMap>

namespace quindle {

/// A property-list file whose root is a dictionary, XML or binary, as it stands on the disk. The parsed
/// dictionary is kept only while the file is provably the same and unchanged.
class PropertyListFile
{
public:
    enum class State {
        Missing,
        Good,
        Damaged,    ///< not a property list, or its root is not a dictionary
        Unreadable, ///< `error` says why; EFBIG above 16 MiB, EINVAL for anything but an ordinary file
    };

    /// `path` is absolute and in the file system's encoding.
    explicit PropertyListFile(QByteArray path)
        : m_path(std::move(path))
    {
    }

    const QByteArray& path() const { return m_path; }

    /// Looks at the file, and reads it when it is not the one that was read last.
    State refresh();

    /// Reads the file whether or not it has changed.
    State reread();

    /// What the last look found; empty while the file is missing or damaged. One that is unreadable keeps
    /// what was read last.
    const QVariantMap& contents() const { return m_contents; }

    /// The errno value of the last look, when the state is Unreadable.
    int error() const { return m_error; }

    /// Whether the file that was read last had been written less than a second before.
    bool isFresh() const { return m_fresh; }

private:
    /// What distinguishes one state of a file from every other.
    struct Identity
    {
        dev_t device = 0;
        ino_t inode = 0;
        off_t size = 0;
        timespec modified = {};
        timespec changed = {};
        bool operator==(const Identity& other) const;
    };

    State become(State state, int error = 0);
    State readFrom(int descriptor, off_t size);
    void remember(const struct stat& found);
    static Identity identityOf(const struct stat& found);

    QByteArray m_path;
    Identity m_identity;
    State m_state = State::Missing;
    int m_error = 0;
    bool m_settled = false;
    bool m_fresh = false;
    QVariantMap m_contents;
};

} // namespace quindle
