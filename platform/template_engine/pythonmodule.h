#pragma once

#include <pybind11/pybind11.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace TTemplateEngine {

class Interpreter;

/// What the engine keeps of one loaded template. Everything of Python here is touched under the lock only: forget()
/// must have run before the last owner goes.
struct PythonModule {
    std::string name;
    std::optional<std::int32_t> id;
    pybind11::object module;
    pybind11::object hookName;

    /// Null, with the problem in one line, when the file is no template. `importable` are folders to import from.
    static std::unique_ptr<PythonModule> load(Interpreter &interpreter, const std::string &name,
                                              const std::string &path,
                                              const std::vector<std::string> &importable,
                                              std::string &problem);

    /// False when the hook raised; the exception is then pending. A missing hook is fine.
    bool callHook(const char *message) const;
    void forget();
};

} // namespace TTemplateEngine
