#include "ttemplate.h"

#include "python.h"

namespace TTemplateEngine {

TTemplate::TTemplate(std::unique_ptr<TemplateScript> script)
    : m_script(std::move(script))
{ }

TTemplate::~TTemplate() = default;

void TTemplate::Release(TTemplate *instance) noexcept
{
    if (instance && --instance->m_references == 0)
        delete instance;
}

const std::string &TTemplate::getName() const noexcept
{
    return m_script->name;
}

std::int32_t TTemplate::getID() const noexcept
{
    return m_script->id.value_or(0);
}

void TTemplate::onCustomDispatcherMessageToAlertor(const char *message)
{
    if (!m_script->callHook(message))
        throw THookFailure();
}

} // namespace TTemplateEngine
