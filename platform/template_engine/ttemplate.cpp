#include "ttemplate.h"

#include "pythonmodule.h"

namespace TTemplateEngine {

TTemplate::TTemplate(std::unique_ptr<PythonModule> module)
    : m_module(std::move(module))
{ }

TTemplate::~TTemplate() = default;

void TTemplate::Release(TTemplate *instance) noexcept
{
    if (instance && --instance->m_references == 0)
        delete instance;
}

const std::string &TTemplate::getName() const noexcept
{
    return m_module->name;
}

std::int32_t TTemplate::getID() const noexcept
{
    return m_module->id.value_or(0);
}

void TTemplate::onCustomDispatcherMessageToAlertor(const char *message)
{
    if (!m_module->callHook(message))
        throw THookFailure();
}

} // namespace TTemplateEngine
