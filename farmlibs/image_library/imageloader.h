#pragma once

#include "ctimage.h"
#include "progress.h"
#include "sourcefile.h"
#include "tpartialload.h"

#include <set>
#include <string>
#include <vector>

namespace TImageLibrary {

/// Reads one family of files. Loaders may throw: IImageCore catches at the library's door.
class ImageLoader {
public:
    ImageLoader() = default;
    virtual ~ImageLoader() = default;
    ImageLoader(const ImageLoader &) = delete;
    ImageLoader &operator=(const ImageLoader &) = delete;

    virtual std::vector<std::string> extensions() const = 0;
    /// Name of the format, null when the bytes are none of this loader's; lives as long as the program.
    virtual const char *probe(const SourceFile &file) const = 0;
    /// Whether this loader gives probe() results of that name.
    virtual bool knows(const std::string &format) const = 0;
    virtual std::set<std::string> layers(const SourceFile &file, const std::string &format) const = 0;
    /// The image holds the named layers, or the default one when the file has none of them.
    virtual CTImage load(const SourceFile &file, const std::string &format,
                         const std::set<std::string> &names, Progress &progress) const = 0;
    /// The same with what there is of a file that may be incomplete, which `load` is told, empty before; throws when that is nothing.
    virtual CTImage loadPartial(const SourceFile &file, const std::set<std::string> &names,
                                Progress &progress, TPartialLoad &load) const;
};

} // namespace TImageLibrary
