// What a load through the image library costs against the fastest way to read the same channels with OpenEXR alone, against
// OpenImageIO, and in memory. Every contender opens the file, takes memory for the planes and fills them.

#include "exrreaders.h"
#include "ratio.h"

#include <helpers/imagepointer.h>
#include <image_library/iimagecore.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace TImageLibrary;

namespace {

constexpr int kRounds = 9;
// To a read of the same pixels through OpenImageIO, in processor time.
constexpr double kOpenImageIOPromise = 0.35;
constexpr double kMemoryPromise = 1.15;
// A whole file that is read in part, chunk by chunk, to itself read as a whole.
constexpr double kPartialPromise = 1.2;

struct Contender {
    std::string name;
    std::function<bool()> load;
};

bool loadThroughLibrary(const ExrSample &sample)
{
    return FarmHelpers::ImagePointer(
               IImageCore::Load(sample.path.c_str(), "exr", sample.wanted, nullptr, nullptr))
        != nullptr;
}

bool loadInPart(const ExrSample &sample)
{
    TPartialLoad load;
    const FarmHelpers::ImagePointer image(
        IImageCore::LoadPartial(sample.path.c_str(), "exr", sample.wanted, load));
    return image && load.isWhole;
}

std::vector<Contender> bareReaders(const ExrSample &sample)
{
    std::vector<Contender> readers;
    for (const int threads : {0, 2}) {
        readers.push_back({"C++, " + std::to_string(threads) + " threads",
                           [&sample, threads] { return readPlanar(sample, threads); }});
    }
    // The core interface of OpenEXR 3.1 does not decode DWA.
    if (sample.compression != Imf::DWAA_COMPRESSION)
        readers.push_back({"core", [&sample] { return readCore(sample); }});
    return readers;
}

/// Milliseconds of one load.
struct Times {
    double wall = 0.0;
    double processor = 0.0; ///< of all threads
};

double now(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return 1e3 * double(time.tv_sec) + 1e-6 * double(time.tv_nsec);
}

Times measure(const std::function<bool()> &load)
{
    const KeptPool pool;
    const double wall = now(CLOCK_MONOTONIC);
    const double processor = now(CLOCK_PROCESS_CPUTIME_ID);
    if (!load()) {
        std::fprintf(stderr, "a file does not load\n");
        std::exit(1);
    }
    return {now(CLOCK_MONOTONIC) - wall, now(CLOCK_PROCESS_CPUTIME_ID) - processor};
}

double median(const std::vector<Times> &times, double Times::*kind)
{
    std::vector<double> values;
    std::transform(times.begin(), times.end(), std::back_inserter(values),
                   [kind](const Times &each) { return each.*kind; });
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// All in turn, so that a slow moment of the machine meets them all; the medians count.
std::vector<Times> compare(const std::vector<Contender> &contenders)
{
    std::vector<std::vector<Times>> times(contenders.size());
    for (int round = 0; round < kRounds; ++round) {
        for (std::size_t i = 0; i < contenders.size(); ++i)
            times[i].push_back(measure(contenders[i].load));
    }
    std::vector<Times> medians;
    std::transform(times.begin(), times.end(), std::back_inserter(medians), [](const auto &all) {
        return Times{median(all, &Times::wall), median(all, &Times::processor)};
    });
    return medians;
}

/// Runs in a process of its own and gives the most memory, in bytes, that it has held.
double inChild(const std::function<bool()> &run)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(run() ? 0 : 1);
    int status = 1;
    rusage usage{};
    if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0) {
        std::fprintf(stderr, "a child process failed\n");
        std::exit(1);
    }
    return double(usage.ru_maxrss) * 1024.0;
}

/// What a load takes beyond the module that decodes, which no single load is to answer for.
double peakMemory(const ExrSample &sample, const std::function<bool()> &load)
{
    const auto bringModule = [&sample] { return IImageCore::Probe(sample.path.c_str()) != nullptr; };
    return inChild([&] { return bringModule() && load(); }) - inChild(bringModule);
}

