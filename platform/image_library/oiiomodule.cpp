#include "oiiogate.h"
#include "oiioloader.h"
#include "resize.h"

#ifdef _WIN32
#define TARROW_EXPORT __declspec(dllexport)
#else
#define TARROW_EXPORT __attribute__((visibility("default")))
#endif

extern "C" TARROW_EXPORT const TImageLibrary::OiioModule *tarrowOiioModule()
{
    static const TImageLibrary::OiioLoader loader;
    static const TImageLibrary::OiioModule module{loader, &TImageLibrary::resizeChannel};
    return &module;
}
