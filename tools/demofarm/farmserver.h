#pragma once

#include "farmlink.h"
#include "farmoptions.h"
#include "scenario.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>
#include <QtCore/QTimer>
#include <QtNetwork/QTcpServer>

#include <chrono>
#include <optional>
#include <vector>

class FrameStore;

/// Plays the night to every client that is logged in. The night waits while nobody is, and goes on at the pace of
/// the slowest client.
class FarmServer final : public QObject {
    Q_OBJECT
public:
    /// The store takes the frames and outlives the server; null: nothing is rendered.
    FarmServer(const FarmOptions &options, FrameStore *frames);

    /// Listens and logs the port, or why it cannot.
    bool listen();
    bool isPlayed() const { return m_played; }
    /// Logs how many events were sent.
    void logSummary() const;

Q_SIGNALS:
    /// With the option `once`: the night is played and the clients took everything.
    void finished();

private:
    void acceptClients();
    void addClient(QTcpSocket *socket);
    void greet(FarmLink *link);
    MessageHeader::Type frameType() const;
    void removeClient(FarmLink *link);

    bool mayPlay() const;
    bool isGarbageDue() const;
    void play();
    bool takeEvent();
    void deliverEvent();
    void deliverGarbage();
    void endNight();
    std::chrono::microseconds now() const { return std::chrono::microseconds(m_clock.nsecsElapsed() / 1000); }

    const FarmOptions m_options;
    FrameStore *const m_frames;
    Scenario m_scenario;
    QTcpServer m_server;
    std::vector<FarmLink *> m_links; // children
    int m_clientCount = 0;

    QTimer m_timer;
    QElapsedTimer m_clock;
    std::chrono::microseconds m_due{0}; // by m_clock
    std::optional<FarmEvent> m_next;
    int m_sent = 0;
    int m_garbageSent = 0;
    bool m_played = false;
};
