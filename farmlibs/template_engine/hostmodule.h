#pragma once

namespace TTemplateEngine {

struct PythonHost;

/// Makes the module through which templates reach the program importable under the host's name. Needs the lock;
/// the module's functions refuse any other thread than this one.
void addHostModule(const PythonHost &host);

} // namespace TTemplateEngine