void printMemory(const ExrSample &sample)
{
    const double planes = double(sample.planeBytes());
    const double library = peakMemory(sample, [&sample] { return loadThroughLibrary(sample); });
    double bare = 0.0;
    for (const Contender &reader : bareReaders(sample))
        bare = std::max(bare, peakMemory(sample, reader.load));
    // What OpenEXR needs is what the bare reader takes beyond the planes.
    const double allowed = kMemoryPromise * planes + std::max(0.0, bare - planes);
    printPromise(("image library: MB, " + sample.name + ", to a limit").c_str(), library / 1e6, allowed / 1e6,
                 1.0);
}

void printRatios(const ExrSample &sample)
{
    std::vector<Contender> contenders = bareReaders(sample);
    const std::size_t bareCount = contenders.size();
    contenders.push_back({"OpenImageIO", [&sample] { return readOpenImageIO(sample); }});
    contenders.push_back({"library", [&sample] { return loadThroughLibrary(sample); }});
    const std::vector<Times> times = compare(contenders);
    const Times &library = times.back();
    const auto promise = [&](double Times::*kind, const std::string &unit) {
        double bare = times.front().*kind;
        for (std::size_t i = 1; i < bareCount; ++i)
            bare = std::min(bare, times[i].*kind);
        printPromise(("image library: " + unit + ", " + sample.name + ", to the fastest bare read").c_str(),
                     library.*kind, bare, sample.promise);
    };
    promise(&Times::processor, "processor ms");
    promise(&Times::wall, "ms");
    if (sample.compression == Imf::ZIP_COMPRESSION)
        printPromise(("image library: processor ms, " + sample.name + ", to OpenImageIO").c_str(),
                     library.processor, times[bareCount].processor, kOpenImageIOPromise);
    for (std::size_t i = 0; i < contenders.size(); ++i)
        std::printf(" %s %.1f ms, %.1f of processor;", contenders[i].name.c_str(), times[i].wall,
                    times[i].processor);
    std::printf("\n");
    std::fflush(stdout);
}

void printPartial(const ExrSample &sample)
{
    const std::vector<Times> times = compare({{"whole", [&sample] { return loadThroughLibrary(sample); }},
                                              {"in part", [&sample] { return loadInPart(sample); }}});
    printPromise(("image library: processor ms, " + sample.name + ", in part, to the whole").c_str(),
                 times[1].processor, times[0].processor, kPartialPromise);
}

/// A folder for the files, gone with this.
class Folder final {
public:
    Folder()
    {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "bench_image_library.XXXXXX").string();
        if (mkdtemp(pattern.data()))
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

} // namespace

int main(int argc, char **argv)
{
    const Folder folder;
    const std::vector<ExrSample> samples = listSamples(folder.path());
    // First, while this process has loaded nothing and has no threads that its children would miss.
    for (const ExrSample &sample : samples) {
        inChild([&sample] {
            writeSample(sample);
            return true;
        });
        printMemory(sample);
    }
    for (const ExrSample &sample : samples) {
        benchmark::RegisterBenchmark(sample.name.c_str(),
                                     [&sample](benchmark::State &state) {
                                         for (auto _ : state)
                                             benchmark::DoNotOptimize(loadThroughLibrary(sample));
                                         state.SetBytesProcessed(state.iterations()
                                                                 * std::int64_t(sample.planeBytes()));
                                     })
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime();
    }
    IImageCore::Probe(samples.front().path.c_str()); // brings the decoder, and its pool of threads to be kept
    benchmark::Initialize(&argc, argv);
    for (const ExrSample &sample : samples) {
        printRatios(sample);
        if (sample.compression == Imf::ZIP_COMPRESSION || sample.compression == Imf::DWAA_COMPRESSION)
            printPartial(sample);
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
