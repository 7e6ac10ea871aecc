#pragma once

#include <ctime>

#include <QByteArray>
#include <QtGlobal>

namespace quindle {

/// The process's time zone while it lives.
class ScopedTimeZone
{
public:
    explicit ScopedTimeZone(const QByteArray& zone)
        : m_former(qgetenv("TZ"))
    {
        set(zone);
    }
    ~ScopedTimeZone() { set(m_former); }

    ScopedTimeZone(const ScopedTimeZone&) = delete;
    ScopedTimeZone& operator=(const ScopedTimeZone&) = delete;

private:
    static void set(const QByteArray& zone)
    {
        qputenv("TZ", zone);
        tzset();
    }

    QByteArray m_former;
};

} // namespace quindle
