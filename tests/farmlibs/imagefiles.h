#pragma once

#include <helpers/imagepointer.h>
#include <image_library/iimagecore.h>

#include <ImathBox.h>
#include <ImathVec.h>
#include <ImfCompression.h>
#include <ImfLineOrder.h>
#include <ImfPixelType.h>
#include <ImfTileDescription.h>
#include <OpenImageIO/imageio.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include <random>
#include <set>
#include <string>
#include <vector>

/// Image files that tests write, and what they read back.

using Image = FarmHelpers::ImagePointer;

/// The layers joined with blanks, each quoted; "none" when the file cannot be read.
QByteArray layersOf(const std::string &path);
/// Every layer, or the named ones; null when the file does not load.
Image loadImage(const std::string &path, std::set<std::string> names = {});
/// One sample of a plane, integers as they are stored.
double sampleAt(const TImageLibrary::CTImageChannel &channel, int x, int y, int sample = 0);
/// The same of a layer's default channel; no number when there is no such layer.
double sampleAt(const Image &image, const char *layer, int x, int y, int sample = 0);

/// A value for each pixel that no mirroring or shifting leaves in its place; exact as a half.
float testValue(int x, int y, int channel = 0);

struct ExrChannelSpec {
    std::string name;
    Imf::PixelType type = Imf::HALF;
    Imath::V2i sampling{1, 1};
};

struct ExrSpec {
    Imath::Box2i display{{0, 0}, {39, 29}};
    Imath::Box2i data{{0, 0}, {39, 29}};
    std::vector<ExrChannelSpec> channels{{"A"}, {"B"}, {"G"}, {"R"}};
    Imf::Compression compression = Imf::ZIP_COMPRESSION;
    bool tiled = false;
    Imf::LevelMode levels = Imf::ONE_LEVEL; ///< of tiles
    bool deep = false; ///< no, one or several samples in a pixel, which overlap and may hide the rest
    Imf::LineOrder order = Imf::INCREASING_Y;
    std::string part; ///< its name, in a file of several
    std::mt19937 *random = nullptr; ///< fills every third block of eight lines with any bits
    int rowsWritten = -1; ///< fewer than there are for a writer that was stopped
};

/// Pixels are testValue(x, y, index of the channel), x and y in the coordinates of the windows.
void writeExr(const std::string &path, const ExrSpec &spec);
void writeExr(const std::string &path, const std::vector<ExrSpec> &parts);

/// Writes through OpenImageIO; samples are testValue() scaled to 0 to 1. False when it cannot.
bool writeImage(const std::string &path, OIIO::ImageSpec spec);

bool writeBytes(const std::string &path, const QByteArray &bytes);
QByteArray readBytes(const std::string &path);

/// A folder for one test's files.
class ImageFolder final {
public:
    std::string operator()(const char *name) const
    {
        return m_folder.filePath(QString::fromUtf8(name)).toStdString();
    }

private:
    QTemporaryDir m_folder;
};
