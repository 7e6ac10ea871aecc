#pragma once

#include <QStringList>
#include <QtGlobal>

namespace quindle {

/// Every line that is logged while it lives. One at a time.
class LogLines
{
public:
    LogLines()
    {
        lines().clear();
        m_former = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& line) { lines().append(line); });
    }
    ~LogLines() { qInstallMessageHandler(m_former); }

    LogLines(const LogLines&) = delete;
    LogLines& operator=(const LogLines&) = delete;

    static QStringList& lines()
    {
        static QStringList all;
        return all;
    }

private:
    QtMessageHandler m_former;
};

} // namespace quindle
