#include "hostmodule.h"

#include "python.h"

#include <framework/sendentry.h>

#include <pybind11/pybind11.h>

#include <cstdint>
#include <stdexcept>
#include <string_view>
#include <thread>

namespace py = pybind11;

namespace TTemplateEngine {

namespace {

constexpr char kSendHelp[] = "Sends one message to the Dispatcher. Returns False when there is no link.";

bool send(const TFramework::TSendEntry *entry, std::uint32_t command, const py::bytes &payload,
          std::uint32_t param)
{
    if (!entry || !entry->send)
        return false;
    const std::string_view bytes = payload;
    return entry->send(entry->owner, command, bytes.data(), bytes.size(), param);
}

} // namespace

void addHostModule(const PythonHost &host)
{
    static py::module_::module_def definition;
    auto module = py::module_::create_extension_module(host.name.c_str(), nullptr, &definition);
    const auto sendFromHere = [owner = std::this_thread::get_id(), entry = host.sendEntry](
                                  std::uint32_t command, const py::bytes &payload, std::uint32_t param) {
        if (std::this_thread::get_id() != owner)
            throw std::runtime_error("send() may be called only in the thread that runs the hooks");
        return send(entry(), command, payload, param);
    };
    module.def("send", sendFromHere, py::arg("command"), py::arg("payload"), py::arg("param") = 0U,
               kSendHelp);
    py::module_::import("sys").attr("modules")[host.name.c_str()] = module;
}

} // namespace TTemplateEngine
