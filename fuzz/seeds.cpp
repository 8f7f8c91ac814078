#include <notify/settings/settingscipher.h>

#include <farmpackets.h>
#include <imagefiles.h>

#include <QtCore/QDir>
#include <QtCore/QTextStream>

// Writes the fuzzers' first inputs, a folder for each, by the writers that the tests use.

namespace {

class Seeds final {
public:
    Seeds(const QString &folder, const char *fuzzer)
        : m_folder(folder + QLatin1Char('/') + QLatin1String(fuzzer))
    {
        if (!QDir().mkpath(m_folder.path()))
            qFatal("cannot make %s", qPrintable(m_folder.path()));
    }

    std::string path(const QString &name) const { return m_folder.filePath(name).toStdString(); }

    void add(const QByteArray &bytes)
    {
        if (!writeBytes(path(QString::number(m_count++)), bytes))
            qFatal("cannot write to %s", qPrintable(m_folder.path()));
    }

private:
    QDir m_folder;
    int m_count = 0;
};

TClientLib::TJob fullJob()
{
    TClientLib::TJob job = farm::job();
    job.setTasksMask(2);
    job.setFrameRanges({{1, 100, 1}, {-20, 20, 5}, {30, 10, -3}});
    job.attributeSetString("output_folder", "/renders/shot010");
    job.attributeSetString("job_project", "/projects/shot010.scn");
    job.attributeSetString("final_filename", "/renders/shot010/final\n\\.mov");
    job.attributeSetString("frames_mask", "/renders/shot010/b.####.exr;/renders/shot010/d.%04d.exr");
    return job;
}

TClientLib::TChunk fullChunk()
{
    TClientLib::TChunk chunk = farm::chunk();
    chunk.setFrames(1, 10, 1);
    chunk.setState(2);
    return chunk;
}

QByteArray notification()
{
    const TClientLib::TJob job = fullJob();
    const TClientLib::TChunk chunk = fullChunk();
    return encodeNotification(farm::notification(ChunkCompleted, &job, &chunk));
}

void writeLink(const QString &folder)
{
    const QByteArray custom = encodeCustomMessage({7, "a message"});
    const QByteArray login = encodeLogin({QStringLiteral("ann"), QStringLiteral("pass"), true, {}});
    Seeds packets(folder, "packets");
    packets.add('\0' + notification());
    packets.add('\1' + custom);
    packets.add('\2' + login);

    Seeds frames(folder, "frames");
    Seeds inflate(folder, "inflate");
    QByteArray stream(1, '\6');
    for (const QByteArray &payload : {notification(), custom, QByteArray(5000, 'a')}) {
        const QByteArray frame = encodeMessage(MessageHeader::Compressed, CMD_NOTIFICATION, payload, 1);
        stream += frame + encodeMessage(MessageHeader::Plain, CMD_CUSTOM_MESSAGE, custom, 2);
        inflate.add(frame.sliced(MessageHeader::kSize));
    }
    frames.add(stream);
}

void writeTexts(const QString &folder)
{
    Seeds records(folder, "records");
    records.add(QByteArray::fromStdString(fullJob().Marshall()));
    records.add(QByteArray::fromStdString(fullChunk().Marshall()));

    Seeds masks(folder, "masks");
    for (const char *path :
         {"/a/b.####.exr", "/a/b.0012.exr", "b_-0007.exr", "%04d.tga; c@@@.png", "logo@2x.png"})
        masks.add(QByteArray("\7\0\0\0", 4) + path);

    Seeds cipher(folder, "cipher");
    for (const QString &text : {QStringLiteral("geheim"), QString(200, QLatin1Char('a'))}) {
        const SettingsCipher writer;
        cipher.add(QByteArray(9, '\0') + writer.encipher(text).toLatin1());
        cipher.add(QByteArray(9, '\0') + QByteArray::fromBase64(writer.encipher(text).toLatin1()));
    }
}

void writeExrs(const QString &folder)
{
    const Seeds exr(folder, "exr");
    const Imath::Box2i window({0, 0}, {18, 17});
    for (int compression = 0; compression < Imf::NUM_COMPRESSION_METHODS; ++compression) {
        for (const bool tiled : {false, true}) {
            ExrSpec spec;
            spec.display = spec.data = window;
            spec.compression = Imf::Compression(compression);
            spec.tiled = tiled;
            writeExr(exr.path(QStringLiteral("%1-%2").arg(compression).arg(int(tiled))), spec);
        }
    }
    ExrSpec chroma;
    chroma.display = window;
    chroma.data = {{-4, -2}, {13, 11}};
    chroma.channels = {
        {"BY", Imf::HALF, {2, 2}}, {"RY", Imf::HALF, {2, 2}}, {"Y", Imf::FLOAT}, {"id", Imf::UINT}};
    writeExr(exr.path(QStringLiteral("chroma")), chroma);
    ExrSpec first;
    first.display = first.data = window;
    first.part = "left";
    ExrSpec second = first;
    second.part = "right";
    second.order = Imf::DECREASING_Y;
    writeExr(exr.path(QStringLiteral("parts")), {first, second});
    for (const bool tiled : {false, true}) {
        ExrSpec deep;
        deep.display = deep.data = window;
        deep.deep = true;
        deep.tiled = tiled;
        deep.compression = tiled ? Imf::RLE_COMPRESSION : Imf::ZIPS_COMPRESSION;
        deep.channels = {{"A"}, {"B"}, {"G"}, {"R"}, {"Z", Imf::FLOAT}};
        writeExr(exr.path(QStringLiteral("deep-%1").arg(int(tiled))), deep);
    }
}

void writeImages(const QString &folder)
{
    const Seeds images(folder, "images");
    const auto write = [&images](const QString &extension, int channels, OIIO::TypeDesc type) {
        OIIO::ImageSpec spec(20, 13, channels, type);
        spec.attribute("compression", channels % 2 ? "rle" : "zip");
        const QString name = QStringLiteral("%1-%2.%3").arg(channels).arg(int(type.size())).arg(extension);
        writeImage(images.path(name), spec); // not every format takes every kind of pixel
    };
    for (const char *extension :
         {"png", "jpg", "tif", "tga", "bmp", "gif", "webp", "sgi", "hdr", "rla", "ppm"}) {
        for (const int channels : {1, 3, 4, 6}) {
            write(QLatin1String(extension), channels, OIIO::TypeDesc::UINT8);
            write(QLatin1String(extension), channels, OIIO::TypeDesc::UINT16);
        }
    }
    write(QStringLiteral("dpx"), 3, OIIO::TypeDesc::UINT8);
    write(QStringLiteral("dpx"), 4, OIIO::TypeDesc::UINT16);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        QTextStream(stderr) << "usage: fuzz_seeds FOLDER\n";
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    writeLink(folder);
    writeTexts(folder);
    writeExrs(folder);
    writeImages(folder);
    return 0;
}
