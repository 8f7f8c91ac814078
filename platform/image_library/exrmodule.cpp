#include "exrloader.h"

#include <moduleexport.h>

TARROW_MODULE_FUNCTION const TImageLibrary::ImageLoader *tarrowExrModule()
{
    static const TImageLibrary::ExrLoader loader;
    return &loader;
}
