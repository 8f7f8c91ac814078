#include "imagefiles.h"

#include <image_library/zipunpacker.h>

#include <ImfFrameBuffer.h>
#include <ImfHeader.h>
#include <ImfInputPart.h>
#include <ImfMultiPartInputFile.h>

#include <QtTest/QTest>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <future>

using namespace TImageLibrary;

namespace {

/// The samples of a channel within the display window as the format's own reader has them, 0 where it has none.
QByteArray ownSamples(Imf::MultiPartInputFile &file, int part, const ExrChannelSpec &channel,
                      Imf::PixelType type)
{
    const Imath::Box2i data = file.header(part).dataWindow();
    const Imath::Box2i display = file.header(part).displayWindow();
    const Imath::V2i step = channel.sampling;
    const auto size = std::size_t(type == Imf::HALF ? 2 : 4);
    const auto columns = std::size_t(data.max.x - data.min.x) / std::size_t(step.x) + 1;
    std::vector<char> samples(columns * std::size_t(data.max.y - data.min.y + 1) * size);
    Imf::FrameBuffer buffer;
    buffer.insert(channel.name,
                  Imf::Slice::Make(type, samples.data(), data, size, size * columns, step.x, step.y));
    Imf::InputPart input(file, part);
    input.setFrameBuffer(buffer);
    input.readPixels(data.min.y, data.max.y);

    QByteArray visible;
    for (int y = display.min.y; y <= display.max.y; ++y) {
        for (int x = display.min.x; x <= display.max.x; ++x) {
            if (x % step.x != 0 || y % step.y != 0)
                continue;
            const auto row = std::size_t((y - data.min.y) / step.y);
            const auto column = std::size_t((x - data.min.x) / step.x);
            visible += data.intersects(Imath::V2i(x, y))
                ? QByteArray(samples.data() + (row * columns + column) * size, qsizetype(size))
                : QByteArray(qsizetype(size), '\0');
        }
    }
    return visible;
}

} // namespace

/// What chunks unpack to, against the format's own reader.
class ImageLibraryUnpackTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anyFile_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 0; seed < 12U * Imf::NUM_COMPRESSION_METHODS; ++seed)
            QTest::addRow("compression %u, %u", seed % Imf::NUM_COMPRESSION_METHODS, seed) << seed;
    }

    /// Bit by bit as the format's own reader has it, for two loads at once.
    void anyFile()
    {
        QFETCH(const unsigned, seed);
        std::mt19937 random(seed);
        const auto below = [&random](int limit) { return int(random() % unsigned(limit)); };
        std::vector<ExrSpec> parts(std::size_t(below(3)) + 1);
        std::set<std::string> names;
        std::vector<std::pair<int, ExrChannelSpec>> wanted; // with their parts
        for (ExrSpec &part : parts) {
            const auto number = int(&part - parts.data());
            part.compression = Imf::Compression(seed % Imf::NUM_COMPRESSION_METHODS);
            part.tiled = below(3) == 0;
            part.order = Imf::LineOrder(below(part.tiled ? 3 : 2));
            part.part = parts.size() > 1 ? "part" + std::to_string(number) : "";
            part.random = &random;
            const bool halved = !part.tiled && below(4) == 0;
            part.display = {{-7, 3}, {80, 90}};
            part.data.min = {below(50) * 2 - 60, below(50) * 2 - 60};
            part.data.max = part.data.min + Imath::V2i(below(60) * 2 + 1, below(90) * 2 + 1);
            part.channels.clear();
            for (int i = below(4); i >= 0; --i) {
                part.channels.push_back({"c" + std::to_string(number) + std::to_string(i),
                                         Imf::PixelType(below(3)),
                                         halved && i % 2 == 1 ? Imath::V2i(1 + below(2), 2) : Imath::V2i(1)});
                if (wanted.empty() || below(2) == 0) {
                    wanted.emplace_back(number, part.channels.back());
                    names.insert(part.channels.back().name);
                }
            }
        }
        const ImageFolder folder;
        writeExr(folder("a.exr"), parts);
        const auto load = [&] { return loadImage(folder("a.exr"), names); };
        auto other = std::async(std::launch::async, load);
        Imf::MultiPartInputFile file(folder("a.exr").c_str());
        const bool isWide = std::any_of(wanted.begin(), wanted.end(),
                                        [](const auto &each) { return each.second.type != Imf::HALF; });
        for (const Image &image : {load(), other.get()}) {
            QVERIFY(image && image->GetLayers().size() == wanted.size());
            for (const auto &[part, channel] : wanted) {
                const CTImageChannel &plane = *image->GetLayer(channel.name.c_str())->GetDefaultChannel();
                const QByteArray expected = ownSamples(file, part, channel, isWide ? Imf::FLOAT : Imf::HALF);
                QCOMPARE(plane.format().byteSize(), std::size_t(expected.size()));
                QVERIFY(std::memcmp(plane.GetChannelData(), expected.data(), plane.format().byteSize()) == 0);
            }
        }
    }

    /// Vectors of bytes do the same as one byte after the other, at every length and place.
    void unpackedBytes()
    {
        std::mt19937 random(3);
        std::vector<std::uint8_t> bytes(200);
        std::generate(bytes.begin(), bytes.end(), [&random] { return std::uint8_t(random()); });
        for (std::size_t begin = 0; begin < 4; ++begin) {
            for (std::size_t count = 0; count < 90; ++count) {
                std::vector<std::uint8_t> sums(bytes), plainSums(bytes), pairs(200), plainPairs(200);
                sumDifferences(std::span(sums).subspan(begin, count));
                Plain::sumDifferences(std::span(plainSums).subspan(begin, count));
                QVERIFY(sums == plainSums);
                interleave(&bytes[begin], &bytes[begin + count], count, &pairs[begin]);
                Plain::interleave(&bytes[begin], &bytes[begin + count], count, &plainPairs[begin]);
                QVERIFY(pairs == plainPairs);
            }
        }
    }

    /// A file that takes another's place between two questions is read itself.
    void replaced()
    {
        const ImageFolder folder;
        ExrSpec spec;
        writeExr(folder("a.exr"), spec);
        spec.channels = {{"C"}, {"D"}, {"E"}, {"F"}};
        writeExr(folder("b.exr"), spec);
        const char *format = IImageCore::Probe(folder("a.exr").c_str());
        std::filesystem::rename(folder("b.exr"), folder("a.exr"));
        std::set<std::string> names;
        QVERIFY(IImageCore::LoadLayers(folder("a.exr").c_str(), format, names) && names.contains("C"));
    }
};

QTEST_GUILESS_MAIN(ImageLibraryUnpackTest)
#include "tst_image_library_unpack.moc"
