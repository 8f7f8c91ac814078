#include <framereader.h>
#include <inflate.h>

#include <QtTest/QTest>

namespace {

QByteArray bytesOf(const char *hex)
{
    return QByteArray::fromHex(hex);
}

} // namespace

class TestFrameReader final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void wireLayout()
    {
        // type 0, length 3, param 0x01020304, command 401, "abc"
        QCOMPARE(encodeFrame(401, "abc", 0x01020304), bytesOf("00 03000000 04030201 91010000 616263"));
        const FrameHeader header = FrameHeader::decode(bytesOf("02 feffffff 04030201 59020000").constData());
        QCOMPARE(header.type, quint8(2));
        QCOMPARE(header.length, -2);
        QCOMPARE(header.param, 0x01020304U);
        QCOMPARE(header.command, 601U);
    }

    void everySplitGivesTheSameFrames()
    {
        const QByteArray wire = encodeFrame(FrameHeader::Plain, 601, "first") + encodeFrame(402, "")
            + encodeFrame(FrameHeader::Plain, 604, "last");
        for (qsizetype cut = 0; cut <= wire.size(); ++cut) {
            FrameReader reader;
            QByteArray seen;
            for (const QByteArrayView piece :
                 {QByteArrayView{wire}.first(cut), QByteArrayView{wire}.sliced(cut)}) {
                reader.append(piece);
                RawFrame frame;
                while (reader.take(frame) == FrameReader::Next::Frame)
                    seen += QByteArray::number(frame.header.command) + frame.payload.toByteArray() + ' ';
            }
            QCOMPARE(seen, "601first 402 604last ");
            QCOMPARE(reader.size(), 0);
        }
    }

    void everyTruncationWaits()
    {
        const QByteArray wire = encodeFrame(FrameHeader::Plain, 601, "payload");
        for (qsizetype cut = 0; cut <= wire.size(); ++cut) {
            FrameReader reader;
            reader.append(QByteArrayView{wire}.first(cut));
            RawFrame frame;
            QCOMPARE(reader.take(frame) == FrameReader::Next::Frame, cut == wire.size());
        }
    }

    void negativeLengthBreaksTheStreamUntilCleared()
    {
        FrameReader reader;
        reader.append(bytesOf("01 ffffffff 00000000 59020000") + encodeFrame(402, ""));
        RawFrame frame;
        QCOMPARE(reader.take(frame), FrameReader::Next::Broken);
        QCOMPARE(reader.take(frame), FrameReader::Next::Broken);
        reader.clear();
        reader.append(encodeFrame(402, ""));
        QCOMPARE(reader.take(frame), FrameReader::Next::Frame);
    }

    void inflateKeepsToItsBounds_data()
    {
        QTest::addColumn<QByteArray>("stream");
        QTest::addColumn<qsizetype>("capacity");
        QTest::addColumn<qsizetype>("size"); // -1: refused
        const auto stream = [](const QByteArray &plain) {
            return encodeFrame(FrameHeader::Compressed, 601, plain).sliced(FrameHeader::kSize + 4);
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

QTEST_APPLESS_MAIN(TestFrameReader)
#include "tst_framereader.moc"
