#include "loopbackpeer.h"

#include <qlwtcpsocket.h>

#include <QtCore/QRegularExpression>
#include <QtCore/QSettings>
#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>

namespace {

constexpr qsizetype kLimit = qsizetype(1024) * 1024;

QByteArray compressedFrame(const QByteArray &plain, qint32 announced)
{
    QByteArray wire = encodeFrame(FrameHeader::Compressed, 601, plain);
    for (int i = 0; i < 4; ++i)
        wire[FrameHeader::kSize + i] = char(quint32(announced) >> (8 * i));
    return wire;
}

QByteArray headerOf(quint8 type, qint32 length)
{
    QByteArray bytes;
    FrameHeader{type, length, 0, 601}.appendTo(bytes);
    return bytes;
}

} // namespace

class TestQLWTCPSocket final : public QObject {
    Q_OBJECT

private:
    /// The socket under test, connected to a peer; collects the messages it drains.
    struct Link {
        LoopbackPeer peer;
        QLWTCPSocket socket;
        QList<QByteArray> messages;

        explicit Link(bool drains = true)
        {
            if (drains)
                QObject::connect(&socket, &QLWTCPSocket::messageReady, &socket, [this] { drain(); });
            socket.connectToHost(QStringLiteral("127.0.0.1"), peer.port());
        }
        bool up() const { return socket.state() == QAbstractSocket::ConnectedState && peer.link(); }
        void drain()
        {
            uint command = 0;
            QByteArray data;
            while (socket.hasMessage()) {
                if (socket.getMessage(&command, &data, nullptr))
                    messages += data;
            }
        }
    };

private Q_SLOTS:
    void signalsAndSlotsStandInOrder()
    {
        const QMetaObject &meta = QLWTCPSocket::staticMetaObject;
        QByteArrayList names;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            names += meta.method(i).name();
        QCOMPARE(
            names.join(' '),
            "messageReady sendBufferOverflow rcvBufferOverflow zCompressError zDecompressError sendActivity "
            "rcvActivity readReady writeReady checkHeartBeat");
    }

    void payloadsByType()
    {
        Link link;
        QTRY_VERIFY(link.up());
        link.peer.send(encodeFrame(FrameHeader::Plain, 601, "plain") + encodeFrame(601, "not delivered")
                       + encodeFrame(FrameHeader::Type(7), 601, "other")
                       + encodeFrame(FrameHeader::Compressed, 601, "inflated")
                       + compressedFrame("less than announced", 1000)
                       + encodeFrame(FrameHeader::Plain, 601, ""));
        QTRY_COMPARE(link.messages.size(), 6);
        QCOMPARE(link.messages[0], QByteArray("plain", 6));
        QCOMPARE(link.messages[1], QByteArray());
        QCOMPARE(link.messages[2], QByteArray("other", 6));
        QCOMPARE(link.messages[3], QByteArray("inflated", 9));
        QCOMPARE(link.messages[4], QByteArray("less than announced", 20));
        QCOMPARE(link.messages[5], QByteArray("", 1));
    }

    void singleBytesAddUp()
    {
        Link link;
        QTRY_VERIFY(link.up());
        link.peer.link()->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        for (const char byte : encodeFrame(FrameHeader::Plain, 601, "bit by bit"))
            link.peer.send(QByteArray(1, byte));
        QTRY_COMPARE(link.messages.size(), 1);
        QCOMPARE(link.messages[0], QByteArray("bit by bit", 11));
    }

    void limitsOfOneFrame_data()
    {
        QTest::addColumn<qsizetype>("frameSize");
        QTest::addColumn<bool>("delivered");
        QTest::newRow("one below") << kLimit - 1 << true;
        QTest::newRow("at the limit") << kLimit << true;
        QTest::newRow("one above") << kLimit + 1 << false;
    }

