#pragma once

#include "ctextensionsiterator.h"
#include "ctimage.h"
#include "taheadload.h"
#include "tloadfailure.h"
#include "tpartialload.h"

#include <cstdint>
#include <set>
#include <string>

namespace TImageLibrary {

/// Reads images: OpenEXR files through OpenEXR, everything else through OpenImageIO. Paths are UTF-8.
/// Nothing throws; a file that is damaged, cut short, or announces more pixels than its bytes can hold does not load.
class IImageCore final {
public:
    /// Gives the library itself, which owns it.
    static IImageCore *GetUniqueClass();

    /// Walk over every extension that a loader reads, each once.
    static CTExtensionsIterator LoaderExtensionsBegin();
    static CTExtensionsIterator LoaderExtensionsEnd();

    /// Names the loader that can read the file, judged by its first bytes ("exr", "png", "jpeg", ...); null when none
    /// can or the path is no file. The name lives as long as the program.
    static const char *Probe(const char *path);

    /// Sets `names` to the file's layers: in an EXR one for each channel under its full name, behind its part's name
    /// where parts share channel names; "" in most other formats. False, with `names` empty, when the file cannot be
    /// read.
    static bool LoadLayers(const char *path, const char *format, std::set<std::string> &names);

    /// Reads the named layers, and no others; names that the file does not have are passed over, and when none is left
    /// the default layer is read. Channels that are loaded together have one type: half floats unless one is wider.
    /// `progress` may be null; otherwise its last call, also of a load that fails, says 1.
    /// Null when the file cannot be read; the caller ends the image with DestroyImage().
    static CTImage *Load(const char *path, const char *format, const std::set<std::string> &names,
                         TLoadProgress progress, void *user);

    /// Reads what there is of a file that is being written, was cut short or is damaged, and tells how much that is; the
    /// rest of each plane is 0. Null when there is nothing sound of it, and for formats that are read as a whole. An
    /// addition to the interface: a farm's own library need not have it.
    static CTImage *LoadPartial(const char *path, const char *format, const std::set<std::string> &names,
                                TPartialLoad &load);
    using PartialLoad = TPartialLoad;

    // Decoding ahead: images that will be needed soon, in threads of the library's own, each by one of them. Load() and
    // LoadPartial() have the right of way. An addition to the interface: a farm's own library need not have it.

    using AheadRequest = TAheadRequest;
    using AheadResult = TAheadResult;
    /// Images that are decoded at once.
    static int GetAheadThreads();
    /// Gives the job's number, never 0, which stands until it is handed over or cancelled.
    static std::uint64_t BeginAhead(const TAheadRequest &request);
    /// Hands over what is done; false, at once, while it is not.
    static bool PollAhead(std::uint64_t id, TAheadResult &result);
    /// Waits for a job that is being decoded, in which the other threads join where its format allows. False where it has
    /// not been begun, or Load() would be sooner: the job ends then.
    static bool TakeAhead(std::uint64_t id, TAheadResult &result);
    /// Returns at once; what is being decoded ends at its next step.
    static void CancelAhead(std::uint64_t id);

    /// Ends an image; null does nothing.
    static void DestroyImage(CTImage *image);

    /// Tells why the last Probe(), LoadLayers() or Load() of this thread gave nothing. An addition to the interface: a
    /// farm's own library need not have it.
    static const TLoadFailure &GetLoadFailure();

private:
    IImageCore() = default;
};

} // namespace TImageLibrary
