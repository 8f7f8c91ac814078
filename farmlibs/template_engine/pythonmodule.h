#pragma once

#include "python.h"

#include <pybind11/pybind11.h>

#include <memory>
#include <string>
#include <vector>

namespace TTemplateEngine {

class Interpreter;

/// A template as the Python module that its file became.
class PythonModule final : public TemplateScript {
public:
    /// See Python::load().
    static std::unique_ptr<PythonModule> load(Interpreter &interpreter, const std::string &name,
                                              const std::string &path,
                                              const std::vector<std::string> &importable,
                                              std::string &problem);

    bool callHook(const char *message) const override;
    void forget() override;

private:
    pybind11::object m_module;
    pybind11::object m_hookName;
};

} // namespace TTemplateEngine
