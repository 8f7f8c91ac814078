#include "exrloader.h"

#include <system/moduleexport.h>

TARROW_MODULE_FUNCTION const TImageLibrary::ImageLoader *tarrowExrModule()
{
    static const TImageLibrary::ExrLoader loader;
    return &loader;
}
