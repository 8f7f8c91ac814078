#include "imageloader.h"

#include "imageerror.h"

namespace TImageLibrary {

CTImage ImageLoader::loadPartial(const SourceFile &, const std::set<std::string> &, Progress &,
                                 TPartialLoad &) const
{
    throw ImageError(TLoadFailure::Unsupported, "of a format that is read as a whole");
}

} // namespace TImageLibrary
