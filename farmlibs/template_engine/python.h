#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace TFramework {
struct TSendEntry;
}

namespace TTemplateEngine {

/// Keeps one loaded template for the engine. It is used under the lock, and forget() must have run before it goes.
class TemplateScript {
public:
    TemplateScript() = default;
    virtual ~TemplateScript() = default;
    TemplateScript(const TemplateScript &) = delete;
    TemplateScript &operator=(const TemplateScript &) = delete;

    /// False when the hook raised; the exception is then pending. A missing hook is fine.
    virtual bool callHook(const char *message) const = 0;
    virtual void forget() = 0;

    std::string name;
    std::optional<std::int32_t> id;
};

/// Runs Python for the engine, on one thread. Outside lock() and unlock() the lock is free for
/// threads that templates have started.
class Python {
public:
    Python() = default;
    virtual ~Python() = default;
    Python(const Python &) = delete;
    Python &operator=(const Python &) = delete;

    /// Calls nest: a hook may send, and the program may call the next hook meanwhile.
    virtual void lock() = 0;
    /// Also drops an exception that is still pending.
    virtual void unlock() = 0;
    /// The pending exception with its traceback; empty when there is none. Needs the lock.
    virtual std::string takeException() = 0;
    /// Null, with the problem in one line, when the file is no template. `importable` are folders to import from. Needs
    /// the lock.
    virtual std::unique_ptr<TemplateScript> load(const std::string &name, const std::string &path,
                                                 const std::vector<std::string> &importable,
                                                 std::string &problem) = 0;
};

/// Tells what templates reach of the program.
struct PythonHost {
    std::string name;
    /// Null while there is none.
    const TFramework::TSendEntry *(*sendEntry)() = nullptr;
};

/// Starts Python: what the module that holds it offers. The caller owns what it gets: null, with the problem in words,
/// when Python does not start.
using StartPython = Python *(const PythonHost &host, std::string &problem);

} // namespace TTemplateEngine
