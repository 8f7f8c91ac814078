#pragma once

#include "filestamp.h"

#include <helpers/imagepointer.h>

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

/// An image that was decoded before it was needed.
struct AheadImage {
    std::string path;
    FileStamp stamp; ///< of the file, before it was read
    std::string format;
    std::set<std::string> names; ///< layers of the file
    std::set<std::string> asked; ///< those of them that were to be read
    FarmHelpers::ImagePointer image; ///< never null
};

/// Has the image library decode files that will be needed soon. Nothing of it waits but take(), and what does not load is left
/// out in silence: who needs it learns why by loading it. A library that does not decode ahead is asked for nothing.
class ReadAhead final {
public:
    ReadAhead() = default;
    ~ReadAhead();
    ReadAhead(const ReadAhead &) = delete;
    ReadAhead &operator=(const ReadAhead &) = delete;

    /// How many files are worth asking for at once, 0 where the library decodes none ahead.
    static std::size_t mostAtOnce();

    /// Tells how the files are read.
    struct Wish {
        std::set<std::string> layers;
        int priority = 0;
    };
    /// Begins with the files in the order of need, so many at once, and cancels all others.
    void follow(const std::vector<std::string> &paths, const Wish &wish);
    /// Files that were begun with and are neither handed over nor left out.
    std::size_t count() const { return m_jobs.size(); }

    /// Hands over one image that is ready.
    std::optional<AheadImage> collect();
    /// Whether the file was begun with.
    bool isComing(const std::string &path) const;
    /// Hands over the image of a file that is needed now, and waits for it; nothing where loading it is the way.
    std::optional<AheadImage> take(const std::string &path);

    /// Asks for the file no more.
    void leaveOut(const std::string &path) { m_leftOut.insert(path); }
    bool leavesOut(const std::string &path) const { return m_leftOut.contains(path); }
    /// Cancels everything, and leaves nothing out from now on.
    void clear();

private:
    struct Job {
        std::uint64_t id = 0;
        std::string path;
        FileStamp stamp;
        std::set<std::string> asked;
    };
    void begin(const std::string &path, const Wish &wish);

    std::vector<Job> m_jobs; // in the order they were begun
    std::set<std::string> m_leftOut;
};
