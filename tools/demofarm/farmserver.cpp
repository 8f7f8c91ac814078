#include "farmserver.h"

#include "farmlog.h"
#include "framestore.h"
#include "garbage.h"

#include <net/protocol/wire.h>

#include <QtCore/QDateTime>
#include <QtNetwork/QTcpSocket>

#include <algorithm>

namespace {

/// Events from one piece of garbage to the next.
constexpr int kEventsPerGarbage = 7;

} // namespace

FarmServer::FarmServer(const FarmOptions &options, FrameStore *frames)
    : m_options(options)
    , m_frames(frames)
    , m_scenario(options.night)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &FarmServer::play);
    connect(&m_server, &QTcpServer::newConnection, this, &FarmServer::acceptClients);
    m_clock.start();
}

bool FarmServer::listen()
{
    if (!m_server.listen(QHostAddress::Any, m_options.port)) {
        farmLog(
            QStringLiteral("cannot listen on port %1: %2").arg(m_options.port).arg(m_server.errorString()));
        return false;
    }
    farmLog(QStringLiteral("listening on %1").arg(m_server.serverPort()));
    return true;
}

void FarmServer::logSummary() const
{
    farmLog(QStringLiteral("sent %1 events").arg(m_sent));
}

void FarmServer::acceptClients()
{
    while (QTcpSocket *socket = m_server.nextPendingConnection())
        addClient(socket);
}

void FarmServer::addClient(QTcpSocket *socket)
{
    auto *link = new FarmLink(++m_clientCount, socket, m_options.fragmentSize, this);
    m_links.push_back(link);
    connect(link, &FarmLink::loggedIn, this, [this, link] { greet(link); });
    connect(link, &FarmLink::progressed, this, &FarmServer::play);
    connect(link, &FarmLink::gone, this, [this, link] { removeClient(link); });
}

void FarmServer::greet(FarmLink *link)
{
    if (m_options.denyLogin) {
        link->send(encodeMessage(CMD_LOGIN_DENIED, {}));
        return;
    }
    link->admit();
    for (const CustomMessagePacket &message : m_options.customMessages)
        link->send(encodeMessage(frameType(), CMD_CUSTOM_MESSAGE, encodeCustomMessage(message)));
    if (m_options.dropAfter)
        QTimer::singleShot(*m_options.dropAfter, link, &FarmLink::hangUp);
    // What the night missed while nobody listened is not made up for.
    m_due = std::max(m_due, now());
    play();
}

MessageHeader::Type FarmServer::frameType() const
{
    return m_options.compress ? MessageHeader::Compressed : MessageHeader::Plain;
}

void FarmServer::removeClient(FarmLink *link)
{
    std::erase(m_links, link);
    link->deleteLater();
    if (m_played && m_options.once && m_links.empty())
        Q_EMIT finished();
    else
        play(); // it may have been the one that the others waited for
}

bool FarmServer::mayPlay() const
{
    const auto listens = [](const FarmLink *link) { return link->isListening(); };
    const auto isReady = [](const FarmLink *link) { return !link->isListening() || link->isReady(); };
    return !m_played && std::any_of(m_links.begin(), m_links.end(), listens)
        && std::all_of(m_links.begin(), m_links.end(), isReady);
}

bool FarmServer::isGarbageDue() const
{
    return m_options.garbage && m_garbageSent < m_sent / kEventsPerGarbage;
}

void FarmServer::play()
{
    while (mayPlay()) {
        if (!takeEvent()) {
            endNight();
            return;
        }
        if (const std::chrono::microseconds wait = m_due - now(); wait.count() > 0) {
            m_timer.start(std::chrono::ceil<std::chrono::milliseconds>(wait));
            return;
        }
        if (!isGarbageDue()) {
            deliverEvent();
            continue;
        }
        if (!std::all_of(m_links.begin(), m_links.end(), [](const FarmLink *link) { return link->isIdle(); }))
            return;
        deliverGarbage();
    }
}

bool FarmServer::takeEvent()
{
    if (m_next)
        return true;
    const bool isBurst = m_options.burst > 0;
    if (isBurst && m_sent == m_options.burst)
        return false;
    m_next = m_scenario.next();
    if (m_next && !isBurst)
        m_due += m_next->pause;
    return m_next.has_value();
}

void FarmServer::deliverEvent()
{
    if (m_frames && m_next->render)
        m_frames->render(*m_next->render);
    m_next->packet.eventTime = QDateTime::currentSecsSinceEpoch();
    const QByteArray frame = encodeMessage(frameType(), CMD_NOTIFICATION, encodeNotification(m_next->packet));
    m_next.reset();
    ++m_sent;
    for (FarmLink *link : m_links) {
        if (link->isListening())
            link->sendEvent(frame);
    }
}

void FarmServer::deliverGarbage()
{
    const Garbage piece = garbage(m_garbageSent++);
    farmLog(QStringLiteral("garbage: %1").arg(piece.what));
    for (FarmLink *link : m_links) {
        if (!link->isListening())
            continue;
        if (piece.effect == Garbage::Effect::BreaksLink)
            link->sendBroken(piece.bytes);
        else
            link->send(piece.bytes);
    }
}

void FarmServer::endNight()
{
    m_played = true;
    logSummary();
    if (!m_options.once)
        return;
    const std::vector<FarmLink *> links = m_links;
    for (FarmLink *link : links)
        link->hangUp();
}
