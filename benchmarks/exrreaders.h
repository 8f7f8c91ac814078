#pragma once

#include <ImfCompression.h>

#include <cstdint>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

/// An OpenEXR file of half channels and the channels to read from it.
struct ExrSample {
    std::string name;
    std::string path;
    int width = 0;
    int height = 0;
    Imf::Compression compression = Imf::NO_COMPRESSION;
    bool hasGrain =
        true; ///< of film in every pixel; else shaded surfaces before nothing, as a renderer makes them
    double promise = 0.0; ///< the time to load it at most, to the fastest bare read
    std::vector<std::string> channels;
    std::set<std::string> wanted;

    std::size_t planeBytes() const { return std::size_t(width) * std::size_t(height) * 2 * wanted.size(); }
};

/// Full HD and 4K colour in every compression compared, and one file of many channels of which a colour is wanted; none
/// is written yet.
std::vector<ExrSample> listSamples(const std::filesystem::path &folder);
void writeSample(const ExrSample &sample);

/// Gives OpenEXR's pool back the threads it had, once a reader that wants others is done: the pool is the process's.
class KeptPool final {
public:
    KeptPool();
    ~KeptPool();
    KeptPool(const KeptPool &) = delete;
    KeptPool &operator=(const KeptPool &) = delete;

private:
    int m_threads;
};

// Each takes memory for the wanted planes and fills it; false when the file does not read.

/// OpenEXR's C++ interface, one slice for each plane, with so many threads in its pool.
bool readPlanar(const ExrSample &sample, int threads);
/// OpenEXR's core interface on this thread.
bool readCore(const ExrSample &sample);
/// OpenImageIO, the wanted channels interleaved.
bool readOpenImageIO(const ExrSample &sample);
