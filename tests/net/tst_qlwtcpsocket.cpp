#include "loopbackpeer.h"

#include <net/qlwtcpsocket.h>

#include <QtCore/QRegularExpression>
#include <QtCore/QSettings>
#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>

namespace {

constexpr qsizetype kLimit = qsizetype(1024) * 1024;

QByteArray compressedMessage(const QByteArray &plain, qint32 announced)
{
    QByteArray wire = encodeMessage(MessageHeader::Compressed, 601, plain);
    for (int i = 0; i < 4; ++i)
        wire[MessageHeader::kSize + i] = char(quint32(announced) >> (8 * i));
    return wire;
}

/// What the client gets of a text: a zero behind it.
QByteArray ended(const QByteArray &text)
{
    return text + '\0';
}

QByteArray headerOf(quint8 type, qint32 length)
{
    QByteArray bytes;
    MessageHeader{type, length, 0, 601}.appendTo(bytes);
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

        Link()
        {
            QObject::connect(&socket, &QLWTCPSocket::messageReady, &socket, [this] {
                uint command = 0;
                QByteArray data;
                while (socket.hasMessage()) {
                    if (socket.getMessage(&command, &data, nullptr))
                        messages += data;
                }
            });
            connect();
        }
        bool up() const { return socket.state() == QAbstractSocket::ConnectedState && peer.link(); }
        void connect()
        {
            const int before = peer.connections();
            socket.connectToHost(QStringLiteral("127.0.0.1"), peer.port());
            QTRY_COMPARE(peer.connections(), before + 1);
            QTRY_VERIFY(up());
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
        link.peer.send(encodeMessage(MessageHeader::Plain, 601, "plain") + encodeMessage(601, "not delivered")
                       + encodeMessage(MessageHeader::Type(7), 601, "other")
                       + encodeMessage(MessageHeader::Compressed, 601, "inflated")
                       + compressedMessage("less than announced", 1000)
                       + encodeMessage(MessageHeader::Plain, 601, "")
                       + encodeMessage(MessageHeader::Compressed, 601, ""));
        QTRY_COMPARE(link.messages,
                     (QByteArrayList{ended("plain"), "", ended("other"), ended("inflated"),
                                     ended("less than announced"), ended(""), ended("")}));
    }

    void limitOfOneMessage()
    {
        Link link;
        QSignalSpy overflow(&link.socket, &QLWTCPSocket::rcvBufferOverflow);
        const QByteArray largest(kLimit - MessageHeader::kSize, 'x');
        link.peer.send(encodeMessage(MessageHeader::Plain, 601, largest));
        QTRY_COMPARE(link.messages, QByteArrayList{ended(largest)});
        QCOMPARE(overflow.size(), 0);
        link.peer.send(encodeMessage(MessageHeader::Plain, 601, largest + 'x'));
        QTRY_COMPARE(overflow.size(), 1);
        QCOMPARE(link.messages.size(), 1);
        QVERIFY(!link.socket.hasMessage());
        link.peer.send(encodeMessage(MessageHeader::Plain, 601, QByteArray(3 * kLimit, 'x'))
                       + encodeMessage(MessageHeader::Plain, 601, "after"));
        QTRY_COMPARE(link.messages.value(1), ended("after"));
        QCOMPARE(overflow.size(), 2);
        QVERIFY(link.up());
    }

    void aMessageStillInflatesAfterADamagedOne()
    {
        Link link;
        QSignalSpy damaged(&link.socket, &QLWTCPSocket::zDecompressError);
        link.peer.send(encodeMessage(MessageHeader::Plain, 601, "before") + headerOf(2, 8) + "garbage!");
        QTRY_COMPARE(damaged.size(), 1);
        link.peer.send(headerOf(2, 3) + "abc" // too short for its size field
                       + encodeMessage(MessageHeader::Plain, 601, "goes with it").chopped(3));
        QTRY_COMPARE(damaged.size(), 2);
        link.peer.send(QByteArray(" it")
                       + compressedMessage(QByteArray(100'000, 'b'), 99'999)); // holds more than announced
        QTRY_COMPARE(damaged.size(), 3);
        link.peer.send(encodeMessage(MessageHeader::Compressed, 601, "after"));
        QTRY_COMPARE(link.messages, (QByteArrayList{ended("before"), ended("after")}));
        QVERIFY(link.up());
    }

    void brokenStreamsAreAborted()
    {
        for (const QByteArray &bytes : {headerOf(1, -1), headerOf(0, std::numeric_limits<qint32>::min()),
                                        headerOf(1, 64 * 1024 * 1024 + 1), compressedMessage("text", -1)}) {
            Link link;
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression(QStringLiteral("Hung up on the Dispatcher")));
            link.peer.send(bytes + encodeMessage(MessageHeader::Plain, 601, "never seen"));
            QTRY_COMPARE(link.socket.state(), QAbstractSocket::UnconnectedState);
            QVERIFY(!link.socket.hasMessage() && link.messages.isEmpty());
        }
    }

    void messagesWaitForTheConnectionBehindTheLogin()
    {
        LoopbackPeer peer;
        QLWTCPSocket socket;
        const QByteArray large = QByteArray("0123456789").repeated(100'000);
        QVERIFY(socket.sendMessage(700, "waits", 0));
        socket.connectToHost(QStringLiteral("127.0.0.1"), peer.port());
        QTRY_COMPARE(socket.state(), QAbstractSocket::ConnectedState);
        socket.sendFirst(401, "first", 0);
        QVERIFY(socket.sendMessage(700, large, 0));
        QTRY_COMPARE(peer.received().size(), 3);
        QCOMPARE(peer.received()[0].payload, "first");
        QCOMPARE(peer.received()[1].payload, "waits");
        QCOMPARE(peer.received()[2].payload, large);
    }

    void aBurstLargerThanTheQueueArrivesWhole()
    {
        Link link;
        for (int i = 0; i < 1500; ++i)
            QVERIFY(link.socket.sendMessage(uint(i), QByteArray(1000, 'p'), 0));
        QTRY_COMPARE(link.peer.received().size(), 1500);
        for (int i = 0; i < 1500; ++i)
            QCOMPARE(link.peer.received()[i].command, uint(i));
    }

    void aPeerThatDoesNotReadFillsTheSendBufferAndTearsNoMessage()
    {
        Link link;
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
        QVERIFY(link.socket.sendMessage(701, payload, 0)); // the refusal emptied the buffer
        link.peer.resumeReading();
        QTRY_COMPARE(link.peer.received().value(link.peer.received().size() - 1).command, 701U);
        QVERIFY(link.peer.received().size() <= accepted + 1);
    }

    void whatWasHalfDoneEndsWithItsLink()
    {
        Link link;
        const QByteArray half = encodeMessage(MessageHeader::Plain, 601, "cut by the overflow");
        link.peer.send(half.first(20));
        QSignalSpy read(&link.socket, &QLWTCPSocket::rcvActivity);
        QTRY_COMPARE(read.size(), 1);
        link.peer.stopReading();
        while (link.socket.sendMessage(700, QByteArray(60'000, 'p'), 0)) { }
        link.peer.send(half.sliced(20) + encodeMessage(MessageHeader::Plain, 601, "next"));
        QTRY_COMPARE(link.messages, QByteArrayList{ended("next")});
        QVERIFY(link.socket.sendMessage(700, QByteArray(60'000, 'p'), 0)); // begins to leave
        link.peer.send(half.first(20));
        QTRY_VERIFY(read.size() >= 3);
        link.peer.dropLink();
        QTRY_COMPARE(link.socket.state(), QAbstractSocket::UnconnectedState);
        link.connect();
        link.socket.sendFirst(401, "log-in", 0);
        QTRY_COMPARE(link.peer.received().size(), 1);
        QCOMPARE(link.peer.received()[0].payload, "log-in");
        link.peer.send(encodeMessage(MessageHeader::Plain, 601, "anew"));
        QTRY_COMPARE(link.messages.value(1), ended("anew"));
    }

    void sendLimitCountsTheHeader()
    {
        QLWTCPSocket socket;
        QSignalSpy overflow(&socket, &QLWTCPSocket::sendBufferOverflow);
        QVERIFY(socket.sendMessage(700, QByteArray(kLimit - MessageHeader::kSize, 'p'), 0));
        QVERIFY(!socket.sendMessage(700, {}, 0));
        QVERIFY(!socket.sendMessage(700, QByteArray(kLimit - MessageHeader::kSize + 1, 'p'), 0));
        QCOMPARE(overflow.size(), 2);
    }

    void heartbeatFollowsSilence()
    {
        Link link;
        QDateTime now = QDateTime::fromSecsSinceEpoch(1'000'000);
        link.socket.setClock([&now] { return now; });
        link.socket.setHeartbeatCommand(402);
        link.socket.startHeartbeat();
        for (const int seconds : {599, 599, 600, -3600}) { // at last a clock set back
            now = now.addSecs(seconds);
            link.socket.checkHeartBeat();
            link.socket.sendMessage(1, {}, 0); // breaks the silence
            link.socket.flush();
        }
        QTRY_COMPARE(link.peer.received().size(), 6);
        QList<uint> commands;
        for (const LoopbackPeer::Received &received : link.peer.received())
            commands += received.command;
        QCOMPARE(commands, QList<uint>({1, 1, 402, 1, 402, 1}));
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
        peer.send(encodeMessage(MessageHeader::Plain, 601, "a")
                  + encodeMessage(MessageHeader::Plain, 601, "b"));
        QTRY_VERIFY(!socket);
    }
};

QTEST_GUILESS_MAIN(TestQLWTCPSocket)
#include "tst_qlwtcpsocket.moc"
