#include "imagemodules.h"

#include <system/module.h>

namespace TImageLibrary {

namespace {

template <typename Offer>
const Offer *offered(const char *module, const char *function)
{
    using Entry = const Offer *();
    const Module::Function entry = Module::function(module, function);
    return entry ? reinterpret_cast<Entry *>(entry)() : nullptr;
}

} // namespace

const ImageLoader *exrModule()
{
    static const auto *const module = offered<ImageLoader>("tarrowexr", "tarrowExrModule");
    return module;
}

const OiioModule *oiioModule()
{
    static const auto *const module = offered<OiioModule>("tarrowoiio", "tarrowOiioModule");
    return module;
}

} // namespace TImageLibrary
