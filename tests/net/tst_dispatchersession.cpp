#include "loopbackpeer.h"

#include <framework/tframework.h>
#include <net/dispatchersession.h>
#include <net/protocol/packets.h>

#include <QtCore/QSettings>
#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

class TestDispatcherSession final : public QObject {
    Q_OBJECT

private:
    static LinkSettings settingsFor(const LoopbackPeer &peer)
    {
        LinkSettings settings;
        settings.address = QStringLiteral("127.0.0.1");
        settings.port = peer.port() + 65'536; // only the low 16 bits count
        settings.user = QStringLiteral("ann\u00fc");
        settings.password = QStringLiteral("secret");
        settings.skipDirectoryAuthentication = true;
        return settings;
    }

private Q_SLOTS:
    void logsInOnEveryConnection()
    {
        LoopbackPeer peer;
        DispatcherSession session;
        session.setSettings(settingsFor(peer));
        QVERIFY(!session.state());
        QVERIFY(!session.send(700, "no link", 0));
        session.checkLocalConnection();
        session.checkLocalConnection(); // one is under way
        QTRY_COMPARE(peer.received().size(), 1);
        QCOMPARE(peer.received()[0].command, uint(CMD_LOGIN));
        const auto login = decodeLogin(peer.received()[0].payload);
        QVERIFY(login);
        QCOMPARE(*login,
                 (LoginPacket{QStringLiteral("ann\u00fc"), QStringLiteral("secret"), true,
                              QString::fromStdString(TFramework::GetHostName())}));
        QCOMPARE(heartbeatTimers(session), 1);
        QCOMPARE(session.report().state, LinkReport::State::Connected);
        // A Dispatcher that is gone without a word is missed within two minutes.
        const auto socket = session.findChild<QTcpSocket *>();
        QCOMPARE(socket->socketOption(QAbstractSocket::KeepAliveOption).toInt(), 1);
        for (const auto &[option, wanted] :
             {std::pair(TCP_KEEPIDLE, 60), std::pair(TCP_KEEPINTVL, 15), std::pair(TCP_KEEPCNT, 4),
              std::pair(TCP_USER_TIMEOUT, 120'000)}) {
            int value = 0;
            socklen_t size = sizeof value;
            QCOMPARE(getsockopt(int(socket->socketDescriptor()), IPPROTO_TCP, option, &value, &size), 0);
            QCOMPARE(value, wanted);
        }

        peer.dropLink();
        QTRY_COMPARE(*session.state(), QAbstractSocket::UnconnectedState);
        QCOMPARE(heartbeatTimers(session), 0);
        session.checkLocalConnection();
        QTRY_COMPARE(peer.received().size(), 2);
        QCOMPARE(peer.connections(), 2);
    }

    void theLogInIsFirstBehindAFullQueueAndHeartbeatsFollow()
    {
        LoopbackPeer peer;
        DispatcherSession session;
        session.setSettings(settingsFor(peer));
        QSettings().setValue(QStringLiteral("network/heartbeat_resolution"), 1);
        session.checkLocalConnection();
        QSettings().clear();
        QVERIFY(session.send(700, QByteArray(1024 * 1024 - 13, 'w'), 0));
        QTRY_COMPARE(peer.received().size(), 2);
        QCOMPARE(peer.received()[0].command, uint(CMD_LOGIN));
        QCOMPARE(peer.received()[1].command, 700U);
        QTRY_COMPARE_WITH_TIMEOUT(peer.received().size(), 3, 8000);
        QCOMPARE(peer.received()[2].command, uint(CMD_HEARTBEAT));
    }

    void aMissingDispatcherIsTriedAgain()
    {
        quint16 port = 0;
        DispatcherSession session;
        {
            LoopbackPeer gone;
            port = gone.port();
            session.setSettings(settingsFor(gone));
        }
        QSignalSpy errors(&session, &DispatcherSession::errorOccurred);
        session.checkLocalConnection();
        QTRY_COMPARE(errors.size(), 1);
        QTRY_COMPARE(*session.state(), QAbstractSocket::UnconnectedState);
        QVERIFY(session.autoReconnect());
        QCOMPARE(session.report().state, LinkReport::State::Waiting);
        QCOMPARE(session.report().detail, QStringLiteral("Connection refused"));
        LoopbackPeer back(port);
        QVERIFY(back.listening());
        session.checkLocalConnection();
        QTRY_COMPARE(back.received().size(), 1);
        QCOMPARE(session.report().reason, LinkReport::Reason::None);
        connect(&session, &DispatcherSession::messageReady, this,
                [&session] { session.drain([](uint, QByteArray *) {}); });
        back.send("HTTP/1.1 400 Bad Request\r\n");
        QTRY_COMPARE(session.report().reason, LinkReport::Reason::Foreign);
        QCOMPARE(session.report().detail, QStringLiteral("HTTP"));
    }

    void refusalStopsUntilOtherSettings()
    {
        LoopbackPeer peer;
        DispatcherSession session;
        session.setSettings(settingsFor(peer));
        session.checkLocalConnection();
        QTRY_COMPARE(peer.received().size(), 1);
        session.refuse();
        QTRY_COMPARE(*session.state(), QAbstractSocket::UnconnectedState);
        QVERIFY(!session.autoReconnect());
        QCOMPARE(session.report().state, LinkReport::State::Refused);
        LinkSettings other = settingsFor(peer);
        other.user = QStringLiteral("ben");
        session.reconnect(other);
        QVERIFY(session.autoReconnect());
        QTRY_COMPARE(peer.received().size(), 2);
        QCOMPARE(decodeLogin(peer.received()[1].payload)->user, QStringLiteral("ben"));
    }

    void reconfiguredInTheMiddleOfADrain()
    {
        LoopbackPeer first;
        LoopbackPeer second;
        DispatcherSession session;
        session.setSettings(settingsFor(first));
        QByteArrayList drained;
        connect(&session, &DispatcherSession::messageReady, this, [&] {
            session.drain([&](uint, QByteArray *data) {
                drained += *data;
                if (drained.size() > 1)
                    return;
                // As behind a modal box: the user applies other settings and the new link comes up meanwhile.
                session.reconnect(settingsFor(second));
                QTRY_COMPARE(second.received().size(), 1);
            });
        });
        session.checkLocalConnection();
        QTRY_COMPARE(first.received().size(), 1);
        first.send(encodeMessage(MessageHeader::Plain, 601, "one")
                   + encodeMessage(MessageHeader::Plain, 601, "two"));
        QTRY_COMPARE(second.received().size(), 1);
        second.send(encodeMessage(MessageHeader::Plain, 601, "three"));
        QTRY_COMPARE(drained.size(), 2);
        QCOMPARE(drained[1], QByteArray("three", 6)); // the rest of the old link's drain is gone with it
    }
};

QTEST_GUILESS_MAIN(TestDispatcherSession)
#include "tst_dispatchersession.moc"
