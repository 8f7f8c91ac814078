#include "pythonmodule.h"

#include "interpreter.h"

namespace py = pybind11;

namespace TTemplateEngine {

namespace {

constexpr char kCustomMessageHook[] = "onCustomDispatcherMessageToAlertor";

/// A file name as Python spells it, also one that is no valid UTF-8.
py::object fileSystemText(const std::string &text)
{
    auto *decoded = PyUnicode_DecodeFSDefaultAndSize(text.data(), static_cast<Py_ssize_t>(text.size()));
    if (!decoded)
        throw py::error_already_set();
    return py::reinterpret_steal<py::object>(decoded);
}

} // namespace

std::unique_ptr<PythonModule> PythonModule::load(Interpreter &interpreter, const std::string &name,
                                                 const std::string &path,
                                                 const std::vector<std::string> &importable,
                                                 std::string &problem)
{
    py::object pythonPath = py::none();
    try {
        pythonPath = fileSystemText(path);
        py::list folders;
        for (const std::string &folder : importable)
            folders.append(fileSystemText(folder));
        const py::tuple loaded = interpreter.support("load")(fileSystemText(name), pythonPath, folders);
        auto result = std::make_unique<PythonModule>();
        result->m_module = loaded[0];
        result->m_hookName =
            py::reinterpret_steal<py::object>(PyUnicode_InternFromString(kCustomMessageHook));
        if (!loaded[1].is_none())
            result->id = loaded[1].cast<std::int32_t>();
        result->name = loaded[2].is_none() ? name : loaded[2].cast<std::string>();
        return result;
    } catch (const py::error_already_set &raised) {
        problem = interpreter.describe(raised, "summary", pythonPath);
    } catch (const std::exception &error) {
        problem = error.what();
    }
    return nullptr;
}

bool PythonModule::callHook(const char *message) const
{
    if (!m_module)
        return true;
    const auto callable =
        py::reinterpret_steal<py::object>(PyObject_GetAttr(m_module.ptr(), m_hookName.ptr()));
    if (!callable) {
        if (!PyErr_ExceptionMatches(PyExc_AttributeError))
            return false;
        PyErr_Clear();
        return true;
    }
    const auto bytes = py::reinterpret_steal<py::object>(PyBytes_FromString(message));
    if (!bytes)
        return false;
    // What a hook returns has no meaning.
    return bool(py::reinterpret_steal<py::object>(PyObject_CallOneArg(callable.ptr(), bytes.ptr())));
}

void PythonModule::forget()
{
    m_module = py::object();
    m_hookName = py::object();
}

} // namespace TTemplateEngine
