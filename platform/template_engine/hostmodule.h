#pragma once

#include <string>

namespace TTemplateEngine {

/// Makes the module through which templates reach the program importable under the program's name. Needs the lock;
/// the module's functions refuse any other thread than this one.
void addHostModule(const std::string &name);

} // namespace TTemplateEngine
