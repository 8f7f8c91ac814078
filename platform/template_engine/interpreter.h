#pragma once

#include <pybind11/embed.h>

#include <memory>
#include <string>

namespace TTemplateEngine {

/// The embedded interpreter: the system's, deaf to the environment of the user who starts the program.
/// Outside lock() and unlock() the lock is free for threads that templates have started.
class Interpreter final {
public:
    /// Null, with the problem in words, when Python does not start.
    static std::unique_ptr<Interpreter> start(const std::string &hostName, std::string &problem);
    ~Interpreter();
    Interpreter(const Interpreter &) = delete;
    Interpreter &operator=(const Interpreter &) = delete;

    /// Calls nest: a hook may send, and the program may call the next hook meanwhile.
    void lock();
    /// Also drops an exception that is still pending.
    void unlock();

    /// A function of the Python code in support.cpp. Needs the lock.
    pybind11::object support(const char *function) const;
    /// An exception in words, chosen by the support function: "summary" in one line, with the line number in the file
    /// `path`, or "report" with the traceback. Needs the lock.
    std::string describe(const pybind11::error_already_set &raised, const char *function,
                         const pybind11::object &path) const;
    /// The pending exception with its traceback; empty when there is none. Needs the lock.
    std::string takeException();

private:
    Interpreter() = default;
    void prepare(const std::string &hostName);

    pybind11::dict m_support;
    PyThreadState *m_thread = nullptr; ///< of the thread that started Python, while it does not hold the lock
    int m_depth = 1; ///< calls of lock() under way: Python starts locked
};

} // namespace TTemplateEngine
