#pragma once

#include "tloadfailure.h"

#include <set>
#include <string>

namespace TImageLibrary {

class CTImage;

/// Asks for an image before it is needed.
struct TAheadRequest {
    std::string path; ///< UTF-8
    std::set<std::string> layers; ///< as the names in IImageCore::Load()
    int priority = 0; ///< higher ones are decoded first, equal ones in the order they were begun
};

/// What came of it.
struct TAheadResult {
    std::string format; ///< as IImageCore::Probe() names it; empty where that gives nothing
    std::set<std::string> layers; ///< all of the file's
    CTImage *image =
        nullptr; ///< the caller ends it with IImageCore::DestroyImage(); null when the file does not load
    TLoadFailure failure; ///< why not
};

} // namespace TImageLibrary
