#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

/// Colour that a file stores as a layer per component, shown as one.
struct CompositeLayer {
    std::string name; ///< "RGBA", "RGB", "YCbCrA", "YCbCr", or one of these behind a prefix and a dot
    std::vector<std::string> members; ///< the layers, in the order of the textures
    std::string layout; ///< what the textures hold: "R,G,B"
    bool isYCbCr = false;

    bool operator==(const CompositeLayer &other) const = default;
};

/// What the layer selector offers for a file: the composites that its layers make, the last one found first, then
/// the layers that are in none, in the order of their names. The layer without a name is listed as "Default".
struct LayerList {
    std::vector<std::string> entries;
    std::vector<CompositeLayer> composites;

    bool operator==(const LayerList &other) const = default;

    /// Null when the entry is no composite. The pointer lives as long as the list.
    const CompositeLayer *composite(std::string_view entry) const;

    /// The entry that is shown when `chosen` is selected: itself, its like with or without alpha, or the file's default. An
    /// empty choice and "Default" mean the colour where there is an RGBA composite.
    std::string resolved(const std::string &chosen) const;
    /// Whether `chosen`, or its like with or without alpha, is there; an empty choice always is.
    bool offers(const std::string &chosen) const;
    /// What a file opens on: RGBA, RGB, YCbCr, the library's default layer, the first composite with alpha, else the first.
    std::string defaultEntry() const;

    /// The file's name of the layer that an entry other than a composite stands for.
    static std::string layerName(const std::string &entry);
    /// The layers to load for an entry.
    std::set<std::string> members(const std::string &entry) const;

private:
    bool holds(const std::string &entry) const;
};

/// `names` are the layers of a file.
LayerList listLayers(const std::set<std::string> &names);
