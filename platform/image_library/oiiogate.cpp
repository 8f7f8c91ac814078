#include "oiiogate.h"

#include <tdesktop.h>

namespace TImageLibrary {

const OiioModule *oiioModule()
{
    using Entry = const OiioModule *();
    static const OiioModule *const module = []() -> const OiioModule * {
        void *const entry = TDesktop::ModuleFunction("tarrowoiio", "tarrowOiioModule");
        return entry ? reinterpret_cast<Entry *>(entry)() : nullptr;
    }();
    return module;
}

} // namespace TImageLibrary