    void limitsOfOneFrame()
    {
        QFETCH(const qsizetype, frameSize);
        QFETCH(const bool, delivered);
        Link link;
        QTRY_VERIFY(link.up());
        QSignalSpy overflow(&link.socket, &QLWTCPSocket::rcvBufferOverflow);
        const qsizetype payload = frameSize - FrameHeader::kSize;
        link.peer.send(encodeFrame(FrameHeader::Plain, 601, QByteArray(payload, 'x')));
        if (delivered) {
            QTRY_COMPARE(link.messages.size(), 1);
            QCOMPARE(link.messages[0].size(), payload + 1);
            QCOMPARE(overflow.size(), 0);
        } else {
            QTRY_COMPARE(overflow.size(), 1);
            QVERIFY(link.up());
            QVERIFY(!link.socket.hasMessage());
            QCOMPARE(link.messages.size(), 0);
        }
    }

    void aMessageStillInflatesAfterADamagedOne()
    {
        Link link;
        QTRY_VERIFY(link.up());
        QSignalSpy damaged(&link.socket, &QLWTCPSocket::zDecompressError);
        link.peer.send(encodeFrame(FrameHeader::Plain, 601, "before") + headerOf(2, 8) + "garbage!");
        QTRY_COMPARE(damaged.size(), 1);
        link.peer.send(headerOf(2, 3) + "abc"); // too short for its size field
        QTRY_COMPARE(damaged.size(), 2);
        link.peer.send(compressedFrame(QByteArray(100'000, 'b'), 99'999)); // holds more than announced
        QTRY_COMPARE(damaged.size(), 3);
        link.peer.send(encodeFrame(FrameHeader::Compressed, 601, "after"));
        QTRY_COMPARE(link.messages.size(), 2);
        QCOMPARE(link.messages[1], QByteArray("after", 6));
        QVERIFY(link.up());
    }

    void brokenStreamsAreAborted_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("negative length") << headerOf(1, -1);
        QTest::newRow("most negative length") << headerOf(0, std::numeric_limits<qint32>::min());
        QTest::newRow("negative inflated size") << compressedFrame("text", -1);
    }

