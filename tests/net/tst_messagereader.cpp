#include "table.h"

#include <net/protocol/messagereader.h>
#include <net/protocol/sendqueue.h>
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

    void lengthsThatCannotBeBelievedBreakTheStreamUntilCleared()
    {
        MessageReader reader;
        RawMessage message;
        for (const char *length : {"ffffffff", "01000004", "53534820"}) {
            reader.append(bytesOf("01") + bytesOf(length) + bytesOf("00000000 59020000")
                          + encodeMessage(402, ""));
            QCOMPARE(reader.take(message), MessageReader::Next::Broken);
            QCOMPARE(reader.take(message), MessageReader::Next::Broken);
            reader.clear();
        }
        reader.append(bytesOf("01 00000004 00000000 59020000")); // 64 MiB
        QCOMPARE(reader.take(message), MessageReader::Next::NeedMore);
        reader.clear();
        reader.append(encodeMessage(402, ""));
        QCOMPARE(reader.take(message), MessageReader::Next::Message);
    }

    void staysInStepWhereverItDrops()
    {
        const QByteArrayList messages{encodeMessage(1, "first"), encodeMessage(2, ""),
                                      encodeMessage(3, "third"), encodeMessage(4, "x")};
        const QByteArray wire = messages.join();
        for (qsizetype cut = 0; cut <= wire.size(); ++cut) {
            MessageReader reader;
            reader.append(QByteArrayView{wire}.first(cut));
            const Loss loss = reader.drop();
            QCOMPARE(reader.drop().messages, 0);
            QList<uint> seen;
            for (const char byte : wire.sliced(cut)) {
                reader.append({&byte, 1});
                RawMessage message;
                while (reader.take(message) == MessageReader::Next::Message)
                    seen += message.header.command;
            }
            // What began before the cut is lost, and nothing else.
            QList<uint> wanted;
            qsizetype start = 0;
            for (qsizetype i = 0; i < messages.size(); start += messages[i++].size()) {
                if (start >= cut)
                    wanted += uint(i + 1);
            }
            QCOMPARE(seen, wanted);
            QCOMPARE(loss.messages, messages.size() - wanted.size());
            QCOMPARE(reader.size(), 0);
        }
    }

    void whatHasBegunToLeaveLeavesWhole()
    {
        const QByteArray wire = encodeMessage(1, "first") + encodeMessage(2, "") + encodeMessage(3, "third");
        for (qsizetype cut = 0; cut <= wire.size(); ++cut) {
            SendQueue queue;
            queue.append(encodeMessage(1, "first"));
            queue.append(encodeMessage(2, "") + encodeMessage(3, "third"));
            queue.remove(cut / 2);
            queue.remove(cut - cut / 2);
            const Loss loss = queue.drop();
            queue.append(encodeMessage(5, "last"));
            queue.prepend(encodeMessage(4, "first of all"));
            MessageReader peer;
            peer.append(wire.first(cut) + queue.bytes().toByteArray());
            QList<uint> seen;
            RawMessage message;
            while (peer.take(message) == MessageReader::Next::Message)
                seen += message.header.command;
            const qsizetype left = seen.size() - 2;
            QCOMPARE(left + loss.messages, 3);
            QCOMPARE(seen.sliced(left), (QList<uint>{4, 5}));
            QCOMPARE(peer.size(), 0);
        }
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
