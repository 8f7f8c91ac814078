#include "imagemodules.h"

#include <system/tdesktop.h>

namespace TImageLibrary {

namespace {

template <typename Offer>
const Offer *offered(const char *module, const char *function)
{
    using Entry = const Offer *();
    void *const entry = TDesktop::ModuleFunction(module, function);
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
