#pragma once

namespace TTemplateEngine {

/// The engine's own Python code, run once when the interpreter starts.
extern const char kSupportSource[];

} // namespace TTemplateEngine
