#pragma once

#include "python.h"

#include <pybind11/embed.h>

#include <memory>
#include <string>

namespace TTemplateEngine {

/// Embeds the system's interpreter, deaf to the environment of the user who starts the program.
class Interpreter final : public Python {
public:
    /// Null, with the problem in words, when Python does not start.
    static std::unique_ptr<Interpreter> start(const PythonHost &host, std::string &problem);
    ~Interpreter() override;

    void lock() override;
    void unlock() override;
    std::string takeException() override;
    std::unique_ptr<TemplateScript> load(const std::string &name, const std::string &path,
                                         const std::vector<std::string> &importable,
                                         std::string &problem) override;

    /// A function of the Python code in support.cpp. Needs the lock.
    pybind11::object support(const char *function) const;
    /// An exception in words, chosen by the support function: "summary" in one line, with the line number in the file
    /// `path`, or "report" with the traceback. Needs the lock.
    std::string describe(const pybind11::error_already_set &raised, const char *function,
                         const pybind11::object &path) const;

private:
    Interpreter() = default;
    void prepare(const PythonHost &host);

    pybind11::dict m_support;
    PyThreadState *m_thread = nullptr; ///< of the thread that started Python, while it does not hold the lock
    int m_depth = 1; ///< calls of lock() under way: Python starts locked
};

} // namespace TTemplateEngine
