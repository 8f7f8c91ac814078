#include "iimagecore.h"

#include "imageloader.h"
#include "imagemodules.h"

#include <algorithm>
#include <exception>
#include <memory>
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

const ImageLoader *loaderOf(const char *format)
{
    const std::string name = format ? format : "";
    return firstAnswer([&name](const ImageLoader &loader) { return loader.knows(name) ? &loader : nullptr; });
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

/// The decoders throw what they like, often std::bad_alloc: no image is the one answer to all of it.
template <typename Function>
auto guarded(const Function &function) -> decltype(function())
{
    try {
        return function();
    } catch (...) {
        return {};
    }
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
    return guarded([path]() -> const char * {
        const auto file = SourceFile::open(path);
        if (!file)
            return nullptr;
        return firstAnswer([&file](const ImageLoader &loader) { return loader.probe(*file); });
    });
}

bool IImageCore::LoadLayers(const char *path, const char *format, std::set<std::string> &names)
{
    names = guarded([path, format]() -> std::set<std::string> {
        const ImageLoader *loader = loaderOf(format);
        const auto file = SourceFile::open(path);
        return loader && file ? loader->layers(*file, format) : std::set<std::string>();
    });
    return !names.empty();
}

CTImage *IImageCore::Load(const char *path, const char *format, const std::set<std::string> &names,
                          TLoadProgress progress, void *user)
{
    Progress reported(progress, user);
    return guarded([&]() -> CTImage * {
        const ImageLoader *loader = loaderOf(format);
        const auto file = SourceFile::open(path);
        if (!loader || !file)
            return nullptr;
        return std::make_unique<CTImage>(loader->load(*file, format, names, reported)).release();
    });
}

void IImageCore::DestroyImage(CTImage *image)
{
    delete image;
}

} // namespace TImageLibrary
