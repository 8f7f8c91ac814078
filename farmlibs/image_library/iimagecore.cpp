#include "iimagecore.h"

#include "aheadpool.h"
#include "imageerror.h"
#include "imageloader.h"
#include "imagemodules.h"

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <memory>
#include <mutex>
#include <new>
#include <optional>
#include <stdexcept>
#include <thread>
#include <utility>
#include <vector>

namespace TImageLibrary {

namespace {

/// The loaders one after the other until one gives an answer; what is not asked is not loaded.
template <typename Ask>
auto firstAnswer(const Ask &ask) -> decltype(ask(std::declval<const ImageLoader &>()))
{
    if (const ImageLoader *exr = exrModule()) {
        if (auto answer = ask(*exr))
            return answer;
    }
    const OiioModule *oiio = oiioModule();
    return oiio ? ask(oiio->loader) : nullptr;
}

const std::vector<std::string> &extensions()
{
    static const std::vector<std::string> all = [] {
        std::vector<std::string> list;
        firstAnswer([&list](const ImageLoader &loader) -> const ImageLoader * {
            for (std::string &extension : loader.extensions()) {
                if (std::find(list.begin(), list.end(), extension) == list.end())
                    list.push_back(std::move(extension));
            }
            return nullptr;
        });
        return list;
    }();
    return all;
}

/// Keeps the file that the last call of this thread has read, for the next one to go on with: a load asks for the format,
/// the layers and the pixels, and opens its file once.
class LastSource final {
public:
    static SourceFile take(const char *path)
    {
        std::optional<SourceFile> file = std::exchange(kept(), std::nullopt);
        return file && file->isStill(path) ? *std::move(file) : SourceFile::open(path);
    }
    static void keep(SourceFile &&file) { kept() = std::move(file); }

private:
    static std::optional<SourceFile> &kept()
    {
        thread_local std::optional<SourceFile> file;
        return file;
    }
};

TLoadFailure &lastFailure()
{
    thread_local TLoadFailure failure;
    return failure;
}

/// What a decoder says as one line, without the path, beside which it is shown.
std::string plainReason(std::string text, const char *path)
{
    constexpr std::size_t kLongest = 500;
    const std::string quoted = " \"" + std::string(path ? path : "") + '"';
    for (std::size_t at = text.find(quoted); at != std::string::npos; at = text.find(quoted))
        text.erase(at, quoted.size());
    // Each layer of a decoder may put its own words before those of the next, and they may be the same.
    const std::size_t sentence = text.find(". ") == std::string::npos ? text.size() : text.find(". ") + 2;
    while (text.size() > sentence && text.compare(sentence, sentence, text, 0, sentence) == 0)
        text.erase(0, sentence);
    text.resize(std::min(text.size(), kLongest));
    std::replace_if(
        text.begin(), text.end(), [](unsigned char c) { return c < ' ' || c == 0x7f; }, ' ');
    while (!text.empty() && (text.back() == ' ' || text.back() == '.'))
        text.pop_back();
    return text.empty() ? "damaged" : text;
}

TLoadFailure failureOf(const std::exception &fault, const char *path)
{
    if (const auto *known = dynamic_cast<const ImageError *>(&fault))
        return {known->kind(), plainReason(known->what(), path)};
    if (dynamic_cast<const std::bad_alloc *>(&fault) || dynamic_cast<const std::length_error *>(&fault))
        return {TLoadFailure::TooLarge, "not enough memory for its pixels"};
    const std::string reason = plainReason(fault.what(), path);
    // What a decoder does not support it says in so many words.
    const bool sound = reason.find("support") != std::string::npos;
    return {sound ? TLoadFailure::Unsupported : TLoadFailure::Damaged, reason};
}

void keepFailure(const std::exception &fault, const char *path) noexcept
{
    try {
        lastFailure() = failureOf(fault, path);
    } catch (...) {
        lastFailure().kind = TLoadFailure::TooLarge; // not even for the words
    }
}

/// The decoders throw what they like, often std::bad_alloc: no image is the one answer to all of it, and the reason is kept.
template <typename Function>
auto guarded(const char *path, const Function &function) -> decltype(function())
{
    lastFailure() = {};
    try {
        return function();
    } catch (const std::exception &fault) {
        keepFailure(fault, path);
    } catch (...) {
        keepFailure(std::runtime_error("damaged"), path);
    }
    return {};
}

const ImageLoader &loaderOf(const char *format)
{
    const std::string name = format ? format : "";
    const ImageLoader *found =
        firstAnswer([&name](const ImageLoader &loader) { return loader.knows(name) ? &loader : nullptr; });
    if (!found)
        throw ImageError(TLoadFailure::Unsupported, '"' + name + "\" is no format that is read here");
    return *found;
}

/// The bytes are no image's: damage where the name is one.
[[noreturn]] void failUnknown(const SourceFile &file)
{
    if (!exrModule() && !oiioModule())
        throw ImageError(TLoadFailure::Unsupported, "the decoders are not installed");
    const bool hasName =
        std::find(extensions().begin(), extensions().end(), file.extension()) != extensions().end();
    throw ImageError(hasName ? TLoadFailure::Damaged : TLoadFailure::NoImage,
                     "not an image of a known format");
}

AheadPool &aheadPool();

/// The decoders keep things that end with the program, made when a format is first read: the pool ends before these.
void endPoolBefore(const std::string &format)
{
    static std::mutex mutex;
    static std::set<std::string> formats;
    const std::lock_guard lock(mutex);
    if (formats.insert(format).second)
        std::atexit([] { aheadPool().stop(); });
}

void decodeAhead(const TAheadRequest &request, AheadControl &control, TAheadResult &result)
{
    const char *path = request.path.c_str();
    Progress progress(control);
    result.image = guarded(path, [&]() -> CTImage * {
        const SourceFile file = SourceFile::open(path);
        const char *format = firstAnswer([&file](const ImageLoader &loader) { return loader.probe(file); });
        if (!format)
            failUnknown(file);
        const ImageLoader &loader = loaderOf(format);
        result.format = format;
        control.goOn(0.0);
        result.layers = loader.layers(file, format);
        control.goOn(0.0);
        auto image = std::make_unique<CTImage>(loader.load(file, format, request.layers, progress));
        endPoolBefore(format);
        return image.release();
    });
    result.failure = lastFailure();
}

AheadPool &aheadPool()
{
    constexpr unsigned kMostThreads = 16;
    static AheadPool pool(int(std::min(std::thread::hardware_concurrency(), kMostThreads)), decodeAhead);
    return pool;
}

} // namespace

IImageCore *IImageCore::GetUniqueClass()
{
    static IImageCore core;
    return &core;
}

CTExtensionsIterator IImageCore::LoaderExtensionsBegin()
{
    return CTExtensionsIterator(extensions().begin());
}

CTExtensionsIterator IImageCore::LoaderExtensionsEnd()
{
    return CTExtensionsIterator(extensions().end());
}

const char *IImageCore::Probe(const char *path)
{
    return guarded(path, [path]() -> const char * {
        SourceFile file = LastSource::take(path);
        const char *format = firstAnswer([&file](const ImageLoader &loader) { return loader.probe(file); });
        if (!format)
            failUnknown(file);
        LastSource::keep(std::move(file));
        return format;
    });
}

bool IImageCore::LoadLayers(const char *path, const char *format, std::set<std::string> &names)
{
    names = guarded(path, [path, format] {
        SourceFile file = LastSource::take(path);
        std::set<std::string> layers = loaderOf(format).layers(file, format);
        LastSource::keep(std::move(file));
        return layers;
    });
    return !names.empty();
}

CTImage *IImageCore::Load(const char *path, const char *format, const std::set<std::string> &names,
                          TLoadProgress progress, void *user)
{
    const AheadPool::RightOfWay first(aheadPool());
    Progress reported(progress, user);
    return guarded(path, [&]() -> CTImage * {
        const ImageLoader &loader = loaderOf(format);
        const SourceFile file = LastSource::take(path);
        return std::make_unique<CTImage>(loader.load(file, format, names, reported)).release();
    });
}

CTImage *IImageCore::LoadPartial(const char *path, const char *format, const std::set<std::string> &names,
                                 TPartialLoad &load)
{
    const AheadPool::RightOfWay first(aheadPool());
    Progress reported(load.progress, load.user);
    load = {};
    return guarded(path, [&]() -> CTImage * {
        const ImageLoader &loader = loaderOf(format);
        const SourceFile file = LastSource::take(path);
        return std::make_unique<CTImage>(loader.loadPartial(file, names, reported, load)).release();
    });
}

int IImageCore::GetAheadThreads()
{
    return aheadPool().threads();
}

std::uint64_t IImageCore::BeginAhead(const TAheadRequest &request)
{
    return aheadPool().begin(request);
}

bool IImageCore::PollAhead(std::uint64_t id, TAheadResult &result)
{
    return aheadPool().poll(id, result);
}

bool IImageCore::TakeAhead(std::uint64_t id, TAheadResult &result)
{
    return aheadPool().take(id, result);
}

void IImageCore::CancelAhead(std::uint64_t id)
{
    aheadPool().cancel(id);
}

const TLoadFailure &IImageCore::GetLoadFailure()
{
    return lastFailure();
}

void IImageCore::DestroyImage(CTImage *image)
{
    delete image;
}

} // namespace TImageLibrary
