#include "interpreter.h"

#include "hostmodule.h"
#include "pythonmodule.h"
#include "support.h"

#include <csignal>
#include <cstdio>
#include <stdexcept>

namespace py = pybind11;

namespace TTemplateEngine {

namespace {

void require(const PyStatus &status)
{
    if (PyStatus_Exception(status))
        throw std::runtime_error(status.err_msg ? status.err_msg : "it gives no reason");
}

/// Starts Python isolated: PATH, PYTHONHOME, PYTHONPATH and the user's own packages may belong to another Python.
void initialize()
{
    PyPreConfig preparation;
    PyPreConfig_InitIsolatedConfig(&preparation);
    preparation.utf8_mode = 1; // paths and prints are UTF-8 in every locale
    require(Py_PreInitialize(&preparation));

    PyConfig config;
    PyConfig_InitIsolatedConfig(&config);
    config.buffered_stdio = 0; // prints show at once, also in a log file
    config.write_bytecode = 0; // the templates folder may be read-only, and stays as its owner left it
    require(PyConfig_SetBytesString(&config, &config.home, TARROW_PYTHON_HOME));
    require(PyConfig_SetBytesString(&config, &config.program_name, TARROW_PYTHON_EXECUTABLE));
    py::initialize_interpreter(&config, 0, nullptr, false);
}

} // namespace

std::unique_ptr<Interpreter> Interpreter::start(const PythonHost &host, std::string &problem)
{
#ifdef SIGPIPE
    // As a Python program expects: writing to a pipe without a reader is an error, not the end.
    std::signal(SIGPIPE, SIG_IGN);
#endif
    try {
        initialize();
        std::unique_ptr<Interpreter> interpreter(new Interpreter);
        interpreter->prepare(host);
        interpreter->unlock();
        return interpreter;
    } catch (const std::exception &error) {
        problem = std::string("Python cannot be started: ") + error.what();
        return nullptr;
    }
}

void Interpreter::prepare(const PythonHost &host)
try {
    addHostModule(host);
    py::exec(kSupportSource, m_support);
    support("guard_streams")();
} catch (const py::error_already_set &raised) {
    // The exception is Python's own, which ends with this object.
    throw std::runtime_error(raised.what());
}

Interpreter::~Interpreter()
try {
    lock();
    m_support.release().dec_ref();
    py::finalize_interpreter();
} catch (const std::exception &error) {
    std::fprintf(stderr, "Python did not shut down properly: %s\n", error.what());
}

void Interpreter::lock()
{
    if (m_depth++ == 0)
        PyEval_RestoreThread(m_thread);
}

void Interpreter::unlock()
{
    if (m_depth == 0)
        return;
    PyErr_Clear();
    if (--m_depth == 0)
        m_thread = PyEval_SaveThread();
}

std::unique_ptr<TemplateScript> Interpreter::load(const std::string &name, const std::string &path,
                                                  const std::vector<std::string> &importable,
                                                  std::string &problem)
{
    return PythonModule::load(*this, name, path, importable, problem);
}

py::object Interpreter::support(const char *function) const
{
    return m_support[function];
}

std::string Interpreter::takeException()
{
    if (!PyErr_Occurred())
        return {};
    return describe(py::error_already_set(), "report", py::none());
}

std::string Interpreter::describe(const py::error_already_set &raised, const char *function,
                                  const py::object &path) const
{
    try {
        if (raised.trace())
            PyException_SetTraceback(raised.value().ptr(), raised.trace().ptr());
        const py::object text = support(function)(raised.value(), path);
        return py::bytes(text.attr("encode")("utf-8", "backslashreplace"));
    } catch (const std::exception &) {
        return "an exception that cannot be shown";
    }
}

} // namespace TTemplateEngine
