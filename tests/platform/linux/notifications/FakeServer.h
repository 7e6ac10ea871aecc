#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QStringList>
#include <QVariantMap>
#include <gtest/gtest.h>

#include "tests/support/Texts.h"

namespace quindle {

/// Keeps the calls that it gets, a line each, and numbers notifications from 7 on.
class FakeServer : public QDBusVirtualObject
{
public:
    FakeServer(const QDBusConnection& bus, const QString& name)
        : m_bus(bus)
        , m_name(name)
    {
        m_bus.registerVirtualObject(latin("/"), this, QDBusConnection::SubPath);
        EXPECT_TRUE(m_bus.registerService(m_name));
    }

    ~FakeServer() override
    {
        m_bus.unregisterService(m_name);
        QDBusConnection::disconnectFromBus(m_bus.name());
    }

    QStringList calls;
    QVariantMap values; ///< of the last call that had any
    bool answers = true;

    QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override
    {
        calls.append(lineOf(message));
        if (!answers)
            return true;
        const bool isNew = message.member() == latin("Notify");
        const uint asked = isNew ? message.arguments().value(1).toUInt() : 0;
        bus.send(isNew ? message.createReply(asked != 0 ? asked : m_next++) : message.createReply());
        return true;
    }

private:
    QString lineOf(const QDBusMessage& message)
    {
        QStringList words{message.member()};
        for (const QVariant& argument : message.arguments()) {
            if (argument.canConvert<QDBusArgument>())
                argument.value<QDBusArgument>() >> values;
            else if (!argument.toString().isEmpty())
                words.append(argument.toString());
        }
        return words.join(u'|');
    }

    QDBusConnection m_bus;
    QString m_name;
    uint m_next = 7;
};

} // namespace quindle
