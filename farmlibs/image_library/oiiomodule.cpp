#include "imagemodules.h"
#include "oiioloader.h"
#include "planes.h"

#include <system/moduleexport.h>

TARROW_MODULE_FUNCTION const TImageLibrary::OiioModule *tarrowOiioModule()
{
    static const TImageLibrary::OiioLoader loader;
    static const TImageLibrary::OiioModule module{loader, &TImageLibrary::resizeChannel};
    return &module;
}
