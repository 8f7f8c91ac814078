#include "table.h"

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
        const auto stream = [](const QByteArray &plain) {
            return encodeMessage(MessageHeader::Compressed, 601, plain).sliced(MessageHeader::kSize + 4);
        };
        const QByteArray text = QByteArray("frame ").repeated(1000);
        // -1: refused
        addTable<QByteArray, qsizetype, qsizetype>(
            {"stream", "capacity", "size"},
            {{"exact", stream(text), 6000, 6000},
             {"announced larger", stream(text), 2'000'000'000, 6000},
             {"announced smaller by one", stream(text), 5999, -1},
             {"announced nothing", stream(text), 0, -1},
             {"nothing in it", stream({}), 0, 0},
             {"followed by other bytes", stream(text) + "tail", 6000, 6000},
             {"cut off", stream(text).chopped(1), 6000, -1},
             {"no stream", "not zlib", 6000, -1},
             {"no bytes", {}, 6000, -1},
             {"bomb at the limit", stream(QByteArray(kMaxInflatedSize, '\0')), 2'000'000'000,
              kMaxInflatedSize},
             {"bomb over the limit", stream(QByteArray(kMaxInflatedSize + 1, '\0')), 2'000'000'000, -1}});
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
