#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <utility>

/// How images are decoded ahead of need by a library that does so, as the program's own does.
namespace FarmHelpers {

/// What a library that decodes ahead has made of a request, as TImageLibrary::TAheadResult tells.
template <typename Image>
struct AheadResult {
    std::string format;
    std::set<std::string> layers;
    Image *image = nullptr; ///< the library's; null when the file does not load
};

/// Images that `Core`, an IImageCore, decodes at once ahead of need; 0 where it decodes none.
template <typename Core>
int aheadThreads()
{
    if constexpr (requires { typename Core::AheadRequest; })
        return Core::GetAheadThreads();
    else
        return 0;
}

/// Gives 0 where the library decodes nothing ahead, else the number of the job.
template <typename Core>
std::uint64_t beginAhead(const std::string &path, const std::set<std::string> &layers, int priority)
{
    if constexpr (requires { typename Core::AheadRequest; })
        return Core::BeginAhead({path, layers, priority});
    else
        return 0;
}

/// True when the job is done, whatever came of it.
template <typename Core, typename Image>
bool pollAhead(std::uint64_t id, AheadResult<Image> &result)
{
    if constexpr (requires { typename Core::AheadRequest; }) {
        typename Core::AheadResult told;
        if (!Core::PollAhead(id, told))
            return false;
        result = {std::move(told.format), std::move(told.layers), told.image};
    }
    return true;
}

/// True when the job was waited for; false where loading is the way.
template <typename Core, typename Image>
bool takeAhead(std::uint64_t id, AheadResult<Image> &result)
{
    if constexpr (requires { typename Core::AheadRequest; }) {
        typename Core::AheadResult told;
        if (!Core::TakeAhead(id, told))
            return false;
        result = {std::move(told.format), std::move(told.layers), told.image};
        return true;
    } else {
        return false;
    }
}

template <typename Core>
void cancelAhead(std::uint64_t id)
{
    if constexpr (requires { typename Core::AheadRequest; })
        Core::CancelAhead(id);
}

} // namespace FarmHelpers
