#pragma once

#include "ttemplate.h"

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace TTemplateEngine {

class Python;

/// Names the folders beside the templates from which they may import, in this order, after the templates folder itself.
struct TTemplatesDirectories {
    std::string host; ///< modules for this program alone: hosts/<name of the program>
    std::string modules; ///< modules that templates share
    std::string platformPackages; ///< packages with compiled parts: packages-linux, packages-windows
    std::string packages; ///< other packages
};

/// Loads templates, which are Python modules, and finds them by ID. One for each process, used on one thread.
/// The interpreter starts with the first template file; nothing of it is touched without the Python lock.
/// Problems of a template are reported in one line on standard error and never throw.
class TManager final {
public:
    TManager(const TManager &) = delete;
    TManager &operator=(const TManager &) = delete;

    /// Names the program that the templates run in. False for another interface version than 1.
    static bool initializePythonPath(int version, const char *hostName);
    /// Gives the process's manager, made at the first call. Null for another interface version than 1.
    static TManager *getUniqueClass(int version);
    /// Ends the interpreter and forgets every template; harmless when there is no manager.
    static void destroyUniqueClass();

    /// Finds a template, to be given back with TTemplate::Release(); null when none has this ID.
    TTemplate *getTemplate(std::int32_t id) const;
    void normalizeTemplatesDirectories(const std::string &folder, TTemplatesDirectories &directories) const;

    /// Runs the file as a Python module, whatever its name ends in. False, with a line on standard error, when it is
    /// no regular file, no Python, raises, or describes itself wrongly.
    bool loadTemplateFromFile(const std::string &folder, const std::string &fullPath, const std::string &name,
                              const TTemplatesDirectories &directories);
    /// Makes the loaded templates known by ID. Of two with the same ID the one loaded first stays.
    void fillInternalHashesMap();

    /// Takes the Python lock; calls may nest, each with its releasePython().
    void acquirePython();
    /// Gives the lock back and drops an exception that nobody took.
    void releasePython();
    /// Takes the pending exception: its traceback and message without the last line feed, empty when there is none.
    /// Needs the lock.
    std::string getPyExceptionStr();

private:
    explicit TManager(std::string hostName);
    ~TManager();
    bool startPython(std::string &problem);

    std::string m_hostName;
    std::unique_ptr<Python> m_python;
    std::string m_startProblem;
    std::vector<std::unique_ptr<TTemplate, decltype(&TTemplate::Release)>> m_loaded;
    std::unordered_map<std::int32_t, TTemplate *> m_byId;
};

} // namespace TTemplateEngine
