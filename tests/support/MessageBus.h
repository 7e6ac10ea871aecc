#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

#include "tests/support/ComesTrue.h"

namespace quindle {

/// A message bus of the test's own at a fixed address, which can come and go. Everybody may do everything on
/// it. It ends with this object.
class MessageBus
{
public:
    explicit MessageBus(const QString& type = QStringLiteral("session"));
    ~MessageBus();

    /// Returns when programs can connect to it.
    void start();

    /// It is gone at once, with what it had not yet passed on.
    void stop();

    QString address() const;

private:
    QString socket() const;
    QString configurationFile() const;

    QTemporaryDir m_folder;
    QProcess m_daemon;
};

} // namespace quindle