    void brokenStreamsAreAborted()
    {
        QFETCH(const QByteArray, bytes);
        Link link;
        QTRY_VERIFY(link.up());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("the connection is dropped")));
        link.peer.send(bytes + encodeFrame(FrameHeader::Plain, 601, "never seen"));
        QTRY_COMPARE(link.socket.state(), QAbstractSocket::UnconnectedState);
        QVERIFY(!link.socket.hasMessage());
        QCOMPARE(link.messages.size(), 0);
    }

    void aDeadLinkLeavesNothingToTheNext()
    {
        Link link;
        QTRY_VERIFY(link.up());
        QSignalSpy activity(&link.socket, &QLWTCPSocket::rcvActivity);
        link.peer.send(encodeFrame(FrameHeader::Plain, 601, "half a frame").chopped(5));
        QTRY_COMPARE(activity.size(), 1);
        link.peer.dropLink();
        QTRY_COMPARE(link.socket.state(), QAbstractSocket::UnconnectedState);
        link.socket.connectToHost(QStringLiteral("127.0.0.1"), link.peer.port());
        QTRY_COMPARE(link.peer.connections(), 2);
        QTRY_VERIFY(link.up());
        link.peer.send(encodeFrame(FrameHeader::Plain, 601, "whole"));
        QTRY_COMPARE(link.messages.size(), 1);
        QCOMPARE(link.messages[0], QByteArray("whole", 6));
    }

    void messagesWaitForTheConnectionBehindTheLogin()
    {
        LoopbackPeer peer;
        QLWTCPSocket socket;
        QVERIFY(socket.sendMessage(700, "waits", 0));
        socket.connectToHost(QStringLiteral("127.0.0.1"), peer.port());
        QTRY_COMPARE(socket.state(), QAbstractSocket::ConnectedState);
        QVERIFY(socket.sendFirst(401, "first", 0));
        QTRY_COMPARE(peer.received().size(), 2);
        QCOMPARE(peer.received()[0].payload, "first");
        QCOMPARE(peer.received()[1].payload, "waits");
    }

    void aPeerThatNeverReadsFillsTheSendBufferAndNoMore()
    {
        Link link;
        QTRY_VERIFY(link.up());
        link.peer.stopReading();
        QSignalSpy overflow(&link.socket, &QLWTCPSocket::sendBufferOverflow);
        const QByteArray payload(60'000, 'p');
        int accepted = 0;
        // The system's own buffers take some megabytes first.
        while (link.socket.sendMessage(700, payload, 0) && accepted < 10'000) {
            ++accepted;
            link.socket.flush();
        }
        QCOMPARE(overflow.size(), 1);
        QVERIFY(accepted < 1000);
        QVERIFY(link.socket.bytesToWrite() <= 65'536);
        QVERIFY(link.up());
        QVERIFY(link.socket.sendMessage(700, payload, 0)); // the refusal emptied the buffer
    }

    void sendLimitCountsTheHeader()
    {
        QLWTCPSocket socket;
        QSignalSpy overflow(&socket, &QLWTCPSocket::sendBufferOverflow);
        QVERIFY(socket.sendMessage(700, QByteArray(kLimit - FrameHeader::kSize, 'p'), 0));
        QVERIFY(!socket.sendMessage(700, {}, 0));
        QVERIFY(!socket.sendMessage(700, QByteArray(kLimit - FrameHeader::kSize + 1, 'p'), 0));
        QCOMPARE(overflow.size(), 2);
    }

    void largeMessagesArriveWhole()
    {
        Link link;
        QTRY_VERIFY(link.up());
        const QByteArray payload = QByteArray("0123456789").repeated(100'000);
        QVERIFY(link.socket.sendMessage(700, payload, 0));
        QTRY_COMPARE(link.peer.received().size(), 1);
        QCOMPARE(link.peer.received()[0].payload, payload);
    }

    void heartbeatFollowsSilence()
    {
        Link link;
        QTRY_VERIFY(link.up());
        QDateTime now = QDateTime::fromSecsSinceEpoch(1'000'000);
        link.socket.setClock([&now] { return now; });
        link.socket.setHeartbeatCommand(402);
        link.socket.startHeartbeat();
        const auto heartbeatsAfter = [&](qint64 seconds) {
            now = now.addSecs(seconds);
            link.socket.checkHeartBeat();
            link.socket.sendMessage(1, {}, 0); // marks the end; also counts as activity
            const qsizetype before = link.peer.received().size();
            if (!QTest::qWaitFor([&] {
                    return link.peer.received().size() > before && link.peer.received().last().command == 1;
                }))
                return qsizetype(-1);
            return link.peer.received().size() - before - 1;
        };
        QCOMPARE(heartbeatsAfter(599), 0);
        QCOMPARE(heartbeatsAfter(599), 0); // the message above broke the silence
        QCOMPARE(heartbeatsAfter(600), 1);
        QCOMPARE(heartbeatsAfter(-3600), 1); // a clock set back
        QCOMPARE(link.peer.received().at(link.peer.received().size() - 2).command, 402U);
    }

    void heartbeatRunsByItsTimer()
    {
        QSettings().setValue(QStringLiteral("network/heartbeat_resolution"), 0);
        Link link;
        QSettings().remove(QStringLiteral("network/heartbeat_resolution"));
        QTRY_VERIFY(link.up());
        link.socket.setHeartbeatCommand(402);
        link.socket.startHeartbeat();
        link.socket.startHeartbeat();
        QTRY_COMPARE_WITH_TIMEOUT(link.peer.received().size(), 1, 8000);
        QCOMPARE(link.peer.received()[0].command, 402U);
        link.socket.stopHeartbeat();
        QCOMPARE(heartbeatTimers(link.socket), 0);
    }

    void maybeRetiredWhileItDelivers()
    {
        LoopbackPeer peer;
        const QPointer<QLWTCPSocket> socket = new QLWTCPSocket;
        connect(socket, &QLWTCPSocket::messageReady, this, [&socket] {
            socket->retire();
            QEventLoop nested; // as a modal box would
            QTimer::singleShot(0, &nested, &QEventLoop::quit);
            nested.exec();
            QVERIFY(socket);
        });
        socket->connectToHost(QStringLiteral("127.0.0.1"), peer.port());
        QTRY_VERIFY(peer.link());
        peer.send(encodeFrame(FrameHeader::Plain, 601, "a") + encodeFrame(FrameHeader::Plain, 601, "b"));
        QTRY_VERIFY(!socket);
    }
};

QTEST_GUILESS_MAIN(TestQLWTCPSocket)
#include "tst_qlwtcpsocket.moc"
