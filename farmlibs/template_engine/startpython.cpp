#include "interpreter.h"

#include <system/moduleexport.h>

TARROW_MODULE_FUNCTION TTemplateEngine::Python *tarrowStartPython(const TTemplateEngine::PythonHost &host,
                                                                  std::string &problem)
{
    return TTemplateEngine::Interpreter::start(host, problem).release();
}
