#pragma once

#include "platform/UrlSession.h"

namespace quindle {

class RecordedComputer;

/// Whether a recorded computer's history is to be kept. By what the machine file says itself: recording is on
/// by default only on a real computer.
bool isHistoryKeptOf(const RecordedComputer& computer);

/// The network of a recorded computer whose posts leave for the host that its own bundle names. The program's
/// own service never hears of an invented computer.
class MachineUrlSession : public UrlSession
{
public:
    /// `recorded` answers what is read, `network` sends. All must outlive it.
    MachineUrlSession(const RecordedComputer& computer, UrlSession& recorded, UrlSession& network)
        : m_computer(computer)
        , m_recorded(recorded)
        , m_network(network)
    {
    }

    void post(const QString& url, const QByteArray& body,
              std::function<void(int status, const QByteArray& body)> answered) override;
    std::optional<QByteArray> contents(const QString& url) override;

private:
    const RecordedComputer& m_computer;
    UrlSession& m_recorded;
    UrlSession& m_network;
};

} // namespace quindle
