#include <net/protocol/messagereader.h>
#include <notify/settings/inflate.h>

#include <QtTest/QTest>

namespace {

QByteArray bytesOf(const char *hex)
{
    return QByteArray::fromHex(hex);
}

} // namespace

class TestMessageReader final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void wireLayout()
    {
        // type 0, length 3, param 0x01020304, command 401, "abc"
        QCOMPARE(encodeMessage(401, "abc", 0x01020304), bytesOf("00 03000000 04030201 91010000 616263"));
        const MessageHeader header =
            MessageHeader::decode(bytesOf("02 feffffff 04030201 59020000").constData());
        QCOMPARE(header.type, quint8(2));
        QCOMPARE(header.length, -2);
        QCOMPARE(header.param, 0x01020304U);
        QCOMPARE(header.command, 601U);
    }

    void everySplitGivesTheSameMessages()
    {
        const QByteArray wire = encodeMessage(MessageHeader::Plain, 601, "first") + encodeMessage(402, "")
            + encodeMessage(MessageHeader::Plain, 604, "last");
        for (qsizetype cut = 0; cut <= wire.size(); ++cut) {
            MessageReader reader;
            QByteArray seen;
            for (const QByteArrayView piece :
                 {QByteArrayView{wire}.first(cut), QByteArrayView{wire}.sliced(cut)}) {
                reader.append(piece);
                RawMessage message;
                while (reader.take(message) == MessageReader::Next::Message)
                    seen += QByteArray::number(message.header.command) + message.payload.toByteArray() + ' ';
            }
            QCOMPARE(seen, "601first 402 604last ");
            QCOMPARE(reader.size(), 0);
        }
    }

    void negativeLengthBreaksTheStreamUntilCleared()
    {
        MessageReader reader;
        reader.append(bytesOf("01 ffffffff 00000000 59020000") + encodeMessage(402, ""));
        RawMessage message;
        QCOMPARE(reader.take(message), MessageReader::Next::Broken);
        QCOMPARE(reader.take(message), MessageReader::Next::Broken);
        reader.clear();
        reader.append(encodeMessage(402, ""));
        QCOMPARE(reader.take(message), MessageReader::Next::Message);
    }

    void inflateKeepsToItsBounds_data()
    {
        QTest::addColumn<QByteArray>("stream");
        QTest::addColumn<qsizetype>("capacity");
        QTest::addColumn<qsizetype>("size"); // -1: refused
        const auto stream = [](const QByteArray &plain) {
            return encodeMessage(MessageHeader::Compressed, 601, plain).sliced(MessageHeader::kSize + 4);
        };
        const QByteArray text = QByteArray("frame ").repeated(1000);
        const QByteArray bomb = stream(QByteArray(kMaxInflatedSize + 1, '\0'));
        QTest::newRow("exact") << stream(text) << qsizetype(6000) << qsizetype(6000);
        QTest::newRow("announced larger") << stream(text) << qsizetype(2'000'000'000) << qsizetype(6000);
        QTest::newRow("announced smaller by one") << stream(text) << qsizetype(5999) << qsizetype(-1);
        QTest::newRow("announced nothing") << stream(text) << qsizetype(0) << qsizetype(-1);
        QTest::newRow("nothing in it") << stream({}) << qsizetype(0) << qsizetype(0);
        QTest::newRow("followed by other bytes")
            << stream(text) + "tail" << qsizetype(6000) << qsizetype(6000);
        QTest::newRow("cut off") << stream(text).chopped(1) << qsizetype(6000) << qsizetype(-1);
        QTest::newRow("no stream") << QByteArray("not zlib") << qsizetype(6000) << qsizetype(-1);
        QTest::newRow("no bytes") << QByteArray() << qsizetype(6000) << qsizetype(-1);
        QTest::newRow("bomb at the limit")
            << stream(QByteArray(kMaxInflatedSize, '\0')) << qsizetype(2'000'000'000) << kMaxInflatedSize;
        QTest::newRow("bomb over the limit") << bomb << qsizetype(2'000'000'000) << qsizetype(-1);
    }

    void inflateKeepsToItsBounds()
    {
        QFETCH(const QByteArray, stream);
        QFETCH(const qsizetype, capacity);
        QFETCH(const qsizetype, size);
        const auto inflated = inflateStream(stream, capacity);
        QCOMPARE(inflated ? inflated->size() : -1, size);
    }
};

QTEST_APPLESS_MAIN(TestMessageReader)
#include "tst_messagereader.moc"
