#include "compositelayers.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

constexpr char kDefaultEntry[] = "Default";
constexpr char kColour[] = "RGBA";
constexpr std::size_t kMostMembers = 4;

struct Recipe {
    std::array<const char *, kMostMembers> members; ///< the last one may be missing
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

/// The name of a composite's like, with alpha for one without and without for one with; empty for other entries.
std::string likeOf(const std::string &entry)
{
    for (const Recipe &recipe : {kRgb, kYCbCr}) {
        for (const std::size_t which : {0U, 1U}) {
            const std::string name = recipe.names[which];
            const bool isNamed = entry == name || entry.ends_with('.' + name);
            if (isNamed)
                return entry.substr(0, entry.size() - name.size()) + recipe.names[1 - which];
        }
    }
    return {};
}

} // namespace

const CompositeLayer *LayerList::composite(std::string_view entry) const
{
    const auto found = std::find_if(composites.begin(), composites.end(),
                                    [entry](const CompositeLayer &layer) { return layer.name == entry; });
    return found == composites.end() ? nullptr : &*found;
}

std::string LayerList::defaultEntry() const
{
    // Composites are told from layers of their names, and those of their own beginning from those of a prefix.
    for (const char *name : {kColour, "RGB", "YCbCrA", "YCbCr"}) {
        if (composite(name))
            return name;
    }
    for (const char *name : {kDefaultEntry, "R", "Y"}) {
        if (holds(name))
            return name;
    }
    // The first of them by name stands last.
    const auto alpha = std::find_if(composites.rbegin(), composites.rend(), [](const CompositeLayer &layer) {
        return layer.members.size() == kMostMembers;
    });
    if (alpha != composites.rend())
        return alpha->name;
    if (!composites.empty())
        return composites.back().name;
    return entries.empty() ? std::string() : entries.front();
}

bool LayerList::holds(const std::string &entry) const
{
    return std::find(entries.begin(), entries.end(), entry) != entries.end();
}

std::string LayerList::resolved(const std::string &chosen) const
{
    if (chosen == kDefaultEntry && composite(kColour))
        return kColour;
    if (holds(chosen))
        return chosen;
    const std::string alike = likeOf(chosen);
    return !alike.empty() && composite(alike) ? alike : defaultEntry();
}

bool LayerList::offers(const std::string &chosen) const
{
    const std::string alike = likeOf(chosen);
    return chosen.empty() || chosen == kDefaultEntry || holds(chosen) || (!alike.empty() && composite(alike));
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
