#include "table.h"

#include <net/protocol/packets.h>

#include <QtTest/QTest>

class TestPackets final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void loginBytes()
    {
        // The UTF-8 bytes of u-umlaut, C3 BC, are read as two Latin-1 characters and encoded once more.
        const LoginPacket login{QStringLiteral("\u00fc"), QStringLiteral("p\u20acw"), true,
                                QStringLiteral("b\u00fc")};
        const QByteArray wire = encodeLogin(login);
        QCOMPARE(wire, QByteArray("\xc3\x83\xc2\xbc\np\xc3\xa2\xc2\x82\xc2\xacw\n1\n1\nb\xc3\xbc\n"));
        QCOMPARE(decodeLogin(wire), login);
        QCOMPARE(encodeLogin({QStringLiteral("a"), {}, false, QStringLiteral("h")}), "a\n\n1\n0\nh\n");
        QVERIFY(!decodeLogin("a\nb\n1\n0"));
    }

    void aLineFeedCannotForgeAField()
    {
        const LoginPacket login{QStringLiteral("a\nb"), QStringLiteral("c"), false, QStringLiteral("h")};
        const auto decoded = decodeLogin(encodeLogin(login));
        QVERIFY(decoded);
        QCOMPARE(decoded->user, QStringLiteral("a b"));
        QCOMPARE(decoded->password, QStringLiteral("c"));
    }

    void notificationRoundTrip()
    {
        NotificationPacket sent;
        sent.message = QStringLiteral("Job \u201cShot010\u201d done");
        sent.eventType = 4096;
        sent.eventTime = -1;
        sent.user = QStringLiteral("ann");
        sent.job = "am9i";
        // As the socket delivers it, with a terminating zero.
        QCOMPARE(decodeNotification(encodeNotification(sent) + '\0'), sent);
    }

    void notificationFields_data()
    {
        addTable<QByteArray, bool, qint64, qint64>(
            {"payload", "accepted", "type", "time"},
            {{"six fields", "m\n1\n2\nu\n\n", false, 0, 0},
             {"seven fields", "m\n1\n2\nu\n\n\n", true, 1, 2},
             {"more fields", "m\n1\n2\nu\n\n\nx\ny\nz", true, 1, 2},
             {"zero byte ends it", QByteArray("m\n1\n2\nu\n\n\0\n", 12), false, 0, 0},
             {"no numbers", "m\nx\n\nu\n\n\n", true, 0, 0},
             {"wide type is cut", "m\n4294967297\n2\nu\n\n\n", true, 1, 2},
             {"top bit is a sign", "m\n4294967295\n2\nu\n\n\n", true, -1, 2},
             {"nothing", {}, false, 0, 0},
             {"a million separators", QByteArray(1'000'000, '\n'), true, 0, 0}});
    }

    void notificationFields()
    {
        QFETCH(const QByteArray, payload);
        QFETCH(const bool, accepted);
        QFETCH(const qint64, type);
        QFETCH(const qint64, time);
        const auto packet = decodeNotification(payload);
        QCOMPARE(packet.has_value(), accepted);
        if (packet) {
            QCOMPARE(packet->eventType, type);
            QCOMPARE(packet->eventTime, time);
        }
    }

    void customMessages()
    {
        const CustomMessagePacket sent{12, QByteArray("bytes\0\n\xff", 8)};
        QCOMPARE(decodeCustomMessage(encodeCustomMessage(sent) + '\0'), sent);
        QVERIFY(!decodeCustomMessage("12"));
        QCOMPARE(decodeCustomMessage("-3\n")->templateId, -3);
        QCOMPARE(decodeCustomMessage("none\n!!!")->templateId, 0);
    }
};

QTEST_APPLESS_MAIN(TestPackets)
#include "tst_packets.moc"
