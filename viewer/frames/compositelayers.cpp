#include "compositelayers.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

constexpr char kDefaultEntry[] = "Default";
constexpr char kColour[] = "RGBA";

struct Recipe {
    std::array<const char *, 4> members; ///< the last one may be missing
    std::array<const char *, 2> names; ///< without and with the last member
    std::array<const char *, 2> layouts;
    bool isYCbCr;
};

constexpr Recipe kRgb = {{"R", "G", "B", "A"}, {"RGB", "RGBA"}, {"R,G,B", "R,G,B,A"}, false};
constexpr Recipe kYCbCr = {{"Y", "BY", "RY", "A"}, {"YCbCr", "YCbCrA"}, {"Y,Cb,Cr", "Y,Cb,Cr,A"}, true};

std::optional<CompositeLayer> combined(const Recipe &recipe, const std::string &prefix,
                                       const std::set<std::string> &names)
{
    CompositeLayer composite;
    for (const char *member : recipe.members) {
        const auto found = names.find(prefix + member);
        if (found != names.end())
            composite.members.push_back(*found);
        else if (member != recipe.members.back())
            return std::nullopt;
    }
    const std::size_t which = composite.members.size() == recipe.members.size() ? 1 : 0;
    composite.name = prefix + recipe.names[which];
    composite.layout = recipe.layouts[which];
    composite.isYCbCr = recipe.isYCbCr;
    return composite;
}

} // namespace

const CompositeLayer *LayerList::composite(std::string_view entry) const
{
    const auto found = std::find_if(composites.begin(), composites.end(),
                                    [entry](const CompositeLayer &layer) { return layer.name == entry; });
    return found == composites.end() ? nullptr : &*found;
}

std::string LayerList::resolved(const std::string &chosen, bool fresh) const
{
    const bool isListed = std::find(entries.begin(), entries.end(), chosen) != entries.end();
    const std::string entry = fresh && !isListed ? std::string() : chosen;
    if ((entry.empty() || entry == kDefaultEntry) && composite(kColour))
        return kColour;
    return entry.empty() && !entries.empty() ? entries.front() : entry;
}

std::string LayerList::layerName(const std::string &entry)
{
    return entry == kDefaultEntry ? std::string() : entry;
}

std::set<std::string> LayerList::members(const std::string &entry) const
{
    if (const CompositeLayer *layer = composite(entry))
        return {layer->members.begin(), layer->members.end()};
    return {layerName(entry)};
}

LayerList listLayers(const std::set<std::string> &names)
{
    LayerList list;
    std::set<std::string> left = names;
    const auto combine = [&list, &left](const Recipe &recipe, const std::string &prefix) {
        auto composite = combined(recipe, prefix, left);
        if (!composite)
            return;
        for (const std::string &member : composite->members)
            left.erase(member);
        list.composites.push_back(std::move(*composite));
    };
    combine(kRgb, {});
    combine(kYCbCr, {});
    for (const std::string &name : names) {
        if (name.ends_with(".R"))
            combine(kRgb, name.substr(0, name.size() - 1));
        else if (name.ends_with(".Y"))
            combine(kYCbCr, name.substr(0, name.size() - 1));
    }

    std::reverse(list.composites.begin(), list.composites.end());
    for (const CompositeLayer &composite : list.composites)
        list.entries.push_back(composite.name);
    for (const std::string &name : left)
        list.entries.push_back(name.empty() ? kDefaultEntry : name);
    return list;
}
