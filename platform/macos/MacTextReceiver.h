#pragma once

#include <QString>
#include <QStringList>

#include "platform/DetachedPrograms.h"

namespace quindle {

/// A program that gets each text as a file without a name, so that nobody waits, however long it is.
class MacTextReceiver : public TextReceiver
{
public:
    MacTextReceiver(QString program, QStringList arguments);

    bool isInstalled() const override;
    bool isRunning() override;
    bool handOver(const QByteArray& text) override;

private:
    QString m_program;
    QStringList m_arguments;
    qint64 m_last = 0; ///< its process number; 0 before the first
};

} // namespace quindle
