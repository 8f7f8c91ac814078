// What finding a sequence costs against listing its folder and asking for its files, what the frame cache costs, and what a
// frame costs against the fastest way to read its channels with OpenEXR alone.

#include "exrreaders.h"
#include "ratio.h"

#include <viewer/frames/framecache.h>
#include <viewer/frames/framedisplay.h>
#include <viewer/frames/frameloader.h>
#include <viewer/frames/framesequence.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr int kFrames = 10000;
constexpr double kSequencePromise = 1.5;
constexpr double kCachePromise = 1.5;
constexpr double kLoadPromise = 1.10;

[[noreturn]] void fail(const char *what)
{
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

double milliseconds(const std::function<void()> &work)
{
    const KeptPool pool;
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

/// A folder for the files, gone with this.
class Folder final {
public:
    Folder()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "bench_frames.XXXXXX").string();
        if (!mkdtemp(pattern.data()))
            fail("cannot make a folder");
        m_path = pattern;
    }
    ~Folder()
    {
        std::error_code error;
        std::filesystem::remove_all(m_path, error);
    }
    Folder(const Folder &) = delete;
    Folder &operator=(const Folder &) = delete;

    const std::filesystem::path &path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

/// Takes uploads and does nothing, so that the loader's own cost shows.
class NoDisplay final : public FrameDisplay {
public:
    void uploadTextures(ImageFrame &frame) override { frame.textureNames.assign(frame.planes.size(), 1); }
    void deleteTextures(ImageFrame &frame) override { frame.textureNames.clear(); }
    void showFrame(ImageFrame *) override { }
    void frameDies(const ImageFrame &) override { }
};

std::vector<std::string> makePaths(const std::filesystem::path &folder)
{
    std::vector<std::string> paths;
    for (int frame = 1; frame <= kFrames; ++frame) {
        const std::string number = std::to_string(100000 + frame).substr(1);
        paths.push_back((folder / ("shot_v02_beauty." + number + ".exr")).string());
    }
    return paths;
}

void openSequence(const std::vector<std::string> &paths)
{
    const auto opened = openFrames({.path = paths[kFrames / 2]}, {});
    if (opened.sequence.frames.size() != std::size_t(kFrames))
        fail("the sequence is not found");
}

void listAndCheck(const std::filesystem::path &folder, const std::vector<std::string> &paths)
{
    std::size_t found = 0;
    for (const auto &entry : std::filesystem::directory_iterator(folder))
        found += entry.path().native().empty() ? 0 : 1;
    for (const std::string &path : paths)
        found += std::filesystem::is_regular_file(path) ? 1 : 0;
    if (found != 2 * paths.size())
        fail("files are missing");
}

void compareSequence()
{
    const Folder folder;
    const std::vector<std::string> paths = makePaths(folder.path());
    for (const std::string &path : paths)
        std::ofstream(path).put('x');
    printRatio(
        "sequence: ms for 10,000 files, to a listing and a check of each",
        [&paths] { return milliseconds([&paths] { openSequence(paths); }); },
        [&folder, &paths] { return milliseconds([&] { listAndCheck(folder.path(), paths); }); },
        kSequencePromise);
}

std::unique_ptr<ImageFrame> makeFrame(FrameDisplay &display)
{
    auto frame = std::make_unique<ImageFrame>();
    frame->byteSize = 1;
    frame->textureNames = {1};
    frame->display = &display;
    return frame;
}

/// A map and a queue of 5000 frames, without budgets or displays.
class BareCache final {
public:
    void insert(std::unique_ptr<ImageFrame> frame, const std::string &path)
    {
        if (m_queue.size() == kFrames / 2) {
            m_frames.erase(m_queue.front());
            m_queue.pop_front();
        }
        m_frames.emplace(path, std::move(frame));
        m_queue.push_back(path);
    }
    bool find(const std::string &path) const { return m_frames.find(path) != m_frames.end(); }

private:
    std::map<std::string, std::unique_ptr<ImageFrame>> m_frames;
    std::deque<std::string> m_queue;
};

/// Looks for each of 10000 frames and inserts it, half of them into a full cache.
double microsecondsPerFrame(const std::vector<std::string> &paths, auto &cache, FrameDisplay &display)
{
    const double total = milliseconds([&] {
        for (const std::string &path : paths) {
            if (!cache.find(path))
                cache.insert(makeFrame(display), path);
        }
    });
    return 1e3 * total / double(paths.size());
}

void compareCache()
{
    const std::vector<std::string> paths = makePaths("/farm/shows/demo/shot_010/renders");
    NoDisplay display;
    CacheTotals totals{0, 0, kFrames / 2, 0};
    printRatio(
        "frame cache: us to find and insert, to a bare map and queue",
        [&] {
            FrameCache cache(totals, display);
            return microsecondsPerFrame(paths, cache, display);
        },
        [&] {
            BareCache cache;
            return microsecondsPerFrame(paths, cache, display);
        },
        kCachePromise);
}

void loadFrame(const ExrSample &sample)
{
    NoDisplay display;
    CacheTotals totals;
    FrameCache cache(totals, display);
    FrameLoader loader(cache, display);
    LoadRequest request;
    request.path = sample.path;
    if (!loader.load(request).shown())
        fail("a file does not load");
}

std::vector<std::function<void()>> bareReaders(const ExrSample &sample)
{
    std::vector<std::function<void()>> readers = {[&sample] { readPlanar(sample, 0); },
                                                  [&sample] { readPlanar(sample, 2); }};
    if (sample.compression != Imf::DWAA_COMPRESSION) // which the core interface does not decode
        readers.push_back([&sample] { readCore(sample); });
    return readers;
}

double bestMilliseconds(const std::function<void()> &read)
{
    return std::min({milliseconds(read), milliseconds(read), milliseconds(read)});
}

void compareLoad()
{
    const Folder folder;
    for (const ExrSample &sample : listSamples(folder.path())) {
        writeSample(sample);
        TImageLibrary::IImageCore::Probe(
            sample.path.c_str()); // brings the decoder, and its pool of threads to be kept
        const auto readers = bareReaders(sample);
        const auto fastest =
            std::min_element(readers.begin(), readers.end(), [](const auto &a, const auto &b) {
                return bestMilliseconds(a) < bestMilliseconds(b);
            });
        printRatio(("file to frame: ms, " + sample.name + ", to the fastest bare read").c_str(),
                   [&sample] { return milliseconds([&sample] { loadFrame(sample); }); },
                   [&fastest] { return milliseconds(*fastest); }, kLoadPromise);
    }
}

} // namespace

int main()
{
    compareSequence();
    compareCache();
    compareLoad();
    return 0;
}
