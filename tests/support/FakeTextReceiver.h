#pragma once

#include <QByteArrayList>

#include "platform/DetachedPrograms.h"

namespace quindle {

/// Keeps each text; the test sets what state it is in.
class FakeTextReceiver : public TextReceiver
{
public:
    bool installed = true;
    bool running = false;
    bool canStart = true;
    QByteArrayList texts; ///< handed over so far
    int attempts = 0;

    bool isInstalled() const override { return installed; }
    bool isRunning() override { return running; }
    bool handOver(const QByteArray& text) override
    {
        ++attempts;
        if (canStart)
            texts.append(text);
        return canStart;
    }
};

} // namespace quindle
