#pragma once

#include <QByteArray>
#include <QStringList>

#include "platform/LoginItems.h"
#include "platform/linux/settings/LinuxUserDefaults.h"

namespace quindle {

/// Where the login items are kept, and what is entered.
struct LoginItemPlaces
{
    QString entries;            ///< the folder of the user's autostart entries; empty when there is none
    QString lock;               ///< the file that writers lock
    QString link;               ///< a link to the program, for one with a path that not all sessions can read
    QString bundle;             ///< the running bundle
    QStringList programFolders; ///< where programs without a path are found; $PATH when empty
    QString home;               ///< the user's home folder; empty when there is none
};

/// The user's own: "autostart" beside the folder of the settings.
LoginItemPlaces loginItemPlaces(const QString& bundlePath);

/// The desktop entries of the user's autostart folder. The helper's own entry, the file of its identifier's
/// name, is the first item, so that entering it is to put it at the front; the others follow by file name.
/// Entries of others are never written.
class LinuxLoginItems : public LoginItems
{
public:
    explicit LinuxLoginItems(LoginItemPlaces places, SettingsAccess access = SettingsAccess::ReadAndWrite);

    std::optional<std::vector<Item>> snapshot() override;
    std::optional<QString> resolve(Item item) override;

    /// Enters a bundle; the helper's own entry is all there is to enter, so a second one replaces the first.
    void insertBeforeFirst(const QString& fileUrl) override;

    void remove(Item item) override;
    void setEnabled(const QString& identifier, bool enabled) override;

private:
    QString pathOf(const QByteArray& entryName) const;
    std::optional<QString> urlOf(const QByteArray& entryName) const;
    QString enter(const QByteArray& entryName, const QString& bundlePath) const;
    QString disable(const QByteArray& entryName, const QString& helperUrl);
    QString erase(const QByteArray& entryName) const;
    void report(const QString& failure);

    LoginItemPlaces m_places;
    SettingsAccess m_access;
    QList<QByteArray> m_known; ///< the file names seen so far; an item is an index into it
    QString m_failure;         ///< the last one logged
};

} // namespace quindle
