#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <cstdint>
#include <optional>
#include <vector>

/// Describes one channel as the image library delivers it when its layer is loaded alone.
struct ChannelReport {
    QString name;
    int width = 0;
    int height = 0;
    QString type; ///< "uint8", "uint16", "half", "float" or "uint32"
    int samples = 0;
    /// Over all finite samples of all pixels, integers as they are stored.
    double minimum = 0.0;
    double mean = 0.0;
    double maximum = 0.0;
    std::int64_t nonFinite = 0; ///< samples that are infinite or no number
};

/// Describes one layer by its channels.
struct LayerReport {
    QString name; ///< may be empty
    std::vector<ChannelReport> channels;
};

/// Describes a whole image file.
struct ImageReport {
    QString format;
    int width = 0;
    int height = 0;
    bool premultiplied = false;
    bool deep = false; ///< flattened
    std::vector<LayerReport> layers;
};

/// Tells what the image library makes of a file; nothing when it cannot load it, for the reason given.
std::optional<ImageReport> inspectImage(const QString &path, QString &reason);
