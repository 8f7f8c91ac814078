#include "oiiomodule.h"

#include <system/module.h>

namespace TImageLibrary {

const OiioModule *oiioModule()
{
    using Entry = const OiioModule *();
    static const OiioModule *const module = [] {
        const Module::Function entry = Module::function("tarrowoiio", "tarrowOiioModule");
        return entry ? reinterpret_cast<Entry *>(entry)() : nullptr;
    }();
    return module;
}

} // namespace TImageLibrary
